// SPDX-License-Identifier: MIT
#include "cli/batchreport.h"
#include "cli/batchwords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString key(const char *name)
{
    return QString::fromUtf8(name);
}

QJsonArray placeJson(const orvane::Vector &p)
{
    return {double(p.x), double(p.y), double(p.z)};
}

QJsonObject holesJson(const HoleCounts &holes)
{
    return {{key("overLimit"), holes.overLimit},
            {key("dangling"), holes.dangling},
            {key("unclosed"), holes.unclosed}};
}

// Numbers of faces by "3", "4", ...
QJsonObject facesJson(const QVector<int> &facesByCorners)
{
    QJsonObject result;
    for (int corners = 3; corners < facesByCorners.size(); ++corners) {
        if (facesByCorners[corners] > 0)
            result.insert(QString::number(corners), facesByCorners[corners]);
    }
    return result;
}

QJsonArray piecesJson(const RunReport &run)
{
    QJsonArray result;
    for (const PieceReport &piece : run.pieces) {
        QJsonObject object{{key("nodes"), piece.nodes},
                           {key("place"), placeJson(piece.place)},
                           {key("built"), piece.outcome == PieceReport::Built},
                           {key("faces"), facesJson(piece.facesByCorners)},
                           {key("holes"), holesJson(piece.holes)}};
        if (piece.outcome != PieceReport::Built)
            object.insert(key("reason"), pieceFailureInWords(piece));
        if (piece.inFaceOfPiece >= 0)
            object.insert(key("inFaceOfPiece"), piece.inFaceOfPiece);
        result.append(object);
    }
    return result;
}

QJsonArray meshesJson(const QVector<MadeMesh> &meshes)
{
    QJsonArray result;
    for (const MadeMesh &mesh : meshes)
        result.append(QJsonObject{{key("name"), mesh.name},
                                  {key("piece"), mesh.piece},
                                  {key("faultBits"), mesh.faultBits},
                                  {key("faults"), QJsonArray::fromStringList(mesh.faults)}});
    return result;
}

QJsonArray pointsJson(const BatchReport &report)
{
    QJsonArray result;
    for (const PointOnCurve &point : report.run.pointsOnCurves)
        result.append(QJsonObject{{key("curveA"), report.curveNames.value(point.curveA)},
                                  {key("indexA"), point.curveA},
                                  {key("curveB"), report.curveNames.value(point.curveB)},
                                  {key("indexB"), point.curveB},
                                  {key("place"), placeJson(point.place)}});
    return result;
}

QJsonArray idleCurvesJson(const BatchReport &report)
{
    QJsonArray result;
    for (int curve : report.run.curvesWithoutCrossing)
        result.append(
            QJsonObject{{key("name"), report.curveNames.value(curve)}, {key("index"), curve}});
    return result;
}

QJsonObject secondsJson(const BatchReport &report)
{
    const StageSeconds &s = report.run.seconds;
    QJsonObject result{
        {key("measure"), s.measure}, {key("sample"), s.sample}, {key("self"), s.self},
        {key("cross"), s.cross},     {key("link"), s.link},     {key("merge"), s.merge},
        {key("pieces"), s.pieces},   {key("order"), s.order},   {key("build"), s.build}};
    for (const auto &time : report.otherTimes)
        result.insert(time.first, time.second);
    return result;
}

} // namespace

QByteArray reportJson(const BatchReport &report)
{
    QJsonObject root{
        {key("mesh"), report.meshFile},
        {key("sourceFaces"), report.sourceFaces},
        {key("sourceVertices"), report.sourceVertices},
        {key("facesLeftOut"), report.facesLeftOut},
        {key("curvesFile"), report.curvesFile},
        {key("curves"), report.curveNames.size()},
        {key("points"), report.binding.points},
        {key("pointsBound"), report.binding.bound},
        {key("greatestBindingDistance"), double(report.binding.greatestDistance)},
        {key("averageEdgeLength"), report.run.averageEdgeLength},
        {key("crossings"), report.run.crossings},
        {key("merged"), report.run.merged},
        {key("pieces"), piecesJson(report.run)},
        {key("faces"), facesJson(totalFaces(report.run))},
        {key("holes"), holesJson(totalHoles(report.run))},
        {key("meshes"), meshesJson(report.meshes)},
        {key("pointsOnCurves"), pointsJson(report)},
        {key("curvesWithoutCrossing"), idleCurvesJson(report)},
        {key("seconds"), secondsJson(report)},
        {key("written"), QJsonArray::fromStringList(report.written)},
    };
    if (!report.run.failure.isEmpty())
        root.insert(key("failure"), report.run.failure);
    return QJsonDocument(root).toJson();
}
