// SPDX-License-Identifier: MIT
#include "operation/runreport.h"

#include "graph/intersectionnode.h"
#include "graph/intersectionsearch.h"
#include "mesh/buildmesh.h"
#include "operation/currentreport.h"
#include "operation/manualretopooperation.h"

#include <orvane/geometry/mesh.h>

#include <QSet>

namespace {

RunReport &currentReport()
{
    static RunReport report;
    return report;
}

QVector<int> facesByCorners(const orvane::Mesh &mesh)
{
    QVector<int> counts;
    const orvane::PolygonList &polygons = mesh.Polygons();
    for (int p = 0; p < polygons.Count(); ++p) {
        const int corners = polygons.CornerCount(p);
        if (counts.size() <= corners)
            counts.resize(corners + 1);
        ++counts[corners];
    }
    return counts;
}

QString pieceFailure(const QVector<PieceReport> &pieces, int maximumEdges)
{
    HoleCounts holes;
    bool discarded = false;
    for (const PieceReport &piece : pieces) {
        holes.overLimit += piece.holes.overLimit;
        holes.dangling += piece.holes.dangling;
        holes.unclosed += piece.holes.unclosed;
        discarded = discarded || piece.outcome == PieceReport::Discarded;
    }
    if (discarded)
        return ManualRetopoOperation::tr("every mesh was discarded for its faults");
    if (holes.overLimit > 0)
        return ManualRetopoOperation::tr("no closed cell of the curves has at most %1 edges")
            .arg(maximumEdges);
    if (holes.dangling > 0)
        return ManualRetopoOperation::tr("loose ends keep every cell of the curves from closing");
    return ManualRetopoOperation::tr("the curves cross, but close no cell");
}

QString failureOf(const RunReport &report)
{
    for (const PieceReport &piece : report.pieces) {
        if (piece.outcome == PieceReport::Built)
            return {};
    }
    if (report.curves == 0)
        return ManualRetopoOperation::tr("there are no curves");
    if (report.crossings == 0)
        return ManualRetopoOperation::tr("no two curves cross");
    return pieceFailure(report.pieces, report.maximumEdges);
}

} // namespace

const RunReport &lastRunReport()
{
    return currentReport();
}

RunReport &startReport(const QList<orvane::OrvaneCurve *> &curves, int maximumEdges)
{
    RunReport &report = currentReport();
    report = RunReport();
    report.curves = curves.size() - curves.count(nullptr);
    report.maximumEdges = maximumEdges;
    return report;
}

void noteSearch(RunReport &report, const SearchNotes &notes, const QList<IntersectionNode *> &nodes,
                const QList<orvane::OrvaneCurve *> &curves)
{
    report.crossings = nodes.size();
    QSet<const orvane::OrvaneCurve *> crossed;
    for (const IntersectionNode *node : nodes) {
        for (const orvane::OrvaneCurve *curve : node->curves)
            crossed.insert(curve);
    }
    for (int i = 0; i < curves.size(); ++i) {
        if (curves[i] && !crossed.contains(curves[i]))
            report.curvesWithoutCrossing.append(i);
    }
    report.pointsOnCurves = notes.pointsOnCurves;
    report.seconds.sample = notes.sampleSeconds;
    report.seconds.self = notes.selfSeconds;
    report.seconds.cross = notes.crossSeconds;
    report.seconds.link = notes.linkSeconds;
}

PieceReport &notePiece(const BuiltPiece &piece, const IntersectionNode &seed)
{
    PieceReport report;
    report.nodes = piece.nodes;
    report.place = seed.position();
    report.holes = piece.holes;
    if (piece.mesh) {
        report.outcome = PieceReport::NotAdded;
        report.facesByCorners = facesByCorners(*piece.mesh);
    } else if (piece.builderFaces > 0) {
        report.outcome = PieceReport::Discarded;
    }
    currentReport().pieces.append(report);
    return currentReport().pieces.last();
}

void finishReport(RunReport &report)
{
    report.failure = failureOf(report);
}
