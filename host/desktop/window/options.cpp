// SPDX-License-Identifier: MIT
#include "host/desktop/window/options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace orvane {

namespace {

struct Words
{
    QCommandLineOption testMode{QStringLiteral("test-mode"),
                                QStringLiteral("Behave the same on every run, for tests.")};
    QCommandLineOption language{QStringLiteral("language"),
                                QStringLiteral("Show texts in this language, such as \"de\"."),
                                QStringLiteral("CODE")};
    QCommandLineOption command{
        QStringLiteral("command"),
        QStringLiteral("Carry out a recorded command once the files are open. May be repeated."),
        QStringLiteral("TEXT")};
    QCommandLineOption plugins{QStringLiteral("plugins"),
                               QStringLiteral("Load the plug-ins of this folder, too. May be "
                                              "repeated."),
                               QStringLiteral("DIR")};
    QCommandLineOption screenshot{
        QStringLiteral("screenshot"),
        QStringLiteral("Write a picture of the window after the commands, and quit."),
        QStringLiteral("FILE")};
    QCommandLineOption noRecovery{
        QStringLiteral("no-recovery"),
        QStringLiteral("Do not offer what an earlier run could not save.")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Show this help.")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                               QStringLiteral("Show the version.")};

    void addTo(QCommandLineParser &parser) const
    {
        parser.setApplicationDescription(QStringLiteral("A bench to draw curves on meshes.\n"
                                                        "Example: orvane head.obj"));
        parser.addPositionalArgument(QStringLiteral("files"),
                                     QStringLiteral("Meshes, curves and scenes to open."),
                                     QStringLiteral("[files...]"));
        parser.addOptions(
            {testMode, language, command, plugins, screenshot, noRecovery, help, version});
    }
};

QString absolute(const QString &path)
{
    return path.isEmpty() ? QString() : QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

QStringList absolute(const QStringList &paths)
{
    QStringList result;
    for (const QString &path : paths)
        result.append(absolute(path));
    return result;
}

OptionsResult wrong(const QString &text)
{
    return {OptionsResult::Wrong, text, {}};
}

// An option that is given without a value of its own would swallow silently what comes next.
QString emptyValue(const QCommandLineParser &parser, const QList<QCommandLineOption> &options)
{
    for (const QCommandLineOption &option : options) {
        if (parser.values(option).contains(QString()))
            return option.names().constFirst();
    }
    return {};
}

Options optionsOf(const QCommandLineParser &parser, const Words &words)
{
    Options options;
    options.files = absolute(parser.positionalArguments());
    options.commands = parser.values(words.command);
    options.pluginFolders = absolute(parser.values(words.plugins));
    options.language = parser.value(words.language);
    options.screenshot = absolute(parser.value(words.screenshot));
    options.testMode = parser.isSet(words.testMode);
    options.recovery = !parser.isSet(words.noRecovery);
    return options;
}

} // namespace

OptionsResult readOptions(const QStringList &arguments)
{
    const Words words;
    QCommandLineParser parser;
    words.addTo(parser);
    if (!parser.parse(arguments))
        return wrong(parser.errorText());
    if (parser.isSet(words.help))
        return {OptionsResult::ShowText, parser.helpText(), {}};
    if (parser.isSet(words.version)) {
        return {OptionsResult::ShowText,
                QStringLiteral("orvane %1\n").arg(QCoreApplication::applicationVersion()),
                {}};
    }
    const QString empty =
        emptyValue(parser, {words.language, words.command, words.plugins, words.screenshot});
    if (!empty.isEmpty())
        return wrong(QStringLiteral("\"--%1\" needs a value.").arg(empty));
    return {OptionsResult::Run, {}, optionsOf(parser, words)};
}

bool asksForText(const QStringList &arguments)
{
    const Words words;
    for (const QString &argument : arguments) {
        const QString name = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
        if (argument.startsWith(QLatin1Char('-'))
            && (words.help.names() + words.version.names()).contains(name))
            return true;
    }
    return false;
}

} // namespace orvane
