// SPDX-License-Identifier: MIT
#include "operation/nestedpieces.h"

#include "graph/graphwalk.h"
#include "operation/facecells.h"
#include "operation/runreport.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/math/axisalignedboundingbox.h>

#include <QHash>
#include <QPair>
#include <QSet>

#include <algorithm>
#include <cmath>

using orvane::Vector;

namespace {

const float GreatestBulge = 0.5f; // of the surface over a face, as a fraction of its diagonal

struct Face
{
    int piece = -1;
    int cell = -1; // which of the piece's, of several faces when it was split
    QVector<Vector> corners;
    Vector normal; // Newell's area vector, of length 1
    orvane::AxisAlignedBoundingBox box;
    float reach = 0.0f; // how far off its plane a point still lies on it
};

Face faceOf(const orvane::Mesh &mesh, int polygon)
{
    Face face;
    const orvane::PolygonList &polygons = mesh.Polygons();
    for (int i = 0; i < polygons.CornerCount(polygon); ++i)
        face.corners.append(mesh.WorldVertexPosition(polygons.Corners(polygon)[i]));
    for (int i = 0; i < face.corners.size(); ++i) {
        const Vector &next = face.corners[i + 1 == face.corners.size() ? 0 : i + 1];
        face.normal += (face.corners[i] - face.corners[0]) & (next - face.corners[0]);
        face.box.Extend(face.corners[i]);
    }
    face.normal.Normalize();
    face.reach = GreatestBulge * face.box.Diagonal();
    face.box.Grow(face.reach);
    return face;
}

bool isInside(const orvane::AxisAlignedBoundingBox &box, const Vector &p)
{
    return box.minimum.x <= p.x && p.x <= box.maximum.x && box.minimum.y <= p.y
           && p.y <= box.maximum.y && box.minimum.z <= p.z && p.z <= box.maximum.z;
}

// Seen along the face's normal, by the crossings of a ray with its sides.
bool liesOver(const Face &face, const Vector &p)
{
    if (!isInside(face.box, p) || std::fabs(Dot(p - face.corners[0], face.normal)) > face.reach)
        return false;
    const Vector side = std::fabs(face.normal.x) < 0.9f ? Vector(1, 0, 0) : Vector(0, 1, 0);
    const Vector u = Normalized(face.normal & side);
    const Vector v = face.normal & u;
    bool inside = false;
    for (int i = 0, j = face.corners.size() - 1; i < face.corners.size(); j = i++) {
        const Vector a = face.corners[i] - p;
        const Vector b = face.corners[j] - p;
        const float av = Dot(a, v);
        const float bv = Dot(b, v);
        if ((av > 0.0f) == (bv > 0.0f))
            continue;
        const float t = av / (av - bv);
        if (Dot(a, u) + t * (Dot(b, u) - Dot(a, u)) > 0.0f)
            inside = !inside;
    }
    return inside;
}

// A place of a piece, looked up among the faces of others.
struct Probe
{
    Vector place;
    int piece;
};

// From low x to high; places that are nowhere are left out.
QVector<Probe> inOrder(QVector<Probe> probes)
{
    const auto isNowhere = [](const Probe &probe) {
        return !std::isfinite(probe.place.x);
    };
    probes.erase(std::remove_if(probes.begin(), probes.end(), isNowhere), probes.end());
    std::stable_sort(probes.begin(), probes.end(),
                     [](const Probe &a, const Probe &b) { return a.place.x < b.place.x; });
    return probes;
}

// Does another piece start where a face of the mesh could lie over it? Most pieces lie apart, and
// their faces need no look. A box that is nowhere keeps nothing out.
bool mayBeAround(const orvane::Mesh &mesh, int piece, const QVector<Probe> &starts)
{
    orvane::AxisAlignedBoundingBox box;
    for (int vertex = 0; vertex < mesh.VertexCount(); ++vertex)
        box.Extend(mesh.WorldVertexPosition(vertex));
    box.Grow(GreatestBulge * box.Diagonal());
    const Vector &low = box.minimum;
    const Vector &high = box.maximum;
    auto start = std::lower_bound(starts.cbegin(), starts.cend(), low.x,
                                  [](const Probe &probe, float x) { return probe.place.x < x; });
    for (; start != starts.cend() && !(start->place.x > high.x); ++start) {
        const Vector &p = start->place;
        if (start->piece != piece && !(p.y < low.y || p.y > high.y || p.z < low.z || p.z > high.z))
            return true;
    }
    return false;
}

// Faces by the x at which they begin, so that a sweep along x meets few of them at a time.
QVector<Face> facesInOrder(const RunReport &report, const QList<IntersectionNode *> &seeds,
                           const QVector<orvane::Geometry *> &geometries,
                           const QVector<Probe> &starts)
{
    QVector<Face> faces;
    int built = 0;
    for (int piece = 0; piece < report.pieces.size(); ++piece) {
        if (report.pieces[piece].outcome != PieceReport::Built)
            continue;
        const orvane::Mesh &mesh = *geometries[built++]->CurrentLevel();
        if (!mayBeAround(mesh, piece, starts))
            continue;
        const QVector<int> cells = cellsOfPolygons(mesh, seeds[piece]);
        for (int polygon = 0; polygon < cells.size(); ++polygon) {
            Face face = faceOf(mesh, polygon);
            if (!std::isfinite(face.box.minimum.x)) // nothing lies over it, nor can it be sorted
                continue;
            face.piece = piece;
            face.cell = cells[polygon];
            faces.append(face);
        }
    }
    std::sort(faces.begin(), faces.end(),
              [](const Face &a, const Face &b) { return a.box.minimum.x < b.box.minimum.x; });
    return faces;
}

using Cell = QPair<int, int>; // its piece, its number there

// Visits the probes, which are in order, each with the cells of other pieces over which it lies.
template <typename Visitor>
void sweep(const QVector<Probe> &probes, const QVector<Face> &faces, Visitor visit)
{
    QVector<const Face *> active;
    int next = 0;
    for (const Probe &probe : probes) {
        while (next < faces.size() && faces[next].box.minimum.x <= probe.place.x)
            active.append(&faces[next++]);
        const auto isPast = [&](const Face *face) {
            return face->box.maximum.x < probe.place.x;
        };
        active.erase(std::remove_if(active.begin(), active.end(), isPast), active.end());
        QSet<Cell> cells;
        for (const Face *face : qAsConst(active)) {
            if (face->piece != probe.piece && liesOver(*face, probe.place))
                cells.insert({face->piece, face->cell});
        }
        visit(probe, cells);
    }
}

} // namespace

