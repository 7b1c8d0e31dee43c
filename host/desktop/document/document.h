// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/document/filereport.h"

#include <QObject>
#include <QString>
#include <QStringList>

namespace orvane {

struct Recovery;

//! The kernel's scene as a file: where it lies, whether it has unsaved work, and all that goes
//! between it and files. It asks nothing: whoever replaces the scene looks at IsChanged first.
//! Where something cannot be done the scene stays as it was, and the sentence about it names the
//! file, the place in it and what was expected. Nothing is done while an operation runs.
class Document : public QObject
{
    Q_OBJECT

public:
    explicit Document(QObject *parent = nullptr);

    //! The scene's own file; empty while it has none.
    const QString &Path() const { return m_path; }
    //! For the title of a window: the name of that file, or of the mesh the scene began with.
    QString Title() const;
    //! A path to offer when the scene is saved under a new name.
    QString ProposedPath() const;
    //! Is there work that no file has? Undoing back to what was saved leaves none.
    bool IsChanged();
    //! Another number after each change of the scene, saved or not.
    int Revision();

    //! False while an operation runs.
    bool NewScene();
    //! Opens an .orvane file. Of a damaged one all that can be read; it has no path then, so that
    //! saving does not replace what might still be rescued.
    FileReport OpenScene(const QString &path);
    //! A new scene with this mesh to draw on.
    FileReport OpenMesh(const QString &path);
    //! The mesh as a further geometry; one undo step.
    FileReport ImportMesh(const QString &path);
    //! The curves of a file, put onto the drawing surface; all of them one undo step.
    FileReport ImportCurves(const QString &path);
    //! Opens a scene, opens a mesh or imports curves, as the files are: as File > Open, dropped
    //! files and the command line do. A scene goes first and there is one at most; without it the
    //! first mesh makes a new scene. Further meshes are imported, then curves. What was opened
    //! along with a mesh is no unsaved work.
    FileReport Open(const QStringList &paths);
    //! Would opening them replace the scene?
    static bool WouldReplaceScene(const QStringList &paths);
    //! Opens what a crash left, as unsaved work of the file it belonged to.
    FileReport OpenRecovered(const Recovery &recovery);

    //! False, and one sentence in *error, when it could not be saved, or has no path yet.
    bool Save(QString *error);
    bool SaveAs(const QString &path, QString *error);
    //! Writes the selected geometries, else the active one, else all.
    bool ExportMeshes(const QString &path, QString *error) const;
    //! Writes the selected curves, else all that are visible.
    bool ExportCurves(const QString &path, QString *error) const;

    //! Looks at what has happened to the scene; it does so by itself whenever the program waits
    //! for events.
    void Refresh();

signals:
    void changed();     //!< IsChanged answers otherwise than before
    void pathChanged(); //!< the scene is another one, or its path or title is
    void saved();       //!< the scene was written to its file

private:
    FileReport openContents(const QString &file, const QString &path, const QString &title,
                            bool isSaved);
    void noteOpened(const QString &path, const QString &title, const QString &folder, bool isSaved);
    void setFile(const QString &path, const QString &title, const QString &folder);
    void noteSaved();

    QString m_path;
    QString m_title;         // empty: none was given
    QString m_folder;        // where what was opened lies; empty for nowhere
    int m_queueRevision = 0; // of the undo queue, at the last look
    int m_revision = 0;
    bool m_isChanged = false; // at the last look
};

} // namespace orvane
