// SPDX-License-Identifier: MIT
#include "tests/screenshots/picturedesk.h"

#include "host/desktop/viewport/viewportwidget.h"
#include "tests/screenshots/pointerpicture.h"
#include "tests/support/dialoganswer.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/pluginloader.h>
#include <orvane/kernel/scene.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QtTest>

namespace {

const int Settling = 120; // milliseconds
const QSize WindowSize(860, 600);
const double WholeScene = 2.0; // area heights, with nearer 1
const int MovesBetween = 6;    // events from place to place

bool isCurve(const orvane::Node *node)
{
    return dynamic_cast<const orvane::OrvaneCurve *>(node);
}

int curveCount()
{
    int count = 0;
    for (int i = 0; i < orvane::Kernel()->Scene()->NodeCount(); ++i)
        count += isCurve(orvane::Kernel()->Scene()->NodeAt(i)) ? 1 : 0;
    return count;
}

void expect(bool isSo, const char *what)
{
    if (!isSo)
        qFatal("%s", what);
}

} // namespace

PictureDesk::PictureDesk(orvane::PluginLoader *plugins)
    : m_settings(m_folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat),
      m_window(new orvane::MainWindow(&m_settings, plugins))
{
    plugins->Load();
    plugins->Initialise();
    m_window->move(0, 0);
    m_window->resize(WindowSize);
    m_window->show();
    m_window->activateWindow();
    expect(QTest::qWaitForWindowExposed(m_window.data()), "the window does not show");
    for (const char *option : {"showGrid", "showGizmo", "showHeadsUp"})
        SetOption(option, false);
    // A longer name in it would move the view.
    m_window->findChild<QDockWidget *>(QStringLiteral("sceneDock"))->hide();
}

PictureDesk::~PictureDesk() = default;

void PictureDesk::OpenExample(bool withCurves)
{
    Away();
    orvane::Kernel()->NewScene();
    m_window->Refresh();
    Settle();
    auto *example = m_window->findChild<QAbstractButton *>(QStringLiteral("startExample"));
    expect(example && example->isVisible(), "no way to the example");
    QTest::mouseClick(example, Qt::LeftButton);
    Settle();
    expect(curveCount() > 50, "the example does not open");
    expect(view().isValid(), "no OpenGL");
    if (auto *message = m_window->findChild<QWidget *>(QStringLiteral("hudMessage")))
        message->hide();
    if (!withCurves) {
        Trigger("selectAll");
        Trigger("delete");
        expect(curveCount() == 0, "the curves do not go");
    }
}

void PictureDesk::LookAt(double x, double y, double nearer, double right, double up)
{
    orvane::Camera &camera = view().Camera();
    view().Look(orvane::StandardView::Front);
    view().FrameAll();
    camera.Orbit(right, up);
    camera.Zoom(view().height() / (WholeScene * nearer * m_area.height()));
    camera.Pan(QPointF(-x, -y) * (nearer * m_area.height()));
    view().update();
    Settle();
}

void PictureDesk::Trigger(const char *name)
{
    action(name)->trigger();
    Settle();
}

void PictureDesk::SetOption(const char *name, bool on)
{
    if (action(name)->isChecked() != on)
        Trigger(name);
}

void PictureDesk::SetNumber(const char *name, double value)
{
    auto *box = m_window->findChild<QDoubleSpinBox *>(QLatin1String(name));
    expect(box, "no such number");
    box->setValue(value);
}

void PictureDesk::ChooseTool(const char *id)
{
    Trigger(QByteArray("tool_") + id);
}

void PictureDesk::Hover(const QPointF &place)
{
    m_showsPointer = true;
    move(pixel(place), Qt::NoButton, Qt::NoModifier);
    Settle();
}

void PictureDesk::Drag(const QVector<QPointF> &places, Qt::KeyboardModifiers modifiers)
{
    Hover(places.constFirst());
    QTest::mousePress(&view(), Qt::LeftButton, modifiers, m_last);
    for (int i = 1; i < places.size(); ++i) {
        for (int step = 1; step <= MovesBetween; ++step) {
            const double t = double(step) / MovesBetween;
            move(pixel(places[i - 1] * (1.0 - t) + places[i] * t), Qt::LeftButton, modifiers);
        }
    }
    Settle();
}

void PictureDesk::Release(Qt::KeyboardModifiers modifiers)
{
    QTest::mouseRelease(&view(), Qt::LeftButton, modifiers, m_last);
    Settle();
}

