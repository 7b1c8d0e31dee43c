// SPDX-License-Identifier: MIT
#include "bench/support/benchscene.h"

#include "bench/inputs/inputshapes.h"
#include "graph/curvesampling.h"
#include "host/files/curvebinding.h"
#include "host/files/curvefile.h"
#include "host/files/meshfile.h"
#include "tests/support/models.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QStringList>

#include <cmath>

using orvane::OrvaneCurve;
using orvane::SubdivisionLevel;
using orvane::Vector;

namespace {

const double MeshOfSide = 1.5;     // side of the mesh: it holds the drawing however it is turned
const float BindTolerance = 0.02f; // fraction of the mesh's diagonal

// Quads of side 1 about the origin; quad (i, j) has the number j * quads + i.
SubdivisionLevel *flatMesh(int quads)
{
    auto *mesh = new SubdivisionLevel(orvane::Topology::Quads); // the geometry's
    const int points = quads + 1;
    mesh->SetVertexCount(points * points);
    for (int v = 0; v < points * points; ++v)
        mesh->SetVertexPosition(v, {float(v % points) - 0.5f * float(quads),
                                    float(v / points) - 0.5f * float(quads), 0.0f});
    mesh->SetFaceCount(quads * quads);
    for (int face = 0; face < quads * quads; ++face) {
        const int first = face / quads * points + face % quads;
        mesh->SetQuadIndex(face, 0, first);
        mesh->SetQuadIndex(face, 1, first + 1);
        mesh->SetQuadIndex(face, 2, first + points + 1);
        mesh->SetQuadIndex(face, 3, first + points);
    }
    mesh->RecomputeNormals(false);
    mesh->Update(true, 0);
    return mesh;
}

orvane::CurvePoint pointOn(const orvane::Mesh &mesh, int quads, const Vector &place)
{
    const float x = place.x + 0.5f * float(quads);
    const float y = place.y + 0.5f * float(quads);
    const int column = qBound(0, int(x), quads - 1);
    const int row = qBound(0, int(y), quads - 1);
    return orvane::CurvePoint(
        orvane::SurfacePoint(mesh, row * quads + column, x - float(column), y - float(row)));
}

QString meshFileOf(const QString &net)
{
    if (net.startsWith(QLatin1String("spot")))
        return modelFile(QStringLiteral("spot_triangles.obj"));
    return modelFile(QString(net).replace(QLatin1String("_net"), QString())
                     + QStringLiteral(".obj"));
}

} // namespace

QStringList BenchScene::modelNets()
{
    return {QStringLiteral("bunny_net"), QStringLiteral("fandisk_net"), QStringLiteral("spot_net"),
            QStringLiteral("spot_strokes")};
}

BenchScene::BenchScene(const Drawing &drawing)
{
    orvane::Kernel()->NewScene();
    const int quads = int(std::ceil(MeshOfSide * drawing.side)) + 2;
    auto *geometry = new orvane::Geometry; // the scene's
    m_mesh = flatMesh(quads);
    geometry->AddLevel(static_cast<SubdivisionLevel *>(m_mesh));
    orvane::Kernel()->Scene()->AddGeometry(geometry);
    for (const QVector<Vector> &stroke : drawing.strokes) {
        auto *curve = new OrvaneCurve; // the scene's
        for (const Vector &place : stroke)
            curve->AppendPoint(pointOn(*m_mesh, quads, place));
        orvane::Kernel()->Scene()->AddCurve(curve);
        m_curves.append(curve);
    }
}

BenchScene::BenchScene(const QString &modelNet)
{
    orvane::Kernel()->NewScene();
    const QString meshPath = meshFileOf(modelNet);
    const QString curvePath = modelFile(modelNet + QStringLiteral(".json"));
    if (meshPath.isEmpty() || curvePath.isEmpty())
        return;
    QString error;
    orvane::Geometry *geometry = orvane::readMesh(meshPath, &error);
    const QVector<OrvaneCurve *> curves = orvane::readCurves(curvePath, &error);
    if (!geometry || curves.isEmpty())
        qFatal("%s", qPrintable(error));
    orvane::Kernel()->Scene()->AddGeometry(geometry);
    m_mesh = geometry->CurrentLevel();
    for (OrvaneCurve *curve : curves)
        orvane::Kernel()->Scene()->AddCurve(curve);
    orvane::bindCurves(curves, *m_mesh, BindTolerance * m_mesh->Bounds().Diagonal());
    m_curves = curves.toList();
}

int BenchScene::segmentCount() const
{
    int count = 0;
    for (const OrvaneCurve *curve : m_curves)
        count += qMax(0, curve->PointCount() - 1);
    return count;
}

std::vector<std::vector<Vector>> BenchScene::polylines() const
{
    std::vector<std::vector<Vector>> lines;
    for (const OrvaneCurve *curve : m_curves) {
        QList<orvane::CurvePoint> samples;
        sampleCurve(*curve, samples, 0.0f);
        std::vector<Vector> line;
        for (const orvane::CurvePoint &sample : qAsConst(samples))
            line.push_back(samplePosition(sample));
        lines.push_back(line);
    }
    return lines;
}
