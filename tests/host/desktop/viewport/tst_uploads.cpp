// SPDX-License-Identifier: MIT
#include "host/desktop/view/viewclient.h"
#include "tests/host/desktop/viewport/stillclient.h"
#include "tests/host/desktop/viewport/viewporttest.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>

using namespace orvane;

namespace {

// A scene with everything that the view can draw.
class Uploads : public ViewportTest
{
protected:
    Uploads()
    {
        mesh = sphere(24, 48);
        geometry = addToScene(mesh);
        geometry->SetSelected(true);
        addToScene(polygonOfFakes(7), QStringLiteral("New"));
        Kernel()->Scene()->SetActiveGeometry(Kernel()->Scene()->Geometries().last());
        curve = addCurve(circle(1.0f, 0.0f, 48), true);
        client.lines = {{circle(1.1f, 0.2f, 10), Qt::yellow, 2.0f, true, true}};
        client.shapes = {{QPolygonF(QRectF(20, 20, 60, 40)), true, Qt::white}};
        view.SetClient(&client);
        ViewOptions options;
        options.wireframe = true;
        options.curvePoints = true;
        view.SetOptions(options);
        Kernel()->Preferences()->renderMeshFaults.SetValue(true);
        lookAtAll();
        picture();
    }
    ~Uploads() override
    {
        view.SetClient(nullptr);
        Kernel()->Preferences()->renderMeshFaults.SetValue(false);
    }

    int uploadsOfAFrame()
    {
        const int before = ViewportWidget::UploadCount();
        picture();
        return ViewportWidget::UploadCount() - before;
    }

    StillClient client;
    SubdivisionLevel *mesh;
    Geometry *geometry;
    OrvaneCurve *curve;
};

} // namespace

TEST_F(Uploads, movingTheCameraUploadsNothing)
{
    for (Shading shading : {Shading::Smooth, Shading::Flat, Shading::Matcap}) {
        setOption(&orvane::ViewOptions::shading, shading);
        picture();
        const int before = ViewportWidget::UploadCount();
        EXPECT_GT(before, 0);
        for (int i = 0; i < 10; ++i) {
            view.Camera().Orbit(0.1, 0.02);
            view.Camera().Zoom(0.97);
            view.Camera().Pan(QPointF(2, 1));
            picture();
        }
        EXPECT_EQ(ViewportWidget::UploadCount(), before);
    }
}

TEST_F(Uploads, hoveringSelectingAndHidingUploadNothing)
{
    view.SetHighlight([this] { return curve; });
    geometry->SetSelected(false);
    EXPECT_EQ(uploadsOfAFrame(), 0);
    geometry->SetHidden(true);
    EXPECT_EQ(uploadsOfAFrame(), 0);
    geometry->SetHidden(false);
    EXPECT_EQ(uploadsOfAFrame(), 0);
}

TEST_F(Uploads, movingAMeshAsAWholeUploadsNoneOfItsArrays)
{
    setOption(&orvane::ViewOptions::showGrid, false); // it goes with the size of the scene
    geometry->Placement()->SetWorldMatrix(Matrix::Translation(Vector(0.5f, 0, 0)));
    EXPECT_EQ(uploadsOfAFrame(), 0);
}

TEST_F(Uploads, aVertexThatMovesUploadsItsMeshAndNoOther)
{
    Kernel()->Preferences()->renderMeshFaults.SetValue(false);
    picture();
    mesh->SetVertexPosition(0, mesh->VertexPosition(0) * 0.9f);
    mesh->Update(false, 0);
    EXPECT_EQ(uploadsOfAFrame(), 1) << "the positions";
    EXPECT_EQ(uploadsOfAFrame(), 0);
}

TEST_F(Uploads, aChangedCurveIsUploadedOnce)
{
    curve->AppendPoint(CurvePoint(Vector(1.0f, 0.1f, 0)));
    EXPECT_EQ(uploadsOfAFrame(), 1);
    EXPECT_EQ(uploadsOfAFrame(), 0);
}

TEST_F(Uploads, theStrokeInHandIsUploadedOnceAPoint)
{
    client.lines[0].places.append(Vector(1, 1, 1));
    EXPECT_EQ(uploadsOfAFrame(), 1);
    EXPECT_EQ(uploadsOfAFrame(), 0);
}
