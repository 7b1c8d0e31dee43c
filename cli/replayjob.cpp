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

#include <QTextStream>

#include <algorithm>

int ReplayJob::run()
{
    QString error;
    if (!outputCanBeWritten(&error) || !readCommands(&error) || !openScene(&error)) {
        printLine(stderr, error);
        return ExitFileTrouble;
    }
    loadPlugins();
    for (const Command &command : qAsConst(m_commands))
        replay(command);
    if (m_meshesWithFaults > 0)
        printLine(stderr, acceptedFaultsInWords(m_meshesWithFaults));
    if (m_meshes == 0)
        return m_discarded ? ExitFaults : ExitNothingMade;
    if (!orvane::writeScene(m_options.output, &error)) {
        printLine(stderr, error);
        return ExitFileTrouble;
    }
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

bool ReplayJob::readCommands(QString *error)
{
    QByteArray bytes;
    if (!orvane::readWhole(m_options.commands, &bytes, error))
        return false;
    QTextStream stream(bytes);
    stream.setCodec("UTF-8");
    QString text;
    for (int line = 1; stream.readLineInto(&text); ++line) {
        // Blanks within and after a command have a meaning; only the whole line may have none.
        const QString words = text.trimmed();
        if (!words.isEmpty() && !words.startsWith(QLatin1Char('#')))
            m_commands.append({line, text});
    }
    if (!m_commands.isEmpty())
        return true;
    *error = orvane::aboutFile(m_options.commands,
                               QStringLiteral("there is no command in it; expected lines such as "
                                              "\"manualretopo 5 0.3 0.05 35 0\"."));
    return false;
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

void ReplayJob::replay(const Command &command)
{
    auto *kernel = orvane::Kernel();
    const QVector<orvane::Geometry *> before = kernel->Scene()->Geometries();
    const int operations = kernel->OperationCount();
    printLine(stdout, QStringLiteral("line %1: %2").arg(command.line).arg(command.text));
    kernel->CommandAttribute().SetValue(command.text);
    if (kernel->OperationCount() == operations) {
        printLine(stderr, QStringLiteral("%1: line %2: no tool knows this command; it was ignored.")
                              .arg(m_options.commands)
                              .arg(command.line));
        return;
    }
    report(kernel->Scene()->Geometries().mid(before.size()));
}

void ReplayJob::report(const QVector<orvane::Geometry *> &made)
{
    const RunReport &run = lastRunReport();
    const orvane::MeshChecker checker;
    for (const orvane::Geometry *geometry : made) {
        const orvane::SubdivisionLevel *mesh = geometry->CurrentLevel();
        printLine(stdout, QStringLiteral("  %1: %2")
                              .arg(geometry->Name(), counted(mesh->Polygons().Count(), "face")));
        const QVector<orvane::MeshFault> faults = checker.Find(mesh);
        for (const orvane::MeshFault &fault : faults)
            printLine(stdout, QStringLiteral("    FAULT: ") + faultInWords(fault));
        m_meshesWithFaults += !faults.isEmpty();
    }
    if (made.isEmpty())
        printLine(stdout, QStringLiteral("  nothing was made: ") + run.failure);
    m_meshes += made.size();
    m_discarded |=
        std::any_of(run.pieces.cbegin(), run.pieces.cend(), [](const PieceReport &piece) {
            return piece.outcome == PieceReport::Discarded;
        });
}