void PictureDesk::Stroke(const QVector<QPointF> &places, Qt::KeyboardModifiers modifiers)
{
    Drag(places, modifiers);
    Release(modifiers);
    Away();
}

void PictureDesk::Away()
{
    m_showsPointer = false;
    m_inMenu = false;
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&view(), &leave);
    Settle();
}

void PictureDesk::PointInMenu(const char *menuName, const QString &entry, bool choose)
{
    auto *menu = m_window->findChild<QMenu *>(QLatin1String(menuName));
    expect(menu, "no such menu");
    QMenuBar *bar = m_window->menuBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
    Settle();
    const QList<QAction *> actions = menu->actions();
    for (QAction *one : actions) {
        if (one->text() != entry)
            continue;
        const QRect box = menu->actionGeometry(one);
        const QPoint place(box.left() + box.width() * 3 / 4, box.center().y());
        QTest::mouseMove(menu, place);
        menu->setActiveAction(one);
        m_pointer = menu->mapToGlobal(place);
        m_showsPointer = m_inMenu = true;
        Settle();
        if (choose) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, place);
            Away();
        }
        return;
    }
    qFatal("no such entry");
}

void PictureDesk::CloseMenus()
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    Away();
}

void PictureDesk::CreateMesh()
{
    PointInMenu("menuMesh", QStringLiteral("Create Mesh from Curves..."), true);
    auto *create = m_window->findChild<QPushButton *>(QStringLiteral("createMesh"));
    expect(create && create->isVisible(), "the settings do not open");
    QWidget *settings = create->window();
    DialogAnswer accept(QStringLiteral("accept"));
    // Without a graphics card each of the many pictures of its progress takes a second.
    m_window->setUpdatesEnabled(false);
    QTest::mouseClick(create, Qt::LeftButton);
    Settle();
    m_window->setUpdatesEnabled(true);
    settings->close();
    // Without a window manager nobody gives the keys back.
    QApplication::setActiveWindow(m_window.data());
    view().setFocus();
    expect(orvane::Kernel()->Scene()->Geometries().size() > 1, "no mesh was made");
    Settle();
}

QImage PictureDesk::Photo()
{
    return photo(area().translated(view().mapToGlobal(QPoint())));
}

QImage PictureDesk::PhotoFrom(const char *menuName)
{
    const auto *menu = m_window->findChild<QMenu *>(QLatin1String(menuName));
    expect(menu && menu->isVisible(), "the menu is not open");
    const QMenuBar *bar = m_window->menuBar();
    const QPoint corner = bar->actionGeometry(menu->menuAction()).topLeft();
    return photo(QRect(bar->mapToGlobal(corner), m_area));
}

void PictureDesk::Settle() const
{
    QTest::qWait(Settling);
}

QAction *PictureDesk::action(const char *name) const
{
    auto *found = m_window->findChild<QAction *>(QLatin1String(name));
    if (!found)
        qFatal("no action %s", name);
    return found;
}

QPoint PictureDesk::pixel(const QPointF &place) const
{
    const QRect box = area();
    return box.topLeft()
           + QPoint(qRound(place.x() * box.width()), qRound(place.y() * box.height()));
}

QRect PictureDesk::area() const
{
    QRect box(QPoint(), m_area);
    box.moveCenter(view().rect().center());
    return box;
}

void PictureDesk::move(const QPoint &place, Qt::MouseButtons buttons,
                       Qt::KeyboardModifiers modifiers)
{
    // QTest::mouseMove has no modifiers and forgets the buttons.
    QMouseEvent event(QEvent::MouseMove, place, view().mapToGlobal(place), Qt::NoButton, buttons,
                      modifiers);
    QApplication::sendEvent(&view(), &event);
    m_last = place;
    m_pointer = view().mapToGlobal(place);
}

QImage PictureDesk::photo(const QRect &global) const
{
    Settle();
    QImage image = QGuiApplication::primaryScreen()
                       ->grabWindow(0, global.x(), global.y(), global.width(), global.height())
                       .toImage()
                       .convertToFormat(QImage::Format_RGB32);
    if (m_showsPointer) {
        QPainter painter(&image);
        drawPointer(painter, m_pointer - global.topLeft(),
                    m_inMenu ? Qt::ArrowCursor : view().cursor().shape());
    }
    return image;
}
