// SPDX-License-Identifier: MIT
// From the start page to the exported mesh, with mouse and keys alone.
#include "tests/host/desktop/window/windowtest.h"

#include "host/desktop/document/document.h"
#include "host/desktop/tools/toolbox.h"
#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/filecommands.h"
#include "host/desktop/window/scenelist.h"
#include "host/files/meshfile.h"
#include "host/meshchecker/meshchecker.h"

#include "tests/support/dialoganswer.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QtMath>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

using orvane::Kernel;
using orvane::OrvaneCurve;

namespace {

const int StrokeMoves = 24; // mouse events a stroke

class WorkingDay : public WindowTest
{
protected:
    orvane::ViewportWidget &view() { return m_window->Viewport(); }

    static QVector<OrvaneCurve *> curves()
    {
        QVector<OrvaneCurve *> found;
        for (int i = 0; i < Kernel()->Scene()->NodeCount(); ++i) {
            if (auto *curve = dynamic_cast<OrvaneCurve *>(Kernel()->Scene()->NodeAt(i)))
                found.append(curve);
        }
        return found;
    }

    // A way in parts of the view's height from its middle, as the mouse goes it.
    QPoint pixel(double x, double y)
    {
        const QPoint middle = view().rect().center();
        return middle + QPoint(qRound(x * view().height()), qRound(y * view().height()));
    }

    void drag(const QVector<QPoint> &way, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseMove(&view(), way.constFirst());
        QTest::mousePress(&view(), Qt::LeftButton, modifiers, way.constFirst());
        for (const QPoint &place : way.mid(1)) {
            // QTest::mouseMove has no modifiers and forgets the buttons.
            QMouseEvent move(QEvent::MouseMove, place, view().mapToGlobal(place), Qt::NoButton,
                             Qt::LeftButton, modifiers);
            QApplication::sendEvent(&view(), &move);
        }
        QTest::mouseRelease(&view(), Qt::LeftButton, modifiers, way.constLast());
        settle();
    }

    // Without a window manager nobody gives the keys back to the main window.
    void giveKeysBack()
    {
        settle(); // the window that had them goes
        QApplication::setActiveWindow(m_window.data());
        view().setFocus();
    }

    void drawLine(double x0, double y0, double x1, double y1)
    {
        QVector<QPoint> way;
        for (int i = 0; i <= StrokeMoves; ++i) {
            const double t = double(i) / StrokeMoves;
            way.append(pixel(x0 + t * (x1 - x0), y0 + t * (y1 - y0)));
        }
        drag(way);
    }

    void drawRing(double x, double y, double radius)
    {
        QVector<QPoint> way;
        for (int i = 0; i <= 2 * StrokeMoves; ++i) {
            const double angle = M_PI * i / StrokeMoves;
            way.append(pixel(x + radius * std::cos(angle), y + radius * std::sin(angle)));
        }
        drag(way);
    }

    void chooseFromMenu(const char *menuName, const QString &entry)
    {
        QMenuBar *bar = m_window->menuBar();
        auto *menu = m_window->findChild<QMenu *>(QLatin1String(menuName));
        ASSERT_NE(menu, nullptr);
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          bar->actionGeometry(menu->menuAction()).center());
        settle();
        ASSERT_TRUE(menu->isVisible());
        for (QAction *action : menu->actions()) {
            if (action->text() == entry) {
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                settle();
                return;
            }
        }
        ADD_FAILURE() << "no menu entry " << qPrintable(entry);
    }
};

} // namespace

