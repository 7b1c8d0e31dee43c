// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshchecker.h"

#include "host/meshchecker/connectionfaults.h"
#include "host/meshchecker/facefaults.h"
#include "host/meshchecker/meshshape.h"
#include "host/meshchecker/uvfaults.h"

#include <orvane/geometry/mesh.h>

#include <QCoreApplication>

namespace orvane {

namespace {

using Words = QString (*)(const char *text);

QString plain(const char *text)
{
    return QString::fromUtf8(text);
}

QString inUsersLanguage(const char *text)
{
    return QCoreApplication::translate("MeshFault", text);
}

const char *nameOf(int bit)
{
    switch (bit) {
    case MeshChecker::HighValence:
        return QT_TRANSLATE_NOOP("MeshFault", "high-valence vertex");
    case MeshChecker::NonManifoldEdge:
        return QT_TRANSLATE_NOOP("MeshFault", "edge shared by more than two faces");
    case MeshChecker::VertexSplice:
        return QT_TRANSLATE_NOOP("MeshFault", "vertex shared by separate fans of faces");
    case MeshChecker::TwoSidedFace:
        return QT_TRANSLATE_NOOP("MeshFault", "two-sided face");
    case MeshChecker::TooManySides:
        return QT_TRANSLATE_NOOP("MeshFault", "face of more than 16 sides");
    case MeshChecker::BoundaryValence:
        return QT_TRANSLATE_NOOP("MeshFault", "vertex of more than two boundary edges");
    case MeshChecker::InteriorValenceTwo:
        return QT_TRANSLATE_NOOP("MeshFault", "interior vertex of valence two");
    case MeshChecker::ZeroLengthEdge:
        return QT_TRANSLATE_NOOP("MeshFault", "zero-length edge");
    case MeshChecker::LaminaFaces:
        return QT_TRANSLATE_NOOP("MeshFault", "lamina face");
    case MeshChecker::UVCrossing:
        return QT_TRANSLATE_NOOP("MeshFault", "face across a UV tile boundary");
    case MeshChecker::MissingUVs:
        return QT_TRANSLATE_NOOP("MeshFault", "face without UVs");
    case MeshChecker::DegenerateFace:
        return QT_TRANSLATE_NOOP("MeshFault", "degenerate face");
    default:
        return "";
    }
}

QString firstPlaceOf(const MeshFault &fault, Words words)
{
    if (!fault.vertices.isEmpty())
        return words(QT_TRANSLATE_NOOP("MeshFault", "vertex %1")).arg(fault.vertices.first());
    if (!fault.edges.isEmpty())
        return words(QT_TRANSLATE_NOOP("MeshFault", "edge %1-%2"))
            .arg(fault.edges.first().a)
            .arg(fault.edges.first().b);
    if (!fault.polygons.isEmpty())
        return words(QT_TRANSLATE_NOOP("MeshFault", "polygon %1 (mesh face %2)"))
            .arg(fault.polygons.first().polygon)
            .arg(fault.polygons.first().meshFace);
    return QString();
}

} // namespace

QString MeshFault::Name() const
{
    return plain(nameOf(bit));
}

QString MeshFault::FirstPlace() const
{
    return firstPlaceOf(*this, plain);
}

QString MeshFault::Text() const
{
    return inUsersLanguage(QT_TRANSLATE_NOOP("MeshFault", "%1: %2, the first is %3"))
        .arg(inUsersLanguage(nameOf(bit)))
        .arg(Count())
        .arg(firstPlaceOf(*this, inUsersLanguage));
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
