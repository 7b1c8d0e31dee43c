// SPDX-License-Identifier: MIT
#include "mesh/meshbuilder.h"

#include "mesh/polygontessellator.h"
#include "ui/validatenewmesh.h"

#include <orvane/geometry/mesh.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/math/matrix.h>

#include <QScopedPointer>

#include <algorithm>
#include <cmath>

using orvane::Topology;
using orvane::Vector;

namespace {

const int ExpectedVertices = 100;               // count
const int MaximumWholeCorners = 9;              // of a convex face
const double ConcaveAngle = 3.041592653589793;  // radians, pi - 0.1
const double AgreeingAngle = 2.827433388230814; // radians, 0.9 pi
const double ClearlyConvex = -0.995;            // a little more than the cosine of the one
const double ClearlyAgreeing = -0.951;          // and of the other

enum class MeshKind { None, Triangles, Quads, Mixed, Invalid };

MeshKind kindOf(const FaceList &faces)
{
    MeshKind kind = MeshKind::None;
    for (int i = 0; i < faces.size() && kind != MeshKind::Mixed; ++i) {
        const int corners = faces.cornerCount(i);
        if (corners < 3)
            return MeshKind::Invalid;
        const MeshKind own = corners == 3   ? MeshKind::Triangles
                             : corners == 4 ? MeshKind::Quads
                                            : MeshKind::Mixed;
        kind = kind == MeshKind::None || kind == own ? own : MeshKind::Mixed;
    }
    return kind;
}

int meshFaceCount(const FaceList &faces, MeshKind kind)
{
    if (kind != MeshKind::Mixed)
        return faces.size();
    int count = 0;
    for (int i = 0; i < faces.size(); ++i)
        count += faces.cornerCount(i) - 2;
    return count;
}

// The angle is asked for only where its cosine leaves a doubt. Left unclamped: a dot product a hair
// beyond 1 gives no number, which no comparison accepts.
bool isConcaveTurn(const Vector &normal, const Vector &reference)
{
    const auto cosine = double(Dot(normal, reference));
    return !(cosine > ClearlyConvex) && std::acos(cosine) > ConcaveAngle;
}

bool isAgreeing(const Vector &normal, const Vector &reference)
{
    const auto cosine = double(Dot(normal, reference));
    return (cosine > ClearlyAgreeing && cosine <= 1.0) || std::acos(cosine) < AgreeingAngle;
}

// From world space into the polygon's own plane. The frame is a mirrored one: what runs
// counter-clockwise about its normals runs clockwise in x and y there.
orvane::Matrix planeFrame(const Vector &faceNormal, const Vector &edge)
{
    const Vector e = Normalized(edge);
    const Vector u = Normalized(faceNormal & e);
    orvane::Matrix frame;
    frame.SetRow(0, u);
    frame.SetRow(1, Normalized(faceNormal & u));
    frame.SetRow(2, -faceNormal);
    frame.Invert();
    return frame;
}

} // namespace

MeshBuilder::MeshBuilder()
{
    positions.reserve(ExpectedVertices);
    normals.reserve(ExpectedVertices);
}

MeshBuilder::~MeshBuilder() = default;

void MeshBuilder::addPolygon(const QVector<int> &face)
{
    const bool needsPositions = face.size() > 4;
    if (face.size() < 3 || (needsPositions && positions.isEmpty()))
        return;
    const bool staysWhole =
        !needsPositions || (face.size() <= MaximumWholeCorners && !isConcave(face));
    if (staysWhole)
        faces.append(face);
    else
        addTessellated(face);
}

void MeshBuilder::addTessellated(const QVector<int> &face)
{
    const orvane::Matrix frame =
        planeFrame(polygonNormal(face), positions[face[0]] - positions[face[1]]);
    PolygonTessellator tessellator;
    for (int vertex : face)
        tessellator.addPoint(frame.Transform(positions[vertex], 1.0f));
    QList<int> corners;
    tessellator.process(corners);
    QVector<int> triangle(3);
    for (int i = 0; i + 2 < corners.size(); i += 3) {
        Vector surface;
        for (int corner = 0; corner < 3; ++corner) {
            triangle[corner] = face[corners[i + corner]];
            surface += normals[triangle[corner]];
        }
        surface.Normalize();
        if (!(Dot(polygonNormal(triangle), surface) < 0.0f))
            std::swap(triangle.first(), triangle.last());
        faces.append(triangle);
    }
}

Vector MeshBuilder::cornerNormal(const QVector<int> &face, int corner) const
{
    const int previous = corner == 0 ? face.size() - 1 : corner - 1;
    const int next = corner + 1 == face.size() ? 0 : corner + 1;
    const Vector p = positions[face[corner]];
    return Normalized((positions[face[previous]] - p) & (positions[face[next]] - p));
}

bool MeshBuilder::isConcave(const QVector<int> &face) const
{
    if (face.isEmpty())
        return false;
    const Vector reference = cornerNormal(face, 0);
    for (int i = 1; i < face.size(); ++i) {
        if (isConcaveTurn(cornerNormal(face, i), reference))
            return true;
    }
    return false;
}

Vector MeshBuilder::polygonNormal(const QVector<int> &face) const
{
    if (face.isEmpty())
        return {};
    const Vector reference = cornerNormal(face, 0);
    Vector sum = reference;
    int agreeing = 1;
    for (int i = 1; i < face.size(); ++i) {
        const Vector normal = cornerNormal(face, i);
        if (isAgreeing(normal, reference)) {
            sum += normal;
            ++agreeing;
        }
    }
    sum.Normalize();
    return agreeing == 1 && face.size() >= 4 ? -sum : sum;
}

orvane::Mesh *MeshBuilder::createMesh() const
{
    const MeshKind kind = kindOf(faces);
    if (kind == MeshKind::None || kind == MeshKind::Invalid)
        return nullptr;
    const Topology::FaceType type = kind == MeshKind::Quads ? Topology::Quads : Topology::Triangles;
    const int count = meshFaceCount(faces, kind);
    QScopedPointer<orvane::Mesh> mesh(orvane::Kernel()->Scene()->CreateMesh(type));
    mesh->SetFaceCount(count);
    mesh->SetVertexCount(positions.size());
    mesh->SetFakeTriangleCount(count - faces.size());
    mesh->SetUVCount(0);
    for (int v = 0; v < positions.size(); ++v) {
        mesh->SetVertexPosition(v, positions[v]);
        mesh->SetVertexNormal(v, normals[v]);
    }
    fillFaces(*mesh);
    mesh->SetName(QStringLiteral("Sketched Mesh"));
    mesh->Update(true, 0); // the polygons that the check would have to find for itself
    return validateNewMesh(mesh.data()) ? mesh.take() : nullptr;
}

void MeshBuilder::fillFaces(orvane::Mesh &mesh) const
{
    int t = 0;
    for (int i = 0; i < faces.size(); ++i) {
        const int *face = faces.corners(i);
        if (mesh.IsQuads()) {
            for (int corner = 0; corner < 4; ++corner)
                mesh.SetQuadIndex(t, corner, face[corner]);
            ++t;
            continue;
        }
        for (int k = 2; k < faces.cornerCount(i); ++k, ++t) {
            mesh.SetTriangleIndex(t, 0, face[0]);
            mesh.SetTriangleIndex(t, 1, face[k - 1]);
            mesh.SetTriangleIndex(t, 2, face[k]);
            if (k > 2) // the first triangle of a fan stands for the whole polygon
                mesh.SetFakeTriangle(t, true);
        }
    }
}
