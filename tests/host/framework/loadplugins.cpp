// SPDX-License-Identifier: MIT
// Loads and initialises the plug-ins of the folders it is given, in that order, and prints as JSON
// what became of them. A program of its own, because what has once been loaded stays in a process.
// usage: loadplugins [--no-initialise] [--twice] [--another-loader] FOLDER...
#include "tests/support/logcatcher.h"

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/plugin.h>
#include <orvane/kernel/pluginloader.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using orvane::PluginLoader;

namespace {

QString nameOf(PluginLoader::State state)
{
    switch (state) {
    case PluginLoader::State::Found:
        return QStringLiteral("Found");
    case PluginLoader::State::Loaded:
        return QStringLiteral("Loaded");
    case PluginLoader::State::Initialised:
        return QStringLiteral("Initialised");
    case PluginLoader::State::Failed:
        return QStringLiteral("Failed");
    }
    return {};
}

QJsonObject toJson(const PluginLoader::Entry &entry)
{
    return {{QStringLiteral("file"), entry.file},
            {QStringLiteral("canonicalFile"), entry.canonicalFile},
            {QStringLiteral("state"), nameOf(entry.state)},
            {QStringLiteral("reason"), entry.reason},
            {QStringLiteral("name"), entry.name},
            {QStringLiteral("description"), entry.description},
            {QStringLiteral("author"), entry.author},
            {QStringLiteral("address"), entry.address},
            {QStringLiteral("buildStamp"), entry.buildStamp}};
}

QJsonArray entries(const PluginLoader &loader)
{
    QJsonArray all;
    for (const PluginLoader::Entry &entry : loader.Entries())
        all.append(toJson(entry));
    return all;
}

// Clicks every menu entry on the way: what it calls must still be in the process.
QJsonArray menuLabels()
{
    QJsonArray labels;
    for (const orvane::MenuItem &item : orvane::Kernel()->Interface()->MenuItems()) {
        item.callback();
        labels.append(item.menu + QLatin1Char('/') + item.label);
    }
    return labels;
}

QJsonArray recordFiles()
{
    QJsonArray files;
    for (const orvane::Plugin *plugin : orvane::Plugin::All())
        files.append(plugin->File());
    return files;
}

// The process as the system sees it.
QString memoryMap()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) ? QFile::decodeName(maps.readAll()) : QString();
}

void work(PluginLoader &loader, const QStringList &folders, bool initialise)
{
    for (const QString &folder : folders)
        loader.AddFolder(folder);
    loader.Load();
    if (initialise)
        loader.Initialise();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QStringList folders = application.arguments().mid(1);
    const bool initialise = folders.removeAll(QStringLiteral("--no-initialise")) == 0;
    const bool twice = folders.removeAll(QStringLiteral("--twice")) > 0;
    const bool another = folders.removeAll(QStringLiteral("--another-loader")) > 0;

    const LogCatcher log;
    PluginLoader loader;
    work(loader, folders, initialise);
    if (twice)
        work(loader, folders, initialise);
    if (another) {
        loader = PluginLoader();
        work(loader, folders, initialise);
    }
    const QJsonObject result{{QStringLiteral("entries"), entries(loader)},
                             {QStringLiteral("menu"), menuLabels()},
                             {QStringLiteral("log"), QJsonArray::fromStringList(log.texts())},
                             {QStringLiteral("records"), recordFiles()},
                             {QStringLiteral("map"), memoryMap()}};
    std::puts(QJsonDocument(result).toJson().constData());
    return 0;
}
