// SPDX-License-Identifier: MIT
#include "cli/batchwords.h"

#include <QStringList>

QString counted(int count, const char *thing)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(QString::fromUtf8(thing),
                                                    count == 1 ? QString() : QStringLiteral("s"));
}

QString leftOutInWords(int faces)
{
    return counted(faces, "face")
           + QStringLiteral(" of fewer than three different corners, left out in reading");
}

QString facesInWords(const QVector<int> &facesByCorners)
{
    QStringList words;
    for (int corners = 3; corners < facesByCorners.size(); ++corners) {
        const int count = facesByCorners[corners];
        if (count == 0)
            continue;
        if (corners == 3)
            words += counted(count, "triangle");
        else if (corners == 4)
            words += counted(count, "quad");
        else
            words += QStringLiteral("%1 of %2 corners").arg(count).arg(corners);
    }
    return words.join(QStringLiteral(", "));
}

QString holesInWords(const HoleCounts &holes)
{
    QStringList words;
    if (holes.overLimit > 0)
        words += QStringLiteral("%1 with more edges than the limit").arg(holes.overLimit);
    if (holes.dangling > 0)
        words += QStringLiteral("%1 with loose ends at their corners").arg(holes.dangling);
    if (holes.unclosed > 0)
        words += QStringLiteral("%1 left unclosed").arg(holes.unclosed);
    return words.isEmpty() ? QStringLiteral("none") : words.join(QStringLiteral(", "));
}

QString pieceFailureInWords(const PieceReport &piece)
{
    switch (piece.outcome) {
    case PieceReport::Built:
        return {};
    case PieceReport::Discarded:
        return QStringLiteral("its mesh was discarded for its faults");
    case PieceReport::NotAdded:
        return QStringLiteral("the host did not take its mesh");
    case PieceReport::NoFace:
        break;
    }
    if (piece.holes.total() > 0)
        return QStringLiteral("cells without a face: ") + holesInWords(piece.holes);
    return QStringLiteral("its curves close no cell");
}

QString acceptedFaultsInWords(int meshes)
{
    return QStringLiteral("WARNING: accepted %1 with faults; --on-faults discard refuses such "
                          "meshes.")
        .arg(meshes == 1 ? QStringLiteral("a mesh") : QStringLiteral("%1 meshes").arg(meshes));
}

QString placeInWords(const orvane::Vector &place)
{
    return QStringLiteral("%1 %2 %3")
        .arg(double(place.x), 0, 'g', 7)
        .arg(double(place.y), 0, 'g', 7)
        .arg(double(place.z), 0, 'g', 7);
}

QVector<int> totalFaces(const RunReport &run)
{
    QVector<int> total;
    for (const PieceReport &piece : run.pieces) {
        if (piece.outcome != PieceReport::Built)
            continue;
        total.resize(qMax(total.size(), piece.facesByCorners.size()));
        for (int corners = 0; corners < piece.facesByCorners.size(); ++corners)
            total[corners] += piece.facesByCorners[corners];
    }
    return total;
}

HoleCounts totalHoles(const RunReport &run)
{
    HoleCounts total;
    for (const PieceReport &piece : run.pieces) {
        total.overLimit += piece.holes.overLimit;
        total.dangling += piece.holes.dangling;
        total.unclosed += piece.holes.unclosed;
    }
    return total;
}
