// SPDX-License-Identifier: MIT
#include "host/desktop/window/curvecommandgroup.h"

#include "host/desktop/tools/curvecommands.h"
#include "host/desktop/tools/toolbox.h"
#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/desktopsettings.h"
#include "host/desktop/window/menus.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>

namespace orvane {

namespace {

const int Axes = 3;
const char *const MirrorNames[Axes] = {"mirrorX", "mirrorY", "mirrorZ"};
const char *const MirrorDrawingNames[Axes] = {"mirrorDrawingX", "mirrorDrawingY", "mirrorDrawingZ"};
const QChar AxisLetters[Axes] = {QLatin1Char('X'), QLatin1Char('Y'), QLatin1Char('Z')};

} // namespace

CurveCommandGroup::CurveCommandGroup(const Workbench &workbench)
    : CommandGroup(workbench, QStringLiteral("Curves")), m_tools(new QActionGroup(this))
{
    addTools();
    addStrokeKeys();
    addShapes();
    addMirrors();
    addShowing();
}

QList<QAction *> CurveCommandGroup::ToolActions() const
{
    return m_tools->actions();
}

void CurveCommandGroup::ChooseTool(const QString &id)
{
    if (!bench().tools->Choose(id))
        return;
    for (QAction *action : m_tools->actions()) {
        if (action->data().toString() == id)
            action->setChecked(true);
    }
    bench().viewport->setFocus();
    bench().viewport->update();
    emit toolChosen();
}

void CurveCommandGroup::addTools()
{
    int position = 100;
    for (const Tool *tool : bench().tools->Tools()) {
        const ToolDescription words = tool->Description();
        const QByteArray name = "tool_" + words.id.toLatin1();
        const QByteArray icon = words.id.toLatin1();
        QAction *action =
            add({name.constData(), words.text, words.hint, words.shortcut, icon.constData()},
                position++, [this, id = words.id] { ChooseTool(id); });
        action->setData(words.id);
        action->setCheckable(true);
        action->setChecked(tool == bench().tools->InHand());
        m_tools->addAction(action);
    }
}

// Only while the keys go to the view: Enter and Esc mean something else where text is typed.
void CurveCommandGroup::addStrokeKeys()
{
    addSeparator(200);
    addForView({"finishStroke", tr("&Finish Stroke"), tr("End the stroke in hand."),
                QKeySequence(Qt::Key_Return)},
               210, [this] { bench().tools->Finish(); })
        ->setShortcuts({QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)});
    addForView({"cancelStroke", tr("&Give Up Stroke"), tr("Forget the stroke in hand."),
                QKeySequence(Qt::Key_Escape)},
               220, [this] { bench().tools->Cancel(); });
}

void CurveCommandGroup::addShapes()
{
    ToolContext &context = *bench().context;
    addSeparator(300);
    add({"duplicateCurves", tr("&Duplicate"), tr("Copy the selected curves."),
         QKeySequence(Qt::CTRL + Qt::Key_D)},
        310, [&context] { duplicateSelectedCurves(context); });
    add({"joinCurves", tr("&Join"), tr("Make one curve of the two selected ones."),
         QKeySequence(Qt::CTRL + Qt::Key_J)},
        320, [&context] { joinSelectedCurves(context); });
    add({"closeCurves", tr("&Close"), tr("Close the selected curves."),
         QKeySequence(Qt::CTRL + Qt::Key_K)},
        330, [&context] { closeSelectedCurves(context); });
    add({"openCurves", tr("&Open"), tr("Open the selected closed curves."),
         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_K)},
        340, [&context] { openSelectedCurves(context); });
    add({"smoothCurves", tr("&Smooth"), tr("Smooth the selected curves along the surface."),
         QKeySequence(Qt::CTRL + Qt::Key_M)},
        350, [&context] { smoothSelectedCurves(context); });
    add({"resampleCurves", tr("Space &Evenly"), tr("Space the points of the selected curves anew."),
         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_M)},
        360, [&context] { resampleSelectedCurves(context); });
    add({"reverseCurves", tr("&Reverse"), tr("Turn the direction of the selected curves.")}, 370,
        [&context] { reverseSelectedCurves(context); });
}

void CurveCommandGroup::addMirrors()
{
    addSeparator(400);
    auto *group = new QActionGroup(this);
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (int axis = 0; axis < Axes; ++axis) {
        add(
            {MirrorNames[axis], tr("Across %1").arg(AxisLetters[axis]),
             tr("Add the mirror images of the selected curves.")},
            410 + axis, [this, axis] { mirrorSelectedCurves(*bench().context, axis); },
            tr("&Mirror Selected"));
        QAction *drawing = addSwitch(
            {MirrorDrawingNames[axis], tr("Across %1").arg(AxisLetters[axis]),
             tr("What is drawn appears on the other side, too.")},
            420 + axis, bench().settings->tools.mirrorAxis == axis,
            [this, axis](bool on) {
                int &now = bench().settings->tools.mirrorAxis;
                now = on ? axis : now == axis ? -1 : now;
                emit settingsChanged();
            },
            tr("Mirror &While Drawing"));
        group->addAction(drawing);
    }
}

void CurveCommandGroup::addShowing()
{
    addSeparator(500);
    add({"hideCurves", tr("&Hide Selected"), tr("Hide the selected curves; tools pass them by."),
         QKeySequence(Qt::CTRL + Qt::Key_H)},
        510, [] { hideSelectedCurves(); });
    add({"hideOtherCurves", tr("Hide O&thers"), tr("Hide the curves that are not selected.")}, 520,
        [] { hideUnselectedCurves(); });
    add({"showAllCurves", tr("Show &All"), tr("Show all curves."),
         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_H)},
        530, [] { showAllCurves(); });
}

QAction *CurveCommandGroup::addForView(const ActionWords &words, int position,
                                       const std::function<void()> &run)
{
    QAction *action = add(words, position, run);
    bench().window->removeAction(action);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    bench().viewport->addAction(action);
    return action;
}

} // namespace orvane
