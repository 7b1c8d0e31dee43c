// SPDX-License-Identifier: MIT
#include "tests/host/framework/pluginrun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace {

const int Timeout = 60 * 1000; // milliseconds

QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString();
}

QStringList texts(const QJsonObject &object, const char *key)
{
    QStringList all;
    for (const QJsonValue &value : object.value(QLatin1String(key)).toArray())
        all.append(value.toString());
    return all;
}

PluginRun::Entry entryOf(const QJsonObject &object)
{
    PluginRun::Entry entry;
    entry.file = QFileInfo(text(object, "file")).fileName();
    entry.canonicalFile = text(object, "canonicalFile");
    entry.state = text(object, "state");
    entry.reason = text(object, "reason");
    entry.name = text(object, "name");
    entry.description = text(object, "description");
    entry.author = text(object, "author");
    entry.address = text(object, "address");
    entry.buildStamp = text(object, "buildStamp");
    return entry;
}

} // namespace

QString PluginRun::states() const
{
    QStringList all;
    for (const Entry &entry : entries)
        all.append(entry.file + QLatin1Char('=') + entry.state);
    return all.join(QLatin1Char(' '));
}

PluginRunTest::PluginRunTest()
{
    EXPECT_TRUE(m_folder.isValid());
}

QString PluginRunTest::built(const QString &plugin)
{
    const QDir folder(QStringLiteral(TEST_PLUGINS "/") + plugin);
    const QStringList files = folder.entryList(
        {QStringLiteral("*.so"), QStringLiteral("*.dll"), QStringLiteral("*.dylib")}, QDir::Files);
    EXPECT_EQ(files.size(), 1) << qPrintable(folder.path());
    return folder.filePath(files.value(0));
}

void PluginRunTest::put(const QString &plugin, const QString &name) const
{
    const QString file = built(plugin);
    const QString as = name.isEmpty() ? QFileInfo(file).fileName() : name;
    EXPECT_TRUE(QFile::copy(file, path(as))) << qPrintable(as);
}

void PluginRunTest::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void PluginRunTest::makeFolder(const QString &name) const
{
    EXPECT_TRUE(QDir(path()).mkpath(name)) << qPrintable(name);
}

void PluginRunTest::link(const QString &target, const QString &name) const
{
    EXPECT_TRUE(QFile::link(target, path(name))) << qPrintable(name);
}

PluginRun PluginRunTest::run(const QStringList &words) const
{
    return start(QStringLiteral(LOADPLUGINS), words);
}

PluginRun PluginRunTest::runLinked(const QStringList &words) const
{
    return start(QStringLiteral(LOADPLUGINS_LINKED), words);
}

PluginRun PluginRunTest::start(const QString &program, const QStringList &words) const
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, words);
    PluginRun result;
    if (!process.waitForFinished(Timeout)) {
        ADD_FAILURE() << "the program did not finish";
        process.kill();
        process.waitForFinished();
        return result;
    }
    result.crashed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    const QJsonObject object = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    for (const QJsonValue &entry : object.value(QLatin1String("entries")).toArray())
        result.entries.append(entryOf(entry.toObject()));
    result.menu = texts(object, "menu");
    result.log = texts(object, "log");
    result.records = texts(object, "records");
    result.map = text(object, "map");
    return result;
}
