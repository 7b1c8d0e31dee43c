// SPDX-License-Identifier: MIT
#include "cli/batchreport.h"
#include "cli/batchwords.h"

#include <numeric>

namespace {

const int LabelWidth = 11; // characters

QString line(const char *label, const QString &words)
{
    return QString::fromUtf8(label).leftJustified(LabelWidth) + words + QLatin1Char('\n');
}

QString inputLines(const BatchReport &report)
{
    const orvane::CurveBinding &binding = report.binding;
    QString text = line("mesh", QStringLiteral("%1: %2, %3 vertices")
                                    .arg(report.meshFile, counted(report.sourceFaces, "face"))
                                    .arg(report.sourceVertices));
    if (report.facesLeftOut > 0)
        text += line("warning", leftOutInWords(report.facesLeftOut));
    text += line("curves", QStringLiteral("%1: %2, %3 of %4 on the mesh (moved at most %5)")
                               .arg(report.curvesFile, counted(report.curveNames.size(), "curve"))
                               .arg(binding.bound)
                               .arg(counted(binding.points, "point"))
                               .arg(double(binding.greatestDistance), 0, 'g', 3));
    return text;
}

QString runLines(const BatchReport &report)
{
    const QVector<int> faces = totalFaces(report.run);
    const int count = std::accumulate(faces.cbegin(), faces.cend(), 0);
    const HoleCounts holes = totalHoles(report.run);
    QString text = line("crossings", QStringLiteral("%1, of which %2 merged into others")
                                         .arg(report.run.crossings)
                                         .arg(report.run.merged));
    text += line("pieces", QStringLiteral("%1, of which %2 made a mesh")
                               .arg(report.run.pieces.size())
                               .arg(report.meshes.size()));
    text +=
        line("faces", count == 0 ? QStringLiteral("none")
                                 : QStringLiteral("%1: %2").arg(count).arg(facesInWords(faces)));
    text +=
        line("holes", holes.total() == 0
                          ? holesInWords(holes)
                          : QStringLiteral("%1: %2").arg(holes.total()).arg(holesInWords(holes)));
    return text;
}

QString pieceLines(const RunReport &run)
{
    QString text;
    for (int i = 0; i < run.pieces.size(); ++i) {
        const PieceReport &piece = run.pieces[i];
        const bool built = piece.outcome == PieceReport::Built;
        if (!built)
            text += line("", QStringLiteral("piece %1 (%2, at %3) made no mesh: %4")
                                 .arg(i)
                                 .arg(counted(piece.nodes, "crossing"), placeInWords(piece.place),
                                      pieceFailureInWords(piece)));
        if (piece.inFaceOfPiece >= 0)
            text += line(
                "warning",
                QStringLiteral("piece %1 (at %2) lies inside a face of piece %3: it is no "
                               "hole there%4")
                    .arg(i)
                    .arg(placeInWords(piece.place))
                    .arg(piece.inFaceOfPiece)
                    .arg(built ? QStringLiteral(", its mesh lies over that face") : QString()));
    }
    return text;
}

// A loop alone in a cell, or a stroke that reaches no other, leaves no trace in the mesh.
QString idleCurveLine(const BatchReport &report)
{
    QStringList names;
    for (int curve : report.run.curvesWithoutCrossing)
        names += QStringLiteral("\"%1\"").arg(report.curveNames.value(curve));
    if (names.isEmpty())
        return {};
    return line("warning",
                QStringLiteral("%1 without a crossing: %2")
                    .arg(counted(names.size(), "curve"), names.join(QStringLiteral(", "))));
}

QString pointLines(const BatchReport &report)
{
    if (report.run.pointsOnCurves.isEmpty())
        return {};
    QString text = line(
        "warning", QStringLiteral("%1 where a curve passes exactly through a point of a curve: "
                                  "no crossing there")
                       .arg(counted(report.run.pointsOnCurves.size(), "place")));
    for (const PointOnCurve &point : report.run.pointsOnCurves)
        text +=
            line("", QStringLiteral("\"%1\" and \"%2\" at %3")
                         .arg(report.curveNames.value(point.curveA),
                              report.curveNames.value(point.curveB), placeInWords(point.place)));
    return text;
}

QString faultLines(const BatchReport &report)
{
    QString text;
    for (const MadeMesh &mesh : report.meshes) {
        if (mesh.faultBits == 0)
            continue;
        text += line("FAULTS", QStringLiteral("\"%1\" of piece %2 was accepted with faults: %3")
                                   .arg(mesh.name)
                                   .arg(mesh.piece)
                                   .arg(mesh.faults.join(QStringLiteral("; "))));
    }
    return text.isEmpty() && !report.meshes.isEmpty() ? line("faults", QStringLiteral("none"))
                                                      : text;
}

QString timeLine(const BatchReport &report)
{
    const StageSeconds &s = report.run.seconds;
    QVector<QPair<QString, double>> times = report.otherTimes;
    times += {{QStringLiteral("measure"), s.measure}, {QStringLiteral("sample"), s.sample},
              {QStringLiteral("self"), s.self},       {QStringLiteral("cross"), s.cross},
              {QStringLiteral("link"), s.link},       {QStringLiteral("merge"), s.merge},
              {QStringLiteral("pieces"), s.pieces},   {QStringLiteral("order"), s.order},
              {QStringLiteral("build"), s.build}};
    QStringList words;
    for (const auto &time : qAsConst(times))
        words += QStringLiteral("%1 %2").arg(time.first).arg(time.second, 0, 'f', 3);
    return line("seconds", words.join(QStringLiteral(", ")));
}

} // namespace

QString reportText(const BatchReport &report)
{
    QString text = inputLines(report) + runLines(report) + pieceLines(report.run)
                   + idleCurveLine(report) + pointLines(report) + faultLines(report)
                   + timeLine(report);
    for (const QString &file : report.written)
        text += line("wrote", file);
    if (!report.run.failure.isEmpty())
        text += QStringLiteral("No mesh was made: %1.\n").arg(report.run.failure);
    return text;
}
