// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshchecker.h"

#include "host/meshchecker/connectionfaults.h"
#include "host/meshchecker/facefaults.h"
#include "host/meshchecker/meshshape.h"
#include "host/meshchecker/uvfaults.h"

#include <orvane/geometry/mesh.h>

namespace orvane {

QString MeshFault::Name() const
{
    switch (bit) {
    case MeshChecker::HighValence:
        return QStringLiteral("high-valence vertex");
    case MeshChecker::NonManifoldEdge:
        return QStringLiteral("edge shared by more than two faces");
    case MeshChecker::VertexSplice:
        return QStringLiteral("vertex shared by separate fans of faces");
    case MeshChecker::TwoSidedFace:
        return QStringLiteral("two-sided face");
    case MeshChecker::TooManySides:
        return QStringLiteral("face of more than 16 sides");
    case MeshChecker::BoundaryValence:
        return QStringLiteral("vertex of more than two boundary edges");
    case MeshChecker::InteriorValenceTwo:
        return QStringLiteral("interior vertex of valence two");
    case MeshChecker::ZeroLengthEdge:
        return QStringLiteral("zero-length edge");
    case MeshChecker::LaminaFaces:
        return QStringLiteral("lamina face");
    case MeshChecker::UVCrossing:
        return QStringLiteral("face across a UV tile boundary");
    case MeshChecker::MissingUVs:
        return QStringLiteral("face without UVs");
    case MeshChecker::DegenerateFace:
        return QStringLiteral("degenerate face");
    default:
        return QString();
    }
}

QString MeshFault::FirstPlace() const
{
    if (!vertices.isEmpty())
        return QStringLiteral("vertex %1").arg(vertices.first());
    if (!edges.isEmpty())
        return QStringLiteral("edge %1-%2").arg(edges.first().a).arg(edges.first().b);
    if (!polygons.isEmpty())
        return QStringLiteral("polygon %1 (mesh face %2)")
            .arg(polygons.first().polygon)
            .arg(polygons.first().meshFace);
    return QString();
}

int MeshChecker::Validate(const Mesh *mesh) const
{
    int faults = 0;
    const QVector<MeshFault> found = Find(mesh);
    for (const MeshFault &fault : found)
        faults |= fault.bit;
    return faults;
}

QVector<MeshFault> MeshChecker::Find(const Mesh *mesh) const
{
    if (!mesh)
        return {};
    const MeshShape shape(*mesh);
    const MeshFault kinds[] = {
        highValence(shape),        nonManifoldEdges(shape), vertexSplices(shape),
        twoSidedFaces(shape),      tooManySides(shape),     boundaryValence(shape),
        interiorValenceTwo(shape), zeroLengthEdges(shape),  laminaFaces(shape),
        uvCrossings(shape),        missingUVs(shape),       degenerateFaces(shape),
    };
    QVector<MeshFault> found;
    for (const MeshFault &kind : kinds) {
        if (kind.Count() > 0)
            found.append(kind);
    }
    return found;
}

} // namespace orvane
