// SPDX-License-Identifier: MIT
#include <orvane/kernel/pluginloader.h>

#include <orvane/base/log.h>
#include <orvane/kernel/libraryfile.h>
#include <orvane/kernel/plugin.h>

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

#include <algorithm>

namespace orvane {

namespace {

using Entry = PluginLoader::Entry;
using State = PluginLoader::State;

QVector<const Plugin *> recordsIn(const QString &canonicalFile)
{
    QVector<const Plugin *> records;
    for (const Plugin *plugin : Plugin::All()) {
        if (plugin->File() == canonicalFile)
            records.append(plugin);
    }
    return records;
}

Entry failed(Entry entry, const QString &reason)
{
    entry.state = State::Failed;
    entry.reason = reason;
    return entry;
}

// What the system says of a library that does not load, without the path that it puts in front.
QString plainError(const QLibrary &library)
{
    const QString text = library.errorString();
    const QString path = library.fileName() + QLatin1String(": ");
    const int at = text.lastIndexOf(path);
    if (at < 0)
        return text;
    QString plain = text.mid(at + path.size());
    if (plain.startsWith(QLatin1Char('(')))
        plain.remove(0, 1);
    if (plain.endsWith(QLatin1Char(')')))
        plain.chop(1);
    return plain;
}

// Why the records of a library that is in the process are of no use; empty when they are.
QString faultOf(const QVector<const Plugin *> &records, const QString &file)
{
    if (records.isEmpty())
        return QStringLiteral("%1 is a library without a plug-in record.").arg(file);
    if (records.size() > 1)
        return QStringLiteral("%1 has more than one plug-in record.").arg(file);
    const Plugin *plugin = records.first();
    if (!plugin->FitsFramework())
        return QStringLiteral("%1 was built against framework version %2, this is version %3.")
            .arg(file)
            .arg(plugin->FrameworkVersion())
            .arg(ORVANE_FRAMEWORK_VERSION);
    if (plugin->IsRefused())
        return QStringLiteral("%1 names itself %2, and another plug-in has that name.")
            .arg(file, plugin->Name());
    return {};
}

// The entry with what the library, which is in the process, says of itself.
Entry read(Entry entry)
{
    const QVector<const Plugin *> records = recordsIn(entry.canonicalFile);
    const QString fault = faultOf(records, QDir::toNativeSeparators(entry.file));
    if (!fault.isEmpty())
        return failed(entry, fault);
    const Plugin *plugin = records.first();
    entry.name = plugin->Name();
    entry.description = plugin->Description();
    entry.author = plugin->Author();
    entry.address = plugin->Address();
    entry.buildStamp = plugin->BuildStamp();
    entry.state = State::Loaded;
    return entry;
}

Entry load(const Entry &entry)
{
    const QString file = QDir::toNativeSeparators(entry.file);
    // Opening a pipe would wait for whoever writes to it.
    if (!QFileInfo(entry.canonicalFile).isFile())
        return failed(entry, QStringLiteral("%1 has a library's name but is no file.").arg(file));
    if (!recordsIn(entry.canonicalFile).isEmpty())
        return read(entry);
    if (isCutOff(entry.canonicalFile))
        return failed(entry,
                      QStringLiteral("%1 is cut off; expected the whole library.").arg(file));
    QLibrary library(entry.canonicalFile);
    // A missing function must show now, not at its first call.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!library.load())
        return failed(entry,
                      QStringLiteral("%1 does not load: %2.").arg(file, plainError(library)));
    const Entry result = read(entry);
    if (result.state == State::Failed)
        library.unload();
    return result;
}

Entry initialise(Entry entry)
{
    const QString file = QDir::toNativeSeparators(entry.file);
    const QVector<const Plugin *> records = recordsIn(entry.canonicalFile);
    if (records.isEmpty())
        return failed(entry, QStringLiteral("%1 has been unloaded by somebody else.").arg(file));
    const QString failure = records.first()->Initialise();
    // What it registered before it gave up points into the library, which stays for that reason.
    if (!failure.isEmpty())
        return failed(entry,
                      QStringLiteral("The initialiser of %1 failed: %2.").arg(file, failure));
    entry.state = State::Initialised;
    return entry;
}

} // namespace

QStringList PluginLoader::StandardFolders(const QStringList &extra)
{
    const QString own = QCoreApplication::applicationDirPath() + QLatin1String("/../plugins");
    const QString listed = qEnvironmentVariable("ORVANE_PLUGIN_PATH");
    return QStringList{QDir::cleanPath(own)}
           + listed.split(QDir::listSeparator(), Qt::SkipEmptyParts) + extra;
}

void PluginLoader::AddFolder(const QString &folder)
{
    // An empty name stays empty: it is a slip, not the working directory.
    const QString path = folder.isEmpty() ? folder : QDir(folder).absolutePath();
    if (!m_folders.contains(path))
        m_folders.append(path);
}

void PluginLoader::Load()
{
    for (const QString &folder : qAsConst(m_folders))
        find(folder);
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).state == State::Found)
            replace(i, load(m_entries.at(i)));
    }
}

void PluginLoader::Initialise()
{
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).state == State::Loaded)
            replace(i, initialise(m_entries.at(i)));
    }
}

void PluginLoader::find(const QString &folder)
{
    const QDir dir(folder);
    if (folder.isEmpty() || !dir.exists() || !dir.isReadable()) {
        log(QStringLiteral("The plug-in folder \"%1\" is missing or cannot be read.")
                .arg(QDir::toNativeSeparators(folder)));
        return;
    }
    // System: links that lead nowhere are reported too.
    const QFileInfoList files =
        dir.entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo &info : files) {
        if (QLibrary::isLibrary(info.fileName()))
            list(info);
    }
}

void PluginLoader::list(const QFileInfo &info)
{
    Entry entry;
    entry.file = info.absoluteFilePath();
    entry.canonicalFile = info.exists() ? info.canonicalFilePath() : entry.file;
    const bool known =
        std::any_of(m_entries.cbegin(), m_entries.cend(), [&entry](const Entry &other) {
            return other.canonicalFile == entry.canonicalFile;
        });
    if (!known)
        m_entries.append(entry);
}

void PluginLoader::replace(int index, const Entry &entry)
{
    m_entries[index] = entry;
    if (entry.state == State::Failed)
        log(entry.reason);
}

} // namespace orvane