void noteNestedPieces(RunReport &report, const QList<IntersectionNode *> &seeds,
                      const QVector<orvane::Geometry *> &geometries)
{
    if (seeds.size() < 2)
        return;
    QVector<Probe> starts;
    for (int piece = 0; piece < seeds.size(); ++piece)
        starts.append({seeds[piece]->position(), piece});
    starts = inOrder(starts);
    const QVector<Face> faces = facesInOrder(report, seeds, geometries, starts);
    // Most pieces are out at their first node; only of the others every node is looked up.
    QVector<Probe> nodes;
    sweep(starts, faces, [&](const Probe &start, const QSet<Cell> &cells) {
        if (cells.isEmpty())
            return;
        walkGraph(seeds[start.piece], [&](const IntersectionNode *node) {
            nodes.append({node->position(), start.piece});
        });
    });
    QHash<QPair<int, Cell>, int> nodesOver; // how many nodes of a piece lie over a cell
    sweep(inOrder(nodes), faces, [&](const Probe &node, const QSet<Cell> &cells) {
        for (const Cell &cell : cells)
            ++nodesOver[{node.piece, cell}];
    });
    for (auto over = nodesOver.cbegin(); over != nodesOver.cend(); ++over) {
        PieceReport &piece = report.pieces[over.key().first];
        const int around = over.key().second.first;
        if (over.value() == piece.nodes)
            piece.inFaceOfPiece = qMax(piece.inFaceOfPiece, around);
    }
}
