// SPDX-License-Identifier: MIT
#include "host/desktop/window/filecommands.h"

#include "host/desktop/document/autosave.h"
#include "host/desktop/document/document.h"
#include "host/desktop/document/examplescene.h"
#include "host/desktop/tools/toolbox.h"
#include "host/desktop/window/menus.h"
#include "host/desktop/window/question.h"

#include <orvane/base/log.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMainWindow>
#include <QMenu>

namespace orvane {

namespace {

const int NoteTime = 4000; // milliseconds
const int WarningTime = 8000;

QString openFilter()
{
    return FileCommands::tr("All that can be opened (*.orvane *.obj *.ply *.stl *.gltf *.glb *.fbx "
                            "*.dae *.3ds *.off *.json)")
           + QStringLiteral(";;") + FileCommands::tr("Scenes (*.orvane)") + QStringLiteral(";;")
           + FileCommands::tr("All files (*)");
}

QString meshFilter()
{
    return QStringLiteral("OBJ (*.obj);;PLY (*.ply);;STL (*.stl);;glTF (*.glb *.gltf)");
}

QString curveFilter()
{
    return QStringLiteral("JSON (*.json);;OBJ (*.obj)");
}

// "OBJ (*.obj)" gives ".obj".
QString withExtension(const QString &path, const QString &filter)
{
    if (path.isEmpty() || !QFileInfo(path).suffix().isEmpty())
        return path;
    return path
           + filter.section(QStringLiteral("(*"), 1)
                 .section(QLatin1Char(')'), 0, 0)
                 .section(QLatin1Char(' '), 0, 0);
}

} // namespace

FileCommands::FileCommands(const Workbench &bench)
    : CommandGroup(bench, QStringLiteral("File")), m_recent(bench.store)
{
    addActions();
}

bool FileCommands::Open(const QStringList &paths)
{
    if (paths.isEmpty() || (Document::WouldReplaceScene(paths) && !MayReplaceScene()))
        return false;
    bench().tools->Cancel();
    const FileReport result = bench().document->Open(paths);
    if (result.done) {
        for (const QString &path : paths)
            m_recent.Add(path);
        emit opened();
    }
    report(result);
    return result.done;
}

bool FileCommands::OpenExample()
{
    if (!MayReplaceScene())
        return false;
    bench().tools->Cancel();
    const FileReport result = openExample(bench().document);
    if (result.done)
        emit opened();
    report(result);
    return result.done;
}

bool FileCommands::MayReplaceScene()
{
    if (!bench().document->IsChanged())
        return true;
    const QString answer =
        ask(bench().window,
            {"unsavedQuestion",
             tr("Save the changes to \"%1\"?").arg(bench().document->Title()),
             tr("What is not saved is lost."),
             {{"save", tr("&Save")}, {"discard", tr("&Do Not Save")}, {"cancel", tr("Cancel")}}});
    if (answer == QLatin1String("save"))
        return save();
    return answer == QLatin1String("discard");
}

void FileCommands::OfferRecovery()
{
    const QVector<Recovery> left = findRecoveries();
    for (const Recovery &recovery : left) {
        const QString time = QLocale().toString(recovery.time, QLocale::ShortFormat);
        const QString answer = ask(
            bench().window,
            {"recoveryQuestion",
             tr("Unsaved work was found."),
             tr("\"%1\", kept on %2, was not saved before the program ended.")
                 .arg(recovery.title, time),
             {{"recover", tr("&Recover")}, {"discard", tr("&Discard")}, {"later", tr("Later")}}});
        if (answer == QLatin1String("discard")) {
            discard(recovery);
        } else if (answer == QLatin1String("recover")) {
            const FileReport result = bench().autosave->Recover(recovery);
            if (result.done)
                emit opened();
            report(result);
            return; // the others are offered at the next start
        }
    }
}

void FileCommands::New()
{
    if (!MayReplaceScene())
        return;
    bench().tools->Cancel();
    if (bench().document->NewScene())
        emit opened();
}

void FileCommands::AskAndOpen()
{
    Open(QFileDialog::getOpenFileNames(bench().window, tr("Open"), folder(), openFilter()));
}

void FileCommands::Save()
{
    save();
}

bool FileCommands::SaveAs()
{
    QString path =
        QFileDialog::getSaveFileName(bench().window, tr("Save Scene As"),
                                     bench().document->ProposedPath(), tr("Scenes (*.orvane)"));
    if (path.isEmpty())
        return false;
    path = withExtension(path, QStringLiteral("(*.orvane)"));
    QString error;
    if (!bench().document->SaveAs(path, &error)) {
        tellProblem(error);
        return false;
    }
    m_recent.Add(path);
    return true;
}

void FileCommands::addActions()
{
    add({"newScene", tr("&New"), tr("Begin with an empty scene."), QKeySequence::New}, 100,
        [this] { New(); });
    add({"open", tr("&Open..."), tr("Open a mesh or a scene, or add curves."), QKeySequence::Open},
        110, [this] { AskAndOpen(); });
    m_recentMenu = new QMenu(tr("Open &Recent"), bench().window);
    m_recentMenu->setObjectName(QStringLiteral("recentFiles"));
    connect(m_recentMenu, &QMenu::aboutToShow, this, &FileCommands::fillRecent);
    bench().menus->Add(menuName(), QString(), m_recentMenu->menuAction(), 120);
    add({"openExample", tr("Open E&xample"), tr("Open the bundled head with curves on it.")}, 130,
        [this] { OpenExample(); });
    addSeparator(200);
    add({"save", tr("&Save"), tr("Save the scene."), QKeySequence::Save}, 210, [this] { Save(); });
    add({"saveAs", tr("Save &As..."), tr("Save the scene under another name."),
         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S)},
        220, [this] { SaveAs(); });
    addSeparator(300);
    add({"importMesh", tr("&Import Mesh..."), tr("Add a mesh to the scene."),
         QKeySequence(Qt::CTRL + Qt::Key_I)},
        310, [this] { importMesh(); });
    add({"importCurves", tr("Import &Curves..."), tr("Put the curves of a file onto the mesh."),
         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_O)},
        320, [this] { importCurves(); });
    add({"exportMesh", tr("&Export Mesh..."), tr("Write the selected mesh, or else the new one."),
         QKeySequence(Qt::CTRL + Qt::Key_E)},
        330, [this] { exportMesh(); });
    add({"exportCurves", tr("Export C&urves..."), tr("Write the selected curves, or else all."),
         QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_E)},
        340, [this] { exportCurves(); });
    addSeparator(900);
    add({"quit", tr("&Quit"), tr("Close the window."), QKeySequence(Qt::CTRL + Qt::Key_Q)}, 910,
        [this] { bench().window->close(); });
}

