// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/commandbar.h"
#include "host/desktop/window/filecommands.h"
#include "host/desktop/window/mainwindow.h"
#include "host/desktop/window/options.h"

#include <orvane/base/log.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>
#include <orvane/kernel/pluginloader.h>

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QSettings>
#include <QStandardPaths>
#include <QSurfaceFormat>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>
#include <cstdio>

namespace {

const int DrawingTime = 400; // milliseconds for the window to be there before its picture is taken

enum ExitCode { ExitDone, ExitWrongUsage = 2, ExitFileTrouble = 3 };

void toLog(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    orvane::log(message);
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

void nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Orvane"));
    QCoreApplication::setApplicationName(QStringLiteral("orvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUILLMESH_VERSION));
}

int answer(const orvane::OptionsResult &result)
{
    if (result.kind == orvane::OptionsResult::ShowText) {
        std::fputs(qPrintable(result.text), stdout);
        return ExitDone;
    }
    std::fprintf(stderr, "orvane: %s See \"orvane --help\".\n", qPrintable(result.text));
    return ExitWrongUsage;
}

QStringList wordsOf(int argc, char **argv)
{
    QStringList words;
    for (int i = 0; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

// Test mode keeps nothing of the user's, and leaves nothing.
QSettings *newSettings(const QTemporaryDir &folder, bool testMode)
{
    if (!testMode)
        return new QSettings;
    return new QSettings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
}

// Nobody is there to answer a dialog while a picture is to be taken: each gets what Enter answers.
void answerDialogs(QTimer &timer)
{
    QObject::connect(&timer, &QTimer::timeout, [] {
        if (QWidget *dialog = QApplication::activeModalWidget()) {
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(dialog, &enter);
        }
    });
    timer.start(DrawingTime / 4);
}

int takePicture(orvane::MainWindow &window, const QString &path)
{
    QTimer::singleShot(DrawingTime, qApp, &QCoreApplication::quit);
    QApplication::exec();
    if (window.Picture().save(path))
        return ExitDone;
    std::fprintf(stderr, "orvane: %s cannot be written.\n",
                 qPrintable(QDir::toNativeSeparators(path)));
    return ExitFileTrouble;
}

int run(const orvane::Options &options, QSettings *settings)
{
    const QString language = options.language.isEmpty()
                                 ? settings->value(QStringLiteral("Desktop/language")).toString()
                                 : options.language;
    if (!orvane::setLanguage(orvane::resourceFolder() + QStringLiteral("/Translations"), language)
        && !language.isEmpty())
        orvane::log(QStringLiteral("There is no translation to \"%1\".").arg(language));
    orvane::PluginLoader plugins;
    for (const QString &folder : orvane::PluginLoader::StandardFolders(options.pluginFolders))
        plugins.AddFolder(folder);
    orvane::MainWindow window(settings, &plugins);
    plugins.Load();
    plugins.Initialise();
    window.show();
    QTimer answering;
    if (!options.screenshot.isEmpty())
        answerDialogs(answering);
    if (options.recovery && options.screenshot.isEmpty())
        window.Files().OfferRecovery();
    window.Files().Open(options.files);
    for (const QString &command : options.commands)
        orvane::runCommand(command);
    return options.screenshot.isEmpty() ? QApplication::exec()
                                        : takePicture(window, options.screenshot);
}

} // namespace

int main(int argc, char **argv)
{
#ifdef SIGXFSZ
    // A file over the limit is then a failed write with a message, not the end of the process.
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    nameApplication();
    if (orvane::asksForText(wordsOf(argc, argv))) {
        const QCoreApplication application(argc, argv); // needs no display
        return answer(orvane::readOptions(QCoreApplication::arguments()));
    }
    qInstallMessageHandler(toLog);
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QSurfaceFormat::setDefaultFormat(orvane::ViewportWidget::Format());
    QApplication application(argc, argv);
    const orvane::OptionsResult result = orvane::readOptions(QApplication::arguments());
    if (result.kind != orvane::OptionsResult::Run)
        return answer(result);
    // Pictures and help pages have relative names.
    QDir::setCurrent(orvane::resourceFolder());
    QStandardPaths::setTestModeEnabled(result.options.testMode);
    orvane::Kernel()->SetTestMode(result.options.testMode);
    const QTemporaryDir folder;
    const QScopedPointer<QSettings> settings(newSettings(folder, result.options.testMode));
    const int code = run(result.options, settings.data());
    orvane::Kernel()->NewScene();
    return code;
}
