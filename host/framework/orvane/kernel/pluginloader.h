// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QString>
#include <QStringList>
#include <QVector>

class QFileInfo;

namespace orvane {

//! Finds, loads and initialises the plug-ins of some folders. One that is broken is logged in one
//! sentence and never stops the others. Nothing is unloaded at the end: plug-ins stay until the
//! process goes.
class ORVANE_EXPORT PluginLoader
{
public:
    enum class State {
        Found,       //!< it has a library's name; nobody has looked into it yet
        Loaded,      //!< it is in the process with a record that fits; nothing of it has run
        Initialised, //!< its initialiser has run
        Failed,      //!< it is of no use, the reason says why; out of the process again where safe
    };

    struct Entry
    {
        QString file;          // as it was found first
        QString canonicalFile; // the same for all names of a file: without symbolic links
        State state = State::Found;
        QString reason; // a sentence with the file's name, of Failed only
        // From the record, where there is one that is of use.
        QString name;
        QString description;
        QString author;
        QString address;
        QString buildStamp;
    };

    //! The folder plugins beside the program's own, those of the environment variable
    //! ORVANE_PLUGIN_PATH, then the extra ones.
    static QStringList StandardFolders(const QStringList &extra);

    //! Load looks into it. A relative path counts from the working directory of now.
    void AddFolder(const QString &folder);
    //! Finds the libraries, folder by folder and in the order of their names, and loads those that
    //! no earlier call has seen. A file in the process already is listed and not loaded again, and
    //! a file found twice is listed once.
    void Load();
    //! Runs the initialiser of each plug-in that is Loaded, in the order of the list.
    void Initialise();

    const QVector<Entry> &Entries() const { return m_entries; }

private:
    void find(const QString &folder);
    void list(const QFileInfo &info);
    void replace(int index, const Entry &entry);

    QStringList m_folders;
    QVector<Entry> m_entries;
};

} // namespace orvane
