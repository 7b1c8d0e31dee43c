// SPDX-License-Identifier: MIT
#include "host/desktop/window/viewcommands.h"

#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/desktopsettings.h"
#include "host/desktop/window/menus.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace orvane {

namespace {

const int PanelPosition = 800;

} // namespace

ViewCommands::ViewCommands(const Workbench &workbench)
    : CommandGroup(workbench, QStringLiteral("View")), m_shadings(new QActionGroup(this))
{
    addLooks();
    addShadings();
    addSwitches();
    addSeparator(PanelPosition - 1);
    Refresh();
}

void ViewCommands::Refresh()
{
    const ViewOptions options = bench().settings->view;
    m_shadings->actions().at(int(options.shading))->setChecked(true);
    for (const auto &[action, option] : qAsConst(m_options))
        action->setChecked(options.*option);
    bench().viewport->SetOptions(options);
}

void ViewCommands::AddPanel(QAction *action)
{
    bench().menus->Add(menuName(), QString(), action, PanelPosition + m_panels++);
}

void ViewCommands::addLooks()
{
    ViewportWidget *view = bench().viewport;
    const auto look = [view](StandardView from) {
        return [view, from] {
            view->Look(from);
        };
    };
    const QString looks = tr("&Look From");
    add({"frameSelection", tr("&Frame Selection"), tr("Show what is selected as large as it fits."),
         QKeySequence(Qt::Key_F)},
        100, [view] { view->FrameSelection(); });
    add({"frameAll", tr("Frame &All"), tr("Show everything."), QKeySequence(Qt::Key_A)}, 110,
        [view] { view->FrameAll(); });
    add({"viewFront", tr("Front"), tr("Look from the front."), QKeySequence(Qt::Key_1)}, 120,
        look(StandardView::Front), looks);
    add({"viewBack", tr("Back"), tr("Look from the back."), QKeySequence(Qt::CTRL + Qt::Key_1)},
        121, look(StandardView::Back), looks);
    add({"viewRight", tr("Right"), tr("Look from the right."), QKeySequence(Qt::Key_3)}, 122,
        look(StandardView::Right), looks);
    add({"viewLeft", tr("Left"), tr("Look from the left."), QKeySequence(Qt::CTRL + Qt::Key_3)},
        123, look(StandardView::Left), looks);
    add({"viewTop", tr("Top"), tr("Look from above."), QKeySequence(Qt::Key_7)}, 124,
        look(StandardView::Top), looks);
    add({"viewBottom", tr("Bottom"), tr("Look from below."), QKeySequence(Qt::CTRL + Qt::Key_7)},
        125, look(StandardView::Bottom), looks);
    add({"orthographic", tr("Switch &Perspective"), tr("With or without perspective."),
         QKeySequence(Qt::Key_5)},
        130, [view] { view->ToggleOrthographic(); });
}

void ViewCommands::addShadings()
{
    addSeparator(200);
    const QVector<QPair<const char *, QString>> shadings = {{"shadingSmooth", tr("&Smooth")},
                                                            {"shadingFlat", tr("&Flat")},
                                                            {"shadingClay", tr("&Clay")}};
    for (int i = 0; i < shadings.size(); ++i) {
        QAction *action = addSwitch(
            {shadings.at(i).first, shadings.at(i).second, tr("How surfaces are shaded.")}, 210 + i,
            false,
            [this, i](bool on) {
                if (!on)
                    return;
                bench().settings->view.shading = Shading(i);
                apply();
            },
            tr("&Shading"));
        m_shadings->addAction(action);
    }
}

void ViewCommands::addSwitches()
{
    addOption({"wireframe", tr("&Wireframe"), tr("Show the edges of all faces."),
               QKeySequence(Qt::SHIFT + Qt::Key_W)},
              220, &ViewOptions::wireframe);
    addOption(
        {"xRay", tr("&X-Ray"), tr("Look through surfaces."), QKeySequence(Qt::SHIFT + Qt::Key_X)},
        230, &ViewOptions::xRay);
    addOption({"dimSource", tr("&Dim Source"), tr("The source steps back behind a new mesh."),
               QKeySequence(Qt::SHIFT + Qt::Key_D)},
              240, &ViewOptions::dimSource);
    addOption({"curvePoints", tr("Curve P&oints"), tr("Show the points of curves.")}, 250,
              &ViewOptions::curvePoints);
    addOption({"showGrid", tr("Gr&id"), tr("Show a grid on the ground."),
               QKeySequence(Qt::SHIFT + Qt::Key_G)},
              260, &ViewOptions::showGrid);
    addOption({"showGizmo", tr("Axes in the &Corner"), tr("Show which way is which.")}, 270,
              &ViewOptions::showGizmo);
    addOption({"showHeadsUp", tr("&Heads-up Line"), tr("Show file, faces, tool and frame rate.")},
              280, &ViewOptions::showHud);
    QAction *faults =
        addSwitch({"renderMeshFaults", tr("Render &Mesh Faults"),
                   tr("Show what is wrong with a mesh."), QKeySequence(Qt::SHIFT + Qt::Key_F)},
                  290, Kernel()->Preferences()->renderMeshFaults.Value(), [this](bool on) {
                      if (on != Kernel()->Preferences()->renderMeshFaults.Value())
                          Kernel()->Preferences()->renderMeshFaults.SetValue(on);
                      emit settingsChanged();
                  });
    connect(bench().menus->Menu(menuName()), &QMenu::aboutToShow, faults,
            [faults] { faults->setChecked(Kernel()->Preferences()->renderMeshFaults.Value()); });
}

void ViewCommands::addOption(const ActionWords &words, int position, bool ViewOptions::*option)
{
    QAction *action = addSwitch(words, position, false, [this, option](bool on) {
        bench().settings->view.*option = on;
        apply();
    });
    m_options.append({action, option});
}

void ViewCommands::apply()
{
    bench().viewport->SetOptions(bench().settings->view);
    emit settingsChanged();
}

} // namespace orvane
