// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"

#include <orvane/kernel/plugin.h>

#include <QCoreApplication>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <stdexcept>

using orvane::Plugin;

namespace {

int runs = 0; // of countRun

void countRun()
{
    ++runs;
}

const Plugin InTheProgram("In the program", "", "", "", "", nullptr);

} // namespace

TEST(Plugin, saysWhatItWasMadeWith)
{
    const Plugin plugin("name", "Näme to show", "author", "https://a.example", "Feb  3 2025",
                        nullptr);
    EXPECT_EQ(plugin.Name(), QStringLiteral("name"));
    EXPECT_EQ(plugin.Description(), QString::fromUtf8("Näme to show"));
    EXPECT_EQ(plugin.Author(), QStringLiteral("author"));
    EXPECT_EQ(plugin.Address(), QStringLiteral("https://a.example"));
    EXPECT_EQ(plugin.BuildStamp(), QStringLiteral("Feb  3 2025"));
    EXPECT_EQ(plugin.FrameworkVersion(), ORVANE_FRAMEWORK_VERSION);
    EXPECT_TRUE(plugin.FitsFramework());
}

TEST(Plugin, isKnownWhileItLives)
{
    {
        const Plugin plugin("short-lived", "", "", "", "", nullptr);
        EXPECT_TRUE(Plugin::All().contains(&plugin));
        EXPECT_FALSE(plugin.IsRefused());
    }
    const QVector<const Plugin *> all = Plugin::All();
    EXPECT_EQ(all, QVector<const Plugin *>{&InTheProgram});
}

TEST(Plugin, ofATakenNameIsRefusedAndLogged)
{
    const Plugin first("twin", "", "", "", "", nullptr);
    {
        const LogCatcher log;
        const Plugin second("twin", "", "", "", "", nullptr);
        EXPECT_TRUE(second.IsRefused());
        EXPECT_FALSE(first.IsRefused());
        EXPECT_EQ(log.text(), QStringLiteral("A second plug-in named twin was refused."));
        EXPECT_TRUE(Plugin::All().contains(&second)) << "refused is not the same as no record";
    }
    const Plugin third("twin", "", "", "", "", nullptr);
    EXPECT_TRUE(third.IsRefused()) << "the refused one must not take the first with it";
}

TEST(Plugin, leavesItsNameFreeWhenItGoes)
{
    {
        const Plugin first("passing", "", "", "", "", nullptr);
    }
    const Plugin second("passing", "", "", "", "", nullptr);
    EXPECT_FALSE(second.IsRefused());
}

TEST(Plugin, declaresAndDoesNothing)
{
    runs = 0;
    const LogCatcher log;
    const Plugin plugin("idle", "", "", "", "", countRun);
    EXPECT_EQ(runs, 0);
    EXPECT_EQ(log.count(), 0);
}

TEST(Plugin, runsItsInitialiserOnce)
{
    runs = 0;
    const Plugin plugin("once", "", "", "", "", countRun);
    EXPECT_EQ(plugin.Initialise(), QString());
    EXPECT_EQ(plugin.Initialise(), QString());
    EXPECT_EQ(runs, 1);
}

TEST(Plugin, withoutInitialiserHasNothingToDo)
{
    const Plugin plugin("lazy", "", "", "", "", nullptr);
    EXPECT_EQ(plugin.Initialise(), QString());
}

TEST(Plugin, answersWhatItsInitialiserThrew)
{
    const Plugin spoken("spoken", "", "", "", "", [] { throw std::runtime_error("no luck"); });
    EXPECT_EQ(spoken.Initialise(), QStringLiteral("no luck"));
    EXPECT_EQ(spoken.Initialise(), QStringLiteral("no luck"));
    const Plugin silent("silent", "", "", "", "", [] { throw std::runtime_error(""); });
    EXPECT_EQ(silent.Initialise(), QStringLiteral("an exception without words"));
    const Plugin number("number", "", "", "", "", [] { throw 7; });
    EXPECT_EQ(number.Initialise(), QStringLiteral("an exception of a kind of its own"));
}

TEST(Plugin, withoutTextsIsAllRight)
{
    const Plugin plugin(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    EXPECT_TRUE(plugin.Name().isEmpty());
    EXPECT_TRUE(plugin.BuildStamp().isEmpty());
}

TEST(Plugin, knowsTheFileItLiesIn)
{
    EXPECT_EQ(InTheProgram.File(),
              QFileInfo(QCoreApplication::applicationFilePath()).canonicalFilePath());
    const Plugin onTheStack("on the stack", "", "", "", "", nullptr);
    EXPECT_EQ(onTheStack.File(), QString());
}
