// SPDX-License-Identifier: MIT
#include "host/files/meshfile.h"

#include "host/files/assimpmesh.h"
#include "host/files/binarymesh.h"
#include "host/files/fanstart.h"
#include "host/files/gltfmesh.h"
#include "host/files/objmesh.h"
#include "host/files/plycheck.h"
#include "host/files/safefile.h"

#include <orvane/base/log.h>
#include <orvane/geometry/geometry.h>

#include <QFileInfo>
#include <QSet>

namespace orvane {

namespace {

using MeshWriter = QByteArray (*)(const QVector<PolygonMesh> &);

struct WriterOfSuffix
{
    QLatin1String suffix;
    MeshWriter writer;
};

const WriterOfSuffix Writers[] = {
    {QLatin1String("obj"), objTextOf},   {QLatin1String("ply"), plyBytesOf},
    {QLatin1String("stl"), stlBytesOf},  {QLatin1String("glb"), glbBytesOf},
    {QLatin1String("gltf"), gltfTextOf},
};

QString suffixOf(const QString &path)
{
    return QFileInfo(path).suffix().toLower();
}

MeshWriter writerFor(const QString &path)
{
    const QString suffix = suffixOf(path);
    for (const WriterOfSuffix &entry : Writers) {
        if (suffix == entry.suffix)
            return entry.writer;
    }
    return nullptr;
}

// What is wrong with the file; empty when nothing is.
QString readPolygons(const QString &path, const QByteArray &bytes, PolygonMesh *mesh)
{
    const QString suffix = suffixOf(path);
    QString error;
    if (suffix == QLatin1String("obj")) {
        readObjMesh(bytes, mesh, &error);
        return error;
    }
    if (suffix == QLatin1String("ply") && !checkPly(bytes, &error))
        return error;
    readAssimpMesh(path, mesh, &error);
    return error;
}

// Body, Body, Body-2 become Body, Body-3, Body-2: a name that is taken is never given.
void makeNamesDiffer(QVector<PolygonMesh> *meshes)
{
    QSet<QString> taken;
    for (PolygonMesh &mesh : *meshes) {
        mesh.name = mesh.name.simplified();
        if (mesh.name.isEmpty())
            mesh.name = QStringLiteral("Mesh");
        taken.insert(mesh.name);
    }
    QSet<QString> given;
    for (PolygonMesh &mesh : *meshes) {
        const QString name = mesh.name;
        for (int n = 2; given.contains(mesh.name); ++n) {
            const QString numbered = name + QLatin1Char('-') + QString::number(n);
            if (!taken.contains(numbered))
                mesh.name = numbered;
        }
        taken.insert(mesh.name);
        given.insert(mesh.name);
    }
}

// Of the first vertex that has no finite place; empty when there is none.
QString brokenVertexIn(const PolygonMesh &mesh)
{
    for (int v = 0; v < mesh.positions.size(); ++v) {
        if (!mesh.positions[v].IsFinite())
            return QStringLiteral("vertex %1 of mesh \"%2\" is at no finite place.")
                .arg(v + 1)
                .arg(mesh.name);
    }
    return {};
}

} // namespace

Geometry *readMesh(const QString &path, QString *error, int *leftOut)
{
    QByteArray bytes;
    if (!readWhole(path, &bytes, error))
        return nullptr;
    PolygonMesh mesh;
    mesh.name = QFileInfo(path).completeBaseName();
    QString problem = readPolygons(path, bytes, &mesh);
    const int read = polygonCount(mesh);
    const int dropped = problem.isEmpty() ? dropFlatPolygons(&mesh) : 0;
    if (problem.isEmpty() && read == 0)
        problem = QStringLiteral("the file has no faces; expected at least one.");
    else if (problem.isEmpty() && dropped == read)
        problem = QStringLiteral("none of its %1 faces has three different corners; expected at "
                                 "least one that has.")
                      .arg(read);
    if (!problem.isEmpty()) {
        *error = aboutFile(path, problem);
        return nullptr;
    }
    if (leftOut)
        *leftOut = dropped;
    if (dropped > 0)
        log(aboutFile(path, QStringLiteral("%1 of %2 faces have fewer than three different corners "
                                           "and were left out.")
                                .arg(dropped)
                                .arg(read)));
    dropLooseVertices(&mesh);
    startAtFanCorners(&mesh);
    return geometryOf(mesh);
}

bool isWritableMeshFormat(const QString &path, QString *error)
{
    if (writerFor(path))
        return true;
    *error = aboutFile(path, QStringLiteral("meshes are not written in this format; expected a "
                                            "name that ends in .obj, .ply, .stl, .glb or .gltf."));
    return false;
}

bool writeMeshes(const QVector<const Geometry *> &geometries, const QString &path, QString *error)
{
    if (!isWritableMeshFormat(path, error))
        return false;
    const MeshWriter writer = writerFor(path);
    QString problem;
    QVector<PolygonMesh> meshes;
    for (const Geometry *geometry : geometries) {
        const PolygonMesh mesh = polygonMeshOf(*geometry);
        if (polygonCount(mesh) > 0)
            meshes.append(mesh);
        if (problem.isEmpty())
            problem = brokenVertexIn(mesh);
    }
    if (problem.isEmpty() && meshes.isEmpty())
        problem = QStringLiteral("there are no faces to write.");
    if (!problem.isEmpty()) {
        *error = aboutFile(path, problem);
        return false;
    }
    makeNamesDiffer(&meshes);
    return writeWhole(path, writer(meshes), error);
}

} // namespace orvane