TEST_F(WorkingDay, endsWithAMeshThatWasDrawn)
{
    openWindowWithPlugins(QStringLiteral(QUILLMESH_PLUGIN_DIR));
    ASSERT_EQ(m_plugins.Entries().size(), 1);
    ASSERT_EQ(m_plugins.Entries().constFirst().state, orvane::PluginLoader::State::Initialised);

    // The example, one click away.
    auto *example = m_window->findChild<QAbstractButton *>(QStringLiteral("startExample"));
    ASSERT_TRUE(example && example->isVisible());
    QTest::mouseClick(example, Qt::LeftButton);
    settle();
    const int given = curves().size();
    ASSERT_GT(given, 50);
    ASSERT_TRUE(view().isVisible());
    ASSERT_TRUE(view().isValid()) << "no OpenGL";

    // A look around, and back to the front.
    const orvane::Vector eye = view().Camera().Eye();
    drag({pixel(0.0, 0.0), pixel(0.05, 0.0), pixel(0.15, 0.03), pixel(0.2, 0.05)}, Qt::AltModifier);
    EXPECT_GT((view().Camera().Eye() - eye).Length(), 0.01f);
    EXPECT_EQ(curves().size(), given) << "the orbit drew something";
    view().setFocus();
    press(Qt::Key_1);
    press(Qt::Key_A);

    // Twenty strokes: twelve open ones, six closed ones, two with loose ends.
    for (int i = 0; i < 6; ++i)
        drawLine(-0.12 + 0.003 * i, -0.24 + 0.021 * i, 0.12, -0.235 + 0.021 * i);
    for (int i = 0; i < 6; ++i)
        drawLine(-0.105 + 0.041 * i, -0.27, -0.105 + 0.041 * i, -0.1);
    for (int i = 0; i < 6; ++i)
        drawRing(-0.1 + 0.04 * i, -0.18, 0.012 + 0.002 * i);
    drawLine(-0.05, 0.3, -0.01, 0.31);
    drawLine(0.02, 0.3, 0.05, 0.32);
    ASSERT_EQ(curves().size(), given + 20);
    int closed = 0;
    const QVector<OrvaneCurve *> all = curves();
    const orvane::Geometry *head = Kernel()->Scene()->DrawingSurface();
    const orvane::SurfaceLocator locator(*head->CurrentLevel());
    const float diagonal = head->CurrentLevel()->Bounds().Diagonal();
    for (const OrvaneCurve *curve : all.mid(given)) {
        closed += curve->Closed() ? 1 : 0;
        EXPECT_EQ(curve->Geometry(), head);
        for (const orvane::CurvePoint &point : curve->Points()) {
            EXPECT_TRUE(locator.ClosestPoint(point.position, 1e-5f * diagonal).IsOnValidFace());
        }
    }
    EXPECT_EQ(closed, 6);

    // One is deleted, brought back and deleted again.
    auto *list = m_window->findChild<orvane::SceneList *>();
    QTreeWidgetItem *row = list->RowOf(all.constLast());
    ASSERT_NE(row, nullptr);
    list->scrollToItem(row);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(row).center());
    settle();
    EXPECT_TRUE(all.constLast()->Selected());
    press(Qt::Key_Delete);
    EXPECT_EQ(curves().size(), given + 19);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(curves().size(), given + 20);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(curves().size(), given + 19);

    // The mesh.
    chooseFromMenu("menuMesh", QStringLiteral("Create Mesh from Curves..."));
    auto *create = m_window->findChild<QPushButton *>(QStringLiteral("createMesh"));
    ASSERT_TRUE(create && create->isVisible());
    {
        DialogAnswer accept(QStringLiteral("accept"));
        QTest::mouseClick(create, Qt::LeftButton);
        settle();
    }
    ASSERT_GE(Kernel()->Scene()->Geometries().size(), 2);
    const int meshes = Kernel()->Scene()->Geometries().size();
    create->window()->close();
    giveKeysBack();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 1);
    {
        DialogAnswer accept(QStringLiteral("accept"));
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    }
    ASSERT_EQ(Kernel()->Scene()->Geometries().size(), meshes);
    const int faces = Kernel()->Scene()->ActiveGeometry()->CurrentLevel()->Polygons().Count();
    EXPECT_GT(faces, 100);

    // Saved, closed, and opened from the list of recent files.
    {
        FileDialogAnswer answer(file("day.orvane"));
        press(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(answer.count(), 1);
    }
    EXPECT_FALSE(m_window->isWindowModified());
    giveKeysBack();
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(m_window->isVisible());
    openWindow(&m_plugins);
    QPushButton *recent = nullptr;
    for (QPushButton *button : m_window->findChildren<QPushButton *>()) {
        if (button->isVisible() && button->text() == QLatin1String("day.orvane"))
            recent = button;
    }
    ASSERT_NE(recent, nullptr);
    QTest::mouseClick(recent, Qt::LeftButton);
    settle();
    EXPECT_EQ(curves().size(), given + 19);
    ASSERT_EQ(Kernel()->Scene()->Geometries().size(), meshes);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 1) << "the history came back, too";
    {
        DialogAnswer accept(QStringLiteral("accept"));
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    }
    ASSERT_EQ(Kernel()->Scene()->Geometries().size(), meshes);

    // Exported, and the file looked at.
    {
        FileDialogAnswer answer(file("day.obj"));
        press(Qt::Key_E, Qt::ControlModifier);
        EXPECT_EQ(answer.count(), 1);
    }
    QString error;
    const std::unique_ptr<orvane::Geometry> exported(orvane::readMesh(file("day.obj"), &error));
    ASSERT_NE(exported, nullptr) << qPrintable(error);
    const orvane::SubdivisionLevel *mesh = exported->CurrentLevel();
    EXPECT_EQ(mesh->Polygons().Count(), faces);
    const orvane::SurfaceLocator reopened(*Kernel()->Scene()->DrawingSurface()->CurrentLevel());
    for (int vertex = 0; vertex < mesh->VertexCount(); ++vertex) {
        const orvane::Vector place = mesh->WorldVertexPosition(vertex);
        EXPECT_TRUE(reopened.ClosestPoint(place, 0.01f * diagonal).IsOnValidFace());
    }
}
