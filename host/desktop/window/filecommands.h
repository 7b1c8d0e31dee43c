// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/document/filereport.h"
#include "host/desktop/document/recentfiles.h"
#include "host/desktop/window/commandgroup.h"

class QMenu;

namespace orvane {

//! The File menu, and what drag and drop, the start page and the command line open.
class FileCommands : public CommandGroup
{
    Q_OBJECT

public:
    explicit FileCommands(const Workbench &bench);

    RecentFiles &Recent() { return m_recent; }

    //! Asks about unsaved work first where the scene would be replaced. False when nothing came in.
    bool Open(const QStringList &paths);
    bool OpenExample();
    //! True when there is no unsaved work, or it was saved or given up just now.
    bool MayReplaceScene();
    //! Offers what an earlier run could not save.
    void OfferRecovery();

public slots:
    void New();
    void AskAndOpen();
    void Save();
    bool SaveAs();

signals:
    //! Another scene is open.
    void opened();

private:
    void addActions();
    void fillRecent();
    void importMesh();
    void importCurves();
    void exportMesh();
    void exportCurves();
    bool save();
    void report(const FileReport &report);
    void tellProblem(const QString &text);
    QString folder() const;

    RecentFiles m_recent;
    QMenu *m_recentMenu = nullptr;
};

} // namespace orvane
