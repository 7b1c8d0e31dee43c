// SPDX-License-Identifier: MIT
#include "operation/nestedpieces.h"

#include "graph/graphwalk.h"
#include "operation/runreport.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/math/axisalignedboundingbox.h>

#include <algorithm>
#include <cmath>

using orvane::Vector;

namespace {

const float GreatestBulge = 0.5f; // of the surface over a face, as a fraction of its diagonal

struct Face
{
    int piece = -1;
    QVector<Vector> corners;
    Vector normal; // Newell's area vector, of length 1
    orvane::AxisAlignedBoundingBox box;
    float reach = 0.0f; // how far off its plane a point still lies on it
};

Face faceOf(const orvane::Mesh &mesh, int polygon, int piece)
{
    Face face;
    face.piece = piece;
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

bool liesWholeOver(const Face &face, IntersectionNode *seed)
{
    bool all = true;
    walkGraph(seed, 0, [&](const IntersectionNode *node) {
        all = all && liesOver(face, node->position());
    });
    return all;
}

// Faces by the x at which they begin, so that a sweep along x meets few of them at a time.
QVector<Face> facesInOrder(const RunReport &report, const QVector<orvane::Geometry *> &geometries)
{
    QVector<Face> faces;
    int built = 0;
    for (int piece = 0; piece < report.pieces.size(); ++piece) {
        if (report.pieces[piece].outcome != PieceReport::Built)
            continue;
        const orvane::Mesh &mesh = *geometries[built++]->CurrentLevel();
        for (int polygon = 0; polygon < mesh.Polygons().Count(); ++polygon)
            faces.append(faceOf(mesh, polygon, piece));
    }
    std::sort(faces.begin(), faces.end(), [](const Face &a, const Face &b) {
        return a.box.minimum.x < b.box.minimum.x;
    });
    return faces;
}

} // namespace

void noteNestedPieces(RunReport &report, const QList<IntersectionNode *> &seeds,
                      const QVector<orvane::Geometry *> &geometries)
{
    if (seeds.size() < 2)
        return;
    const QVector<Face> faces = facesInOrder(report, geometries);
    QVector<int> pieces;
    for (int piece = 0; piece < seeds.size(); ++piece) {
        if (std::isfinite(seeds[piece]->position().x))
            pieces.append(piece);
    }
    std::stable_sort(pieces.begin(), pieces.end(), [&seeds](int a, int b) {
        return seeds[a]->position().x < seeds[b]->position().x;
    });

    QVector<const Face *> active;
    int next = 0;
    for (int piece : qAsConst(pieces)) {
        const Vector &place = seeds[piece]->position();
        while (next < faces.size() && faces[next].box.minimum.x <= place.x)
            active.append(&faces[next++]);
        const auto isPast = [&place](const Face *face) { return face->box.maximum.x < place.x; };
        active.erase(std::remove_if(active.begin(), active.end(), isPast), active.end());
        for (const Face *face : qAsConst(active)) {
            if (face->piece != piece && liesOver(*face, place) && liesWholeOver(*face, seeds[piece]))
                report.pieces[piece].inFaceOfPiece = face->piece;
        }
    }
}
