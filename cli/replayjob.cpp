// SPDX-License-Identifier: MIT
#include "cli/replayjob.h"

#include "cli/batchwords.h"
#include "cli/exitcode.h"
#include "cli/outputs.h"
#include "cli/terminal.h"
#include "host/files/safefile.h"
#include "host/files/scenefile.h"
#include "host/meshchecker/meshchecker.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/pluginloader.h>
#include <orvane/kernel/scene.h>

#include <QFileInfo>

#include <algorithm>

int ReplayJob::run()
{
    QString error;
    if (!outputCanBeWritten(&error))
        return fileTrouble(error);
    const QVector<CommandLine> commands = readCommands(m_options.commands, &error);
    if (commands.isEmpty() || !openScene(&error))
        return fileTrouble(error);
    loadPlugins();
    for (const CommandLine &command : commands)
        replay(command);
    if (m_meshesWithFaults > 0)
        printLine(stderr, acceptedFaultsInWords(m_meshesWithFaults));
    if (m_meshes == 0) {
        printLine(stderr,
                  QStringLiteral("No mesh was made; %1 was not written.").arg(m_options.output));
        return m_discarded ? ExitFaults : ExitNothingMade;
    }
    if (!orvane::writeScene(m_options.output, &error))
        return fileTrouble(error);
    printLine(stdout, QStringLiteral("wrote %1").arg(m_options.output));
    return ExitDone;
}

// The scene itself may be the output: it is replaced only once the new one is whole.
bool ReplayJob::outputCanBeWritten(QString *error) const
{
    if (!isSceneOutput(m_options.output, error)
        || !areOutputsApart({m_options.commands}, {m_options.output}, error))
        return false;
    // But not when parts of it were left out.
    return !m_options.salvage || areOutputsApart({m_options.scene}, {m_options.output}, error);
}

bool ReplayJob::openScene(QString *error) const
{
    orvane::SceneContents contents;
    if (!orvane::readScene(m_options.scene, &contents, error))
        return false;
    const QStringList damage = contents.damage + orvane::openScene(contents);
    for (const QString &sentence : damage)
        printLine(stderr, orvane::aboutFile(m_options.scene, sentence));
    if (damage.isEmpty() || m_options.salvage)
        return true;
    *error = orvane::aboutFile(
        m_options.scene, QStringLiteral("it is damaged; expected --salvage to go on with the %1 "
                                        "that could be read.")
                             .arg(counted(orvane::Kernel()->Scene()->NodeCount(), "object")));
    return false;
}

void ReplayJob::loadPlugins() const
{
    for (const QString &folder : m_options.pluginFolders) {
        if (!QFileInfo(folder).isDir())
            printLine(
                stderr,
                QStringLiteral("WARNING: --plugins %1: there is no such folder.").arg(folder));
    }
    orvane::PluginLoader loader;
    for (const QString &folder : orvane::PluginLoader::StandardFolders(m_options.pluginFolders))
        loader.AddFolder(folder);
    loader.Load();
    loader.Initialise();
    for (const orvane::PluginLoader::Entry &plugin : loader.Entries()) {
        if (plugin.state == orvane::PluginLoader::State::Failed)
            printLine(stderr, QStringLiteral("WARNING: ") + plugin.reason);
    }
}

void ReplayJob::replay(const CommandLine &command)
{
    auto *kernel = orvane::Kernel();
    const int nodes = kernel->Scene()->NodeCount();
    const int operations = kernel->OperationCount();
    printLine(stdout, QStringLiteral("line %1: %2").arg(command.number).arg(command.text));
    kernel->CommandAttribute().SetValue(command.text);
    const QString doubt = doubtAbout(command.text);
    const bool isKnown = kernel->OperationCount() != operations;
    if (!isKnown)
        warn(command, QStringLiteral("no tool knows this command; it was ignored"), doubt);
    else if (!doubt.isEmpty())
        warn(command, doubt);
    if (isKnown)
        report(nodes);
}

void ReplayJob::warn(const CommandLine &command, const QString &what, const QString &hint) const
{
    const QString text =
        hint.isEmpty() ? what : what + QStringLiteral(" (") + hint + QLatin1Char(')');
    printLine(
        stderr,
        QStringLiteral("%1: line %2: %3.").arg(m_options.commands).arg(command.number).arg(text));
}

void ReplayJob::report(int firstNode)
{
    const RunReport &run = lastRunReport();
    const orvane::Scene &scene = *orvane::Kernel()->Scene();
    const orvane::MeshChecker checker;
    const int meshesBefore = m_meshes;
    for (int i = firstNode; i < scene.NodeCount(); ++i) {
        const auto *geometry = dynamic_cast<const orvane::Geometry *>(scene.NodeAt(i));
        if (!geometry)
            continue;
        ++m_meshes;
        const orvane::SubdivisionLevel *mesh = geometry->CurrentLevel();
        printLine(stdout, QStringLiteral("  %1: %2")
                              .arg(geometry->Name(), counted(mesh->Polygons().Count(), "face")));
        const QVector<orvane::MeshFault> faults = checker.Find(mesh);
        for (const orvane::MeshFault &fault : faults)
            printLine(stdout, QStringLiteral("    FAULT: ") + faultInWords(fault));
        m_meshesWithFaults += !faults.isEmpty();
    }
    if (m_meshes == meshesBefore)
        printLine(stdout, QStringLiteral("  nothing was made: ") + run.failure);
    m_discarded |=
        std::any_of(run.pieces.cbegin(), run.pieces.cend(), [](const PieceReport &piece) {
            return piece.outcome == PieceReport::Discarded;
        });
}
