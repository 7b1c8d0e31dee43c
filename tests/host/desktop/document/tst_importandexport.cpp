// SPDX-License-Identifier: MIT
#include "tests/host/desktop/document/documenttest.h"

#include "tests/support/models.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QFile>

using namespace orvane;

namespace {

class ImportAndExport : public DocumentTest
{
protected:
    QVector<PlaceList> scenePolygons(bool triangles) const
    {
        const Mesh &mesh = *Kernel()->Scene()->Geometries().first()->CurrentLevel();
        return triangles ? fanPlaces(mesh) : polygonPlaces(mesh);
    }
    void exportMeshes(const QString &name)
    {
        EXPECT_TRUE(document.ExportMeshes(name, &error)) << qPrintable(error);
    }
    void exportCurves(const QString &name)
    {
        EXPECT_TRUE(document.ExportCurves(name, &error)) << qPrintable(error);
    }
    // How many objects an exported OBJ file has.
    int objectsIn(const QString &name) const
    {
        const QByteArray text = bytesOf(name);
        return text.count("\no ") + text.startsWith("o ");
    }
};

const char *const MeshFormats[] = {"obj", "ply", "stl", "glb", "gltf"};

} // namespace

TEST_F(ImportAndExport, aMeshComesBackThroughEveryFormat)
{
    for (const char *format : MeshFormats) {
        for (const bool quads : {true, false}) {
            const bool triangles = strlen(format) != 3 || *format == 's' || *format == 'g';
            open({meshFile(QStringLiteral("start.obj"), quads ? cube() : polygonOfFakes(7))});
            const QVector<PlaceList> before = scenePolygons(triangles);
            const QString name = QStringLiteral("out.") + QLatin1String(format);
            exportMeshes(name);
            open({name});
            EXPECT_TRUE(samePlaces(scenePolygons(triangles), before)) << format << quads;
        }
    }
}

TEST_F(ImportAndExport, curvesComeBackThroughEveryFormat)
{
    open({ballFile(), curveFile()});
    for (const char *format : {"json", "obj"}) {
        const QString name = QStringLiteral("out.") + QLatin1String(format);
        const QVector<OrvaneCurve *> before = sceneCurves();
        exportCurves(name);
        const FileReport report = document.ImportCurves(name);
        EXPECT_EQ(report.curves, 2);
        const QVector<OrvaneCurve *> after = sceneCurves();
        ASSERT_EQ(after.size(), before.size() + 2);
        for (int c = 0; c < 2; ++c) {
            const OrvaneCurve &a = *before[c];
            const OrvaneCurve &b = *after[before.size() + c];
            EXPECT_EQ(a.Name(), b.Name());
            EXPECT_EQ(a.Closed(), b.Closed());
            ASSERT_EQ(a.PointCount(), b.PointCount());
            for (int i = 0; i < a.PointCount(); ++i)
                EXPECT_LT((a.PointAt(i).position - b.PointAt(i).position).Length(), 1e-6f);
        }
        EXPECT_TRUE(Kernel()->Undo());
    }
}

TEST_F(ImportAndExport, curvesArePutOntoTheDrawingSurfaceInOneStep)
{
    open({ballFile()});
    const QByteArray bare = sceneBytes();
    const FileReport report = document.ImportCurves(curveFile());
    EXPECT_TRUE(report.done);
    EXPECT_EQ(report.curves, 2);
    EXPECT_EQ(report.binding.points, 7);
    EXPECT_EQ(report.binding.bound, 6);
    EXPECT_GT(report.binding.greatestDistance, 0.0f);
    EXPECT_EQ(report.notes,
              QStringList(QStringLiteral("Curves imported: 2. Points on \"ball\": 6 of 7.")));
    EXPECT_FALSE(sceneCurves()[1]->PointAt(1).surfacePoint.IsOnValidFace());
    EXPECT_EQ(sceneCurves()[0]->Geometry(), Kernel()->Scene()->DrawingSurface());
    EXPECT_TRUE(document.IsChanged());
    EXPECT_EQ(Kernel()->Undos().StepCount(), 1);

    const QByteArray imported = sceneBytes();
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_EQ(sceneBytes(), bare);
    EXPECT_FALSE(document.IsChanged());
    EXPECT_TRUE(Kernel()->Redo());
    EXPECT_EQ(sceneBytes(), imported);
}