void FileCommands::fillRecent()
{
    m_recentMenu->clear();
    const QVector<RecentFile> files = m_recent.Files();
    for (int i = 0; i < files.size(); ++i) {
        const QString path = files.at(i).path;
        QAction *action = m_recentMenu->addAction(
            QStringLiteral("&%1  %2").arg(i + 1).arg(
                QFileInfo(path).fileName().replace(QLatin1Char('&'), QLatin1String("&&"))),
            this, [this, path] { Open({path}); });
        action->setStatusTip(QDir::toNativeSeparators(path));
        action->setEnabled(!files.at(i).isMissing);
    }
    if (files.isEmpty())
        m_recentMenu->addAction(tr("None yet"))->setEnabled(false);
    m_recentMenu->addSeparator();
    m_recentMenu->addAction(tr("&Clear List"), this, [this] { m_recent.Clear(); })
        ->setEnabled(!files.isEmpty());
}

void FileCommands::importMesh()
{
    const QString path =
        QFileDialog::getOpenFileName(bench().window, tr("Import Mesh"), folder(), openFilter());
    if (!path.isEmpty())
        report(bench().document->ImportMesh(path));
}

void FileCommands::importCurves()
{
    const QString path = QFileDialog::getOpenFileName(bench().window, tr("Import Curves"), folder(),
                                                      tr("Curves (*.json *.obj)"));
    if (!path.isEmpty())
        report(bench().document->ImportCurves(path));
}

void FileCommands::exportMesh()
{
    QString filter;
    const QString path = withExtension(
        QFileDialog::getSaveFileName(bench().window, tr("Export Mesh"),
                                     folder() + QStringLiteral("/mesh.obj"), meshFilter(), &filter),
        filter);
    QString error;
    if (path.isEmpty())
        return;
    if (!bench().document->ExportMeshes(path, &error))
        tellProblem(error);
    else
        Kernel()->Interface()->HUDMessageShow(tr("Written: %1").arg(QDir::toNativeSeparators(path)),
                                              0, NoteTime);
}

void FileCommands::exportCurves()
{
    QString filter;
    const QString path =
        withExtension(QFileDialog::getSaveFileName(bench().window, tr("Export Curves"),
                                                   folder() + QStringLiteral("/curves.json"),
                                                   curveFilter(), &filter),
                      filter);
    QString error;
    if (path.isEmpty())
        return;
    if (!bench().document->ExportCurves(path, &error))
        tellProblem(error);
    else
        Kernel()->Interface()->HUDMessageShow(tr("Written: %1").arg(QDir::toNativeSeparators(path)),
                                              0, NoteTime);
}

bool FileCommands::save()
{
    if (bench().document->Path().isEmpty())
        return SaveAs();
    QString error;
    if (bench().document->Save(&error))
        return true;
    tellProblem(error);
    return false;
}

// What went wrong needs an answer only when nothing came in; else it is told in passing.
void FileCommands::report(const FileReport &result)
{
    for (const QString &text : result.problems + result.notes)
        log(text);
    if (!result.done) {
        tellProblem(result.problems.join(QLatin1Char('\n')));
    } else if (!result.problems.isEmpty()) {
        Kernel()->Interface()->HUDMessageShow(result.problems.join(QLatin1Char('\n')), 1,
                                              WarningTime);
    } else if (!result.notes.isEmpty()) {
        Kernel()->Interface()->HUDMessageShow(result.notes.join(QLatin1Char('\n')), 0, NoteTime);
    }
}

void FileCommands::tellProblem(const QString &text)
{
    ask(bench().window, {"problem",
                         text.isEmpty() ? tr("That is not possible right now.") : text,
                         QString(),
                         {{"close", tr("Close")}}});
}

QString FileCommands::folder() const
{
    const QString path = bench().document->Path();
    if (!path.isEmpty())
        return QFileInfo(path).absolutePath();
    const QVector<RecentFile> files = m_recent.Files();
    return files.isEmpty() ? QDir::homePath() : QFileInfo(files.constFirst().path).absolutePath();
}

} // namespace orvane
