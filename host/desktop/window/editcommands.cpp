// SPDX-License-Identifier: MIT
#include "host/desktop/window/editcommands.h"

#include "host/desktop/tools/curvecommands.h"
#include "host/desktop/tools/toolbox.h"
#include "host/desktop/window/scenelist.h"

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>

#include <QAction>

namespace orvane {

namespace {

const int NoteTime = 2500; // milliseconds

// Qt would take & in a name for a mark.
QString named(const QString &text, const QString &step)
{
    return text.arg(QString(step).replace(QLatin1Char('&'), QLatin1String("&&"))).trimmed();
}

} // namespace

EditCommands::EditCommands(const Workbench &workbench)
    : CommandGroup(workbench, QStringLiteral("Edit")),
      m_undo(add({"undo", tr("&Undo"), tr("Take the last step back."), QKeySequence::Undo}, 100,
                 [this] { Undo(); })),
      m_redo(add({"redo", tr("&Redo"), tr("Do again what was taken back."),
                  QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_Z)},
                 110, [this] { Redo(); }))
{
    m_redo->setShortcuts({m_redo->shortcut(), QKeySequence(Qt::CTRL + Qt::Key_Y)});
    addSeparator(200);
    add({"selectAll", tr("Select &All Curves"), tr("Select all curves that are shown."),
         QKeySequence(Qt::CTRL + Qt::Key_A)},
        210, [] { selectAllCurves(); });
    add({"selectNone", tr("Select &None"), tr("Select no curve."),
         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_A)},
        220, [] { selectNoCurves(); });
    add({"invertSelection", tr("&Invert Selection"), tr("Select the other curves."),
         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_I)},
        230, [] { invertCurveSelection(); });
    addSeparator(300);
    add({"rename", tr("Rena&me"), tr("Rename what is current in the scene list."),
         QKeySequence(Qt::CTRL + Qt::Key_R)},
        305, [this] { bench().sceneList->RenameCurrent(); });
    add({"delete", tr("&Delete"),
         tr("Delete the selected curves; in the scene list, all selected rows."),
         QKeySequence::Delete},
        310, [this] { deleteSelected(); });
    addSeparator(900);
    add({"preferences", tr("&Preferences..."), tr("Navigation, colours, language and more."),
         QKeySequence(Qt::CTRL + Qt::Key_Comma)},
        910, [this] { emit preferencesAsked(); });
    Refresh();
}

void EditCommands::Refresh()
{
    const UndoQueue &undos = Kernel()->Undos();
    m_undo->setEnabled(undos.CanUndo());
    m_undo->setText(named(tr("&Undo %1"), undos.UndoText()));
    m_redo->setEnabled(undos.CanRedo());
    m_redo->setText(named(tr("&Redo %1"), undos.RedoText()));
}

void EditCommands::Undo()
{
    bench().tools->Cancel();
    const QString step = Kernel()->Undos().UndoText();
    if (Kernel()->Undo())
        Kernel()->Interface()->HUDMessageShow(tr("Undone: %1").arg(step), 0, NoteTime);
    else
        Kernel()->Interface()->HUDMessageShow(tr("Not undone: %1").arg(step), 1, NoteTime);
    Kernel()->Interface()->RefreshUI();
}

void EditCommands::Redo()
{
    bench().tools->Cancel();
    const QString step = Kernel()->Undos().RedoText();
    // A creation that is done again asks about faults again, and makes nothing when all is refused.
    if (Kernel()->Redo())
        Kernel()->Interface()->HUDMessageShow(tr("Done again: %1").arg(step), 0, NoteTime);
    else
        Kernel()->Interface()->HUDMessageShow(tr("Not done again: %1").arg(step), 1, NoteTime);
    Kernel()->Interface()->RefreshUI();
}

// A mesh is selected to look at its numbers; a curve that is deleted in the view must not take it
// along.
void EditCommands::deleteSelected()
{
    if (bench().sceneList->hasFocus())
        bench().sceneList->DeleteSelected();
    else
        deleteSelectedCurves();
}

} // namespace orvane
