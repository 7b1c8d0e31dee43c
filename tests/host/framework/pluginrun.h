// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

#include <gtest/gtest.h>

//! What a run of the loader left behind, in a process of its own.
struct PluginRun
{
    struct Entry
    {
        QString file; // without its folder
        QString canonicalFile;
        QString state;
        QString reason;
        QString name;
        QString description;
        QString author;
        QString address;
        QString buildStamp;
    };

    bool crashed = false;
    QVector<Entry> entries;
    QStringList menu; // menu/label, in the order they were added; each was clicked
    QStringList log;
    QStringList records; // the file of each record that was left
    QString map;         // of the process's memory

    //! file=state of all entries, in their order, with blanks between.
    QString states() const;
    //! Is a library of that file name in the process, with or without a record?
    bool isInProcess(const QString &fileName) const { return map.contains(u'/' + fileName); }
};

//! Puts plug-ins into a folder that goes with the test, and runs the loader on it.
class PluginRunTest : public testing::Test
{
protected:
    PluginRunTest();

    QString path(const QString &name = {}) const { return m_folder.filePath(name); }
    //! The library of a folder of tests/plugins.
    static QString built(const QString &plugin);
    //! Copies a library of tests/plugins into the folder, under another name if one is given.
    void put(const QString &plugin, const QString &name = {}) const;
    void write(const QString &name, const QByteArray &bytes) const;
    void makeFolder(const QString &name) const;
    void link(const QString &target, const QString &name) const;

    //! Loads and initialises what is in the folder.
    PluginRun run() const { return run({path()}); }
    PluginRun run(const QStringList &words) const;
    //! The same by a program that has the plug-in minimal linked.
    PluginRun runLinked(const QStringList &words) const;

private:
    PluginRun start(const QString &program, const QStringList &words) const;

    QTemporaryDir m_folder;
};
