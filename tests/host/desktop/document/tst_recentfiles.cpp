// SPDX-License-Identifier: MIT
#include "host/desktop/document/recentfiles.h"
#include "tests/host/files/filetest.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

using namespace orvane;

namespace {

class RecentFilesTest : public FileTest
{
protected:
    QStringList names() const
    {
        QStringList result;
        for (const RecentFile &entry : recent.Files())
            result.append(QFileInfo(entry.path).fileName());
        return result;
    }

    QSettings settings{QStringLiteral("settings.ini"), QSettings::IniFormat};
    RecentFiles recent{&settings};
};

} // namespace

TEST_F(RecentFilesTest, theNewestStandsFirstAndEachOnce)
{
    recent.Add(QStringLiteral("a.obj"));
    recent.Add(QStringLiteral("b.obj"));
    recent.Add(QStringLiteral("./x/../a.obj"));
    EXPECT_EQ(names(), QStringList({QStringLiteral("a.obj"), QStringLiteral("b.obj")}));
    EXPECT_EQ(recent.Files()[0].path, QFileInfo(QStringLiteral("a.obj")).absoluteFilePath());
    recent.Add(QString());
    EXPECT_EQ(recent.Files().size(), 2);
}

TEST_F(RecentFilesTest, twelveAreKept)
{
    for (int i = 0; i < 20; ++i)
        recent.Add(QStringLiteral("%1.obj").arg(i));
    EXPECT_EQ(recent.Files().size(), 12);
    EXPECT_EQ(names().first(), QStringLiteral("19.obj"));
    EXPECT_EQ(names().last(), QStringLiteral("8.obj"));
}

TEST_F(RecentFilesTest, filesThatAreGoneAreMarkedAndStay)
{
    recent.Add(file(QStringLiteral("here.obj"), "x"));
    recent.Add(QStringLiteral("gone.obj"));
    ASSERT_EQ(recent.Files().size(), 2);
    EXPECT_TRUE(recent.Files()[0].isMissing);
    EXPECT_FALSE(recent.Files()[1].isMissing);
    file(QStringLiteral("gone.obj"), "x");
    EXPECT_FALSE(recent.Files()[0].isMissing);
}

TEST_F(RecentFilesTest, oneOrAllCanBeTakenOut)
{
    recent.Add(QStringLiteral("a.obj"));
    recent.Add(QStringLiteral("b.obj"));
    recent.Remove(QStringLiteral("a.obj"));
    EXPECT_EQ(names(), QStringList(QStringLiteral("b.obj")));
    recent.Clear();
    EXPECT_TRUE(recent.Files().isEmpty());
}

TEST_F(RecentFilesTest, theyOutliveTheSessionAndAreSharedWithOthers)
{
    recent.Add(QStringLiteral("a, b; \"c\" \u00e4.obj"));
    QSettings others(QStringLiteral("settings.ini"), QSettings::IniFormat);
    RecentFiles(&others).Add(QStringLiteral("b.obj"));
    EXPECT_EQ(names(),
              QStringList({QStringLiteral("b.obj"), QStringLiteral("a, b; \"c\" \u00e4.obj")}));
}

TEST_F(RecentFilesTest, whatAnotherProcessWroteIsSeen)
{
    recent.Add(QStringLiteral("a.obj"));
    {
        QSettings others(QStringLiteral("others.ini"), QSettings::IniFormat);
        RecentFiles(&others).Add(QStringLiteral("first.obj"));
        RecentFiles(&others).Add(QStringLiteral("second.obj"));
    }
    file(QStringLiteral("settings.ini"), bytesOf(QStringLiteral("others.ini")));
    EXPECT_EQ(names(), QStringList({QStringLiteral("second.obj"), QStringLiteral("first.obj")}));
    recent.Add(QStringLiteral("third.obj"));
    EXPECT_EQ(recent.Files().size(), 3);
}

TEST_F(RecentFilesTest, settingsThatWereEditedByHandDoNoHarm)
{
    settings.setValue(QStringLiteral("RecentFiles"),
                      QStringList{QString(), QStringLiteral("/a"), QStringLiteral("/a")});
    EXPECT_EQ(names(), QStringList(QStringLiteral("a")));
    settings.setValue(QStringLiteral("RecentFiles"), 7);
    EXPECT_LE(recent.Files().size(), 1);
    settings.setValue(QStringLiteral("RecentFiles"), QByteArray("\0\1", 2));
    recent.Add(QStringLiteral("b.obj"));
    EXPECT_EQ(names().first(), QStringLiteral("b.obj"));
}
