// SPDX-License-Identifier: MIT
#include "host/desktop/window/options.h"

#include <QDir>

#include <gtest/gtest.h>

using orvane::asksForText;
using orvane::OptionsResult;
using orvane::readOptions;

namespace {

OptionsResult read(const QStringList &words)
{
    return readOptions(QStringList{QStringLiteral("orvane")} + words);
}

QString here(const char *name)
{
    return QDir::current().absoluteFilePath(QLatin1String(name));
}

} // namespace

TEST(Options, nothingAskedForIsAnOrdinaryStart)
{
    const OptionsResult result = read({});
    EXPECT_EQ(result.kind, OptionsResult::Run);
    EXPECT_TRUE(result.options.files.isEmpty());
    EXPECT_TRUE(result.options.screenshot.isEmpty());
    EXPECT_FALSE(result.options.testMode);
    EXPECT_TRUE(result.options.recovery);
}

TEST(Options, filesAndFoldersBecomeAbsolute)
{
    const OptionsResult result = read({QStringLiteral("head.obj"), QStringLiteral("sub/../c.json"),
                                       QStringLiteral("--plugins"), QStringLiteral("here"),
                                       QStringLiteral("--plugins=there"),
                                       QStringLiteral("--screenshot"), QStringLiteral("a.png")});
    ASSERT_EQ(result.kind, OptionsResult::Run);
    EXPECT_EQ(result.options.files, QStringList({here("head.obj"), here("c.json")}));
    EXPECT_EQ(result.options.pluginFolders, QStringList({here("here"), here("there")}));
    EXPECT_EQ(result.options.screenshot, here("a.png"));
}

TEST(Options, commandsKeepTheirTextAndOrder)
{
    const OptionsResult result =
        read({QStringLiteral("--command"), QStringLiteral("make 5 0.3"),
              QStringLiteral("--command"), QStringLiteral("-x; y"), QStringLiteral("--test-mode"),
              QStringLiteral("--no-recovery"), QStringLiteral("--language=de")});
    ASSERT_EQ(result.kind, OptionsResult::Run);
    EXPECT_EQ(result.options.commands,
              QStringList({QStringLiteral("make 5 0.3"), QStringLiteral("-x; y")}));
    EXPECT_TRUE(result.options.testMode);
    EXPECT_FALSE(result.options.recovery);
    EXPECT_EQ(result.options.language, QStringLiteral("de"));
}

TEST(Options, aMistakeIsNamed)
{
    for (const char *words : {"--colour", "--screenshot", "--language=", "--plugins="}) {
        const OptionsResult result = read({QLatin1String(words)});
        EXPECT_EQ(result.kind, OptionsResult::Wrong) << words;
        EXPECT_TRUE(
            result.text.contains(QString::fromLatin1(words).section(QLatin1Char('='), 0, 0).mid(2)))
            << qPrintable(result.text);
    }
}

TEST(Options, helpNamesEveryOption)
{
    const OptionsResult result = read({QStringLiteral("--help")});
    ASSERT_EQ(result.kind, OptionsResult::ShowText);
    for (const char *name : {"--test-mode", "--language", "--command", "--plugins", "--screenshot",
                             "--no-recovery", "--help", "--version", "files"})
        EXPECT_TRUE(result.text.contains(QLatin1String(name))) << name;
}

TEST(Options, helpAndVersionNeedNoDisplay)
{
    EXPECT_TRUE(asksForText({QStringLiteral("orvane"), QStringLiteral("--help")}));
    EXPECT_TRUE(asksForText({QStringLiteral("orvane"), QStringLiteral("-v")}));
    EXPECT_FALSE(asksForText({QStringLiteral("orvane"), QStringLiteral("help.obj")}));
    EXPECT_FALSE(asksForText({QStringLiteral("orvane"), QStringLiteral("--command")}));
}
