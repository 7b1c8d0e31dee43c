// SPDX-License-Identifier: MIT
#include "cli/batchinterface.h"
#include "cli/buildjob.h"
#include "cli/commandline.h"
#include "cli/dialoganswers.h"
#include "cli/exitcode.h"
#include "cli/replayjob.h"
#include "cli/smalljobs.h"
#include "cli/terminal.h"

#include <orvane/base/log.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>
#include <orvane/kernel/scene.h>

#include <QApplication>

#include <csignal>
#include <new>

namespace {

// What Qt finds worth saying about platforms and folders is for the log, not for the user; but for
// what ends the process.
void toLog(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    orvane::log(message);
    if (type == QtFatalMsg)
        printLine(stderr, message);
}

// A report that could not be written must not pass for one that was.
int afterOutput(int code)
{
    if (std::ferror(stdout) == 0)
        return code;
    printLine(stderr, QStringLiteral("quillmesh: the report cannot be written to the output."));
    return code == ExitDone ? ExitFileTrouble : code;
}

// Help goes to the output, a mistake to the error stream.
int answer(const ParseResult &parsed)
{
    if (parsed.kind == ParseResult::ShowHelp) {
        print(stdout, parsed.text);
        return ExitDone;
    }
    printLine(stderr, QStringLiteral("quillmesh: ") + parsed.text);
    return ExitWrongUsage;
}

// The reports are English; the tool's own texts can be another language.
void prepareTool(const QString &language, bool acceptFaults, DialogAnswers &answers)
{
    if (!orvane::setLanguage(orvane::resourceFolder() + QStringLiteral("/Translations"), language))
        printLine(stderr, QStringLiteral("There is no translation to \"%1\".").arg(language));
    answers.setAnswer(QStringLiteral("ValidateMeshFeedbackmDialog"),
                      acceptFaults ? QStringLiteral("accept") : QStringLiteral("close"));
}

int build(const QStringList &words, DialogAnswers &answers)
{
    BuildOptions options;
    const ParseResult parsed = parseBuild(words, options);
    if (parsed.kind != ParseResult::Run)
        return answer(parsed);
    prepareTool(options.language, options.acceptFaults, answers);
    return BuildJob(options).run();
}

int replay(const QStringList &words, DialogAnswers &answers)
{
    ReplayOptions options;
    const ParseResult parsed = parseReplay(words, options);
    if (parsed.kind != ParseResult::Run)
        return answer(parsed);
    prepareTool(options.language, options.acceptFaults, answers);
    return ReplayJob(options).run();
}

int check(const QStringList &words)
{
    QString mesh;
    const ParseResult parsed = parseCheck(words, mesh);
    return parsed.kind == ParseResult::Run ? runCheck(mesh) : answer(parsed);
}

int picture(const QStringList &words)
{
    PictureOptions options;
    const ParseResult parsed = parsePicture(words, options);
    return parsed.kind == ParseResult::Run ? runPicture(options) : answer(parsed);
}

int runCommand(const QStringList &words, DialogAnswers &answers)
{
    const QString command = words.value(0);
    if (command == QLatin1String("build"))
        return build(words.mid(1), answers);
    if (command == QLatin1String("check"))
        return check(words.mid(1));
    if (command == QLatin1String("picture"))
        return picture(words.mid(1));
    if (command == QLatin1String("replay"))
        return replay(words.mid(1), answers);
    if (command == QLatin1String("-h") || command == QLatin1String("--help"))
        return answer({ParseResult::ShowHelp, programHelp()});
    if (command == QLatin1String("-v") || command == QLatin1String("--version"))
        return answer({ParseResult::ShowHelp,
                       QStringLiteral("quillmesh %1\n").arg(qApp->applicationVersion())});
    const QString help = QStringLiteral(" See \"quillmesh --help\".");
    return answer(
        {ParseResult::Wrong, command.isEmpty()
                                 ? QStringLiteral("A command is missing.") + help
                                 : QStringLiteral("\"%1\" is no command.").arg(command) + help});
}

int runWithinMemory(const QStringList &words, DialogAnswers &answers)
{
    try {
        return runCommand(words, answers);
    } catch (const std::bad_alloc &) {
        printLine(stderr, QStringLiteral("quillmesh: there is not enough memory for this input."));
        return ExitNothingMade;
    }
}

} // namespace

int main(int argc, char **argv)
{
    // A file over the limit is then a failed write with a message, not the end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
    // The same input gives the same picture, however large the user likes letters on a screen.
    for (const char *name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"})
        qunsetenv(name);
    // A desktop's own platform, which its sessions hand on, may not be there in a batch.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(toLog);
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    int noWords = 1; // Qt would take those it knows for its own
    QApplication application(noWords, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quillmesh"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLMESH_VERSION));
    BatchInterface interface;
    orvane::Kernel()->SetInterface(&interface);
    DialogAnswers answers;
    const int code = afterOutput(runWithinMemory(words, answers));
    orvane::Kernel()->Scene()->Clear();
    orvane::Kernel()->SetInterface(nullptr);
    return code;
}