TEST_F(ImportAndExport, curvesWithoutAMeshAreRefused)
{
    const FileReport report = document.ImportCurves(curveFile());
    EXPECT_FALSE(report.done);
    EXPECT_EQ(report.problems,
              QStringList(QStringLiteral("strokes.json: there is no mesh to put the curves on; "
                                         "expected one to be opened before.")));
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 0);
}

TEST_F(ImportAndExport, anImportedMeshIsOneStepAndNotTheDrawingSurface)
{
    open({ballFile()});
    Geometry *ball = Kernel()->Scene()->DrawingSurface();
    const FileReport report = document.ImportMesh(meshFile(QStringLiteral("box.obj"), cube()));
    EXPECT_TRUE(report.done);
    EXPECT_EQ(report.meshes, 1);
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 2);
    EXPECT_EQ(Kernel()->Scene()->DrawingSurface(), ball);
    EXPECT_TRUE(document.IsChanged());
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 1);
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(ImportAndExport, facesThatWereLeftOutAreCounted)
{
    const FileReport report = document.OpenMesh(
        file(QStringLiteral("flat.obj"), "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\nf 1 2 2\nf 1 1 1\n"));
    EXPECT_TRUE(report.done);
    EXPECT_EQ(report.problems,
              QStringList(QStringLiteral(
                  "flat.obj: faces with fewer than three different corners were left out: 2.")));
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(ImportAndExport, selectedMeshesGoOutElseTheActiveOneElseAll)
{
    Geometry *first = addToScene(cube(), QStringLiteral("first"));
    addToScene(cube(), QStringLiteral("second"));
    Geometry *third = addToScene(cube(), QStringLiteral("third"));
    exportMeshes(QStringLiteral("all.obj"));
    EXPECT_EQ(objectsIn(QStringLiteral("all.obj")), 3);
    Kernel()->Scene()->SetActiveGeometry(third);
    exportMeshes(QStringLiteral("active.obj"));
    EXPECT_EQ(objectsIn(QStringLiteral("active.obj")), 1);
    EXPECT_TRUE(bytesOf(QStringLiteral("active.obj")).contains("third"));
    first->SetSelected(true);
    exportMeshes(QStringLiteral("selected.obj"));
    EXPECT_EQ(objectsIn(QStringLiteral("selected.obj")), 1);
    EXPECT_TRUE(bytesOf(QStringLiteral("selected.obj")).contains("first"));
}

TEST_F(ImportAndExport, selectedCurvesGoOutElseAllThatAreVisible)
{
    open({ballFile(), curveFile()});
    sceneCurves()[0]->SetHidden(true);
    exportCurves(QStringLiteral("visible.json"));
    EXPECT_EQ(curves(QStringLiteral("visible.json")).size(), 1);
    sceneCurves()[0]->SetHidden(false);
    exportCurves(QStringLiteral("all.json"));
    EXPECT_EQ(curves(QStringLiteral("all.json")).size(), 2);
    sceneCurves()[0]->SetSelected(true);
    exportCurves(QStringLiteral("selected.json"));
    const QVector<OrvaneCurve *> selected = curves(QStringLiteral("selected.json"));
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected[0]->Name(), QStringLiteral("loop"));
}

TEST_F(ImportAndExport, whereThereIsNothingToExportNoFileIsMade)
{
    EXPECT_FALSE(document.ExportMeshes(QStringLiteral("out.obj"), &error));
    EXPECT_EQ(error, QStringLiteral("out.obj: there are no faces to write."));
    EXPECT_FALSE(document.ExportCurves(QStringLiteral("out.json"), &error));
    EXPECT_EQ(error, QStringLiteral("out.json: there are no curves to write."));
    EXPECT_FALSE(document.ExportCurves(QStringLiteral("out.txt"), &error));
    EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_F(ImportAndExport, aRealMeshComesBackThroughEveryFormat)
{
    const QString bunny = modelFile(QStringLiteral("bunny.obj"));
    if (bunny.isEmpty())
        GTEST_SKIP() << "no folder of models (QUILLMESH_MODELS)";
    open({bunny});
    const QVector<PlaceList> before = scenePolygons(true);
    for (const char *format : MeshFormats) {
        const QString name = QStringLiteral("out.") + QLatin1String(format);
        exportMeshes(name);
        open({name});
        EXPECT_TRUE(samePlaces(scenePolygons(true), before)) << format;
        open({bunny});
    }
}
