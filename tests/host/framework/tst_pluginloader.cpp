// SPDX-License-Identifier: MIT
#include "tests/host/framework/pluginrun.h"
#include "tests/support/logcatcher.h"

#include <orvane/base/log.h>
#include <orvane/kernel/plugin.h>
#include <orvane/kernel/pluginloader.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QRegularExpression>

#include <cstring>
#include <random>

#include <elf.h>
#include <sys/stat.h>
#include <unistd.h>

using orvane::PluginLoader;

namespace {

const uid_t Nobody = 65534; // user number

QString name(const char *text)
{
    return QString::fromUtf8(text);
}

QByteArray bytesOf(const QString &file)
{
    QFile source(file);
    EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << qPrintable(file);
    return source.readAll();
}

//! Where what a 64-bit ELF file is loaded from ends, in bytes.
int endOfSegments(const QByteArray &file)
{
    Elf64_Ehdr header;
    EXPECT_GE(file.size(), int(sizeof(header)));
    std::memcpy(&header, file.constData(), sizeof(header));
    EXPECT_EQ(header.e_ident[EI_CLASS], ELFCLASS64);
    int end = 0;
    for (int i = 0; i < header.e_phnum; ++i) {
        Elf64_Phdr segment;
        std::memcpy(&segment, file.constData() + header.e_phoff + size_t(i) * sizeof(segment),
                    sizeof(segment));
        if (segment.p_type == PT_LOAD)
            end = qMax(end, int(segment.p_offset + segment.p_filesz));
    }
    return end;
}

//! Sets an environment variable for its life.
class Environment
{
public:
    Environment(const char *variable, const QByteArray &value)
        : m_variable(variable), m_before(qgetenv(variable))
    {
        qputenv(variable, value);
    }
    ~Environment() { qputenv(m_variable, m_before); }
    Environment(const Environment &) = delete;
    Environment &operator=(const Environment &) = delete;

private:
    const char *m_variable;
    QByteArray m_before;
};

//! Gives up the rights of the superuser, whom no file mode stops, for its life.
class PlainUser
{
public:
    PlainUser() : m_before(geteuid())
    {
        if (m_before == 0) {
            EXPECT_EQ(setresuid(Nobody, Nobody, 0), 0);
        }
    }
    ~PlainUser()
    {
        if (m_before == 0) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
    }
    PlainUser(const PlainUser &) = delete;
    PlainUser &operator=(const PlainUser &) = delete;

private:
    uid_t m_before;
};

class PluginLoaderTest : public PluginRunTest
{
protected:
    //! Runs on the folder, expects this one entry to have failed and to have been logged once, in
    //! one sentence that names the file and has these words.
    PluginRun expectFailed(const char *file, const char *words) const
    {
        const PluginRun result = run();
        EXPECT_FALSE(result.crashed);
        EXPECT_EQ(result.states(), name(file) + name("=Failed"));
        expectReason(result, 0, words);
        EXPECT_EQ(result.log, QStringList{result.entries.value(0).reason});
        return result;
    }

    void expectReason(const PluginRun &result, int index, const char *words) const
    {
        const PluginRun::Entry entry = result.entries.value(index);
        EXPECT_TRUE(entry.reason.startsWith(path(entry.file))
                    || entry.reason.contains(name(" of ") + path(entry.file)))
            << qPrintable(entry.reason);
        EXPECT_TRUE(entry.reason.contains(name(words))) << qPrintable(entry.reason);
        EXPECT_TRUE(entry.reason.endsWith(u'.')) << qPrintable(entry.reason);
        EXPECT_EQ(entry.reason.count(path()), 1) << qPrintable(entry.reason);
        EXPECT_EQ(result.log.count(entry.reason), 1) << qPrintable(result.log.join(u'\n'));
    }
};

} // namespace

TEST_F(PluginLoaderTest, initialisesTheSmallestPlugin)
{
    put(name("minimal"));
    const PluginRun result = run();
    ASSERT_EQ(result.states(), name("libminimal.so=Initialised"));
    const PluginRun::Entry &entry = result.entries.first();
    EXPECT_EQ(entry.name, name("Minimal"));
    EXPECT_EQ(entry.description, name("Smallest Plug-in"));
    EXPECT_EQ(entry.author, name("The Pebble Makers"));
    EXPECT_EQ(entry.address, name("https://pebbles.example"));
    const QRegularExpression stamp(name("^[A-Z][a-z]{2} [ 0-9][0-9] [0-9]{4} [0-9:]{8}$"));
    EXPECT_TRUE(stamp.match(entry.buildStamp).hasMatch()) << qPrintable(entry.buildStamp);
    EXPECT_EQ(entry.reason, QString());
    EXPECT_EQ(result.menu, QStringList{name("Mesh/Make a Pebble")});
    EXPECT_EQ(result.log, QStringList{name("Made a Pebble.")});
}

TEST_F(PluginLoaderTest, runsNothingBeforeItIsAsked)
{
    put(name("failing"));
    put(name("minimal"));
    const PluginRun result = run({name("--no-initialise"), path()});
    EXPECT_EQ(result.states(), name("libfailing.so=Loaded libminimal.so=Loaded"));
    EXPECT_EQ(result.menu, QStringList());
    EXPECT_EQ(result.log, QStringList());
}

TEST_F(PluginLoaderTest, takesFoldersAsGivenAndFilesByName)
{
    for (const char *folder : {"b", "a"})
        makeFolder(name(folder));
    put(name("minimal"), name("b/z.so"));
    put(name("failing"), name("b/c.so"));
    put(name("notaplugin"), name("a/d.so"));
    const PluginRun result = run({path(name("b")), path(name("a"))});
    EXPECT_EQ(result.states(), name("c.so=Failed z.so=Initialised d.so=Failed"));
    EXPECT_EQ(result.menu, (QStringList{name("Mesh/Left Behind"), name("Mesh/Make a Pebble")}));
}

TEST_F(PluginLoaderTest, doesNothingTwice)
{
    put(name("minimal"));
    put(name("failing"));
    put(name("notaplugin"));
    const PluginRun once = run();
    const PluginRun twice = run({name("--twice"), path()});
    EXPECT_EQ(twice.states(),
              name("libfailing.so=Failed libminimal.so=Initialised libnotaplugin.so=Failed"));
    EXPECT_EQ(twice.menu, once.menu);
    EXPECT_EQ(twice.log, once.log);
}

TEST_F(PluginLoaderTest, aSecondLoaderComesToTheSameResultAndRunsNothingAgain)
{
    put(name("minimal"));
    put(name("failing"));
    const PluginRun result = run({name("--another-loader"), path()});
    EXPECT_EQ(result.states(), name("libfailing.so=Failed libminimal.so=Initialised"));
    EXPECT_EQ(result.menu, (QStringList{name("Mesh/Left Behind"), name("Mesh/Make a Pebble")}));
    EXPECT_EQ(result.records.size(), 2);
}

TEST_F(PluginLoaderTest, doesNotLoadAgainWhatTheProgramLinks)
{
    const QString folder = QFileInfo(built(name("minimal"))).path();
    const PluginRun loaded = runLinked({name("--no-initialise"), folder});
    EXPECT_EQ(loaded.states(), name("libminimal.so=Loaded"));
    EXPECT_EQ(loaded.records, QStringList{built(name("minimal"))});

    const PluginRun initialised = runLinked({folder});
    EXPECT_EQ(initialised.states(), name("libminimal.so=Initialised"));
    EXPECT_EQ(initialised.records.size(), 1);
    EXPECT_EQ(initialised.menu, QStringList{name("Mesh/Make a Pebble")});
    EXPECT_EQ(initialised.log, QStringList{name("Made a Pebble.")});
}

TEST_F(PluginLoaderTest, doesNotLoadAgainWhatTheProgramLinksByAnotherName)
{
    link(built(name("minimal")), name("libother.so"));
    const PluginRun result = runLinked({path()});
    EXPECT_EQ(result.states(), name("libother.so=Initialised"));
    EXPECT_EQ(result.records.size(), 1);
}

TEST_F(PluginLoaderTest, refusesACopyOfWhatTheProgramLinks)
{
    put(name("minimal"));
    const PluginRun result = runLinked({path()});
    EXPECT_EQ(result.states(), name("libminimal.so=Failed"));
    expectReason(result, 0, "names itself Minimal, and another plug-in has that name");
    EXPECT_TRUE(result.log.contains(name("A second class named Pebble was refused.")));
    EXPECT_EQ(result.records, QStringList{built(name("minimal"))});
    EXPECT_EQ(result.menu, QStringList());
}

TEST_F(PluginLoaderTest, listsAFileOfManyNamesOnce)
{
    makeFolder(name("other"));
    put(name("minimal"), name("libX.so.0.1"));
    link(path(name("libX.so.0.1")), name("libX.so.0"));
    link(path(name("libX.so.0")), name("libX.so"));
    link(path(name("libX.so")), name("other/libAlias.so"));
    const PluginRun result = run({path(), path(name("other")), path(name("other/.."))});
    EXPECT_EQ(result.states(), name("libX.so=Initialised"));
    EXPECT_EQ(result.entries.value(0).canonicalFile, path(name("libX.so.0.1")));
    EXPECT_EQ(result.menu.size(), 1);
}

TEST_F(PluginLoaderTest, listsAFolderOfTwoNamesOnce)
{
    makeFolder(name("plugins"));
    put(name("minimal"), name("plugins/libminimal.so"));
    link(path(name("plugins")), name("alias"));
    const PluginRun result = run({path(name("alias")), path(name("plugins"))});
    EXPECT_EQ(result.states(), name("libminimal.so=Initialised"));
    EXPECT_EQ(result.log, QStringList{name("Made a Pebble.")});
}

TEST_F(PluginLoaderTest, findsItsWayInFoldersOfAnyName)
{
    const Environment locale("LC_ALL", "C.UTF-8");
    const QString folder = name("Größe %1 (копия): 网");
    makeFolder(folder);
    put(name("minimal"), folder + name("/libminimal.so"));
    put(name("unresolved"), folder + name("/libunresolved.so"));
    const PluginRun result = run({path(folder)});
    EXPECT_EQ(result.states(), name("libminimal.so=Initialised libunresolved.so=Failed"));
    EXPECT_EQ(result.records, QStringList{path(folder + name("/libminimal.so"))});
    EXPECT_TRUE(result.entries.value(1).reason.startsWith(path(folder) + u'/'))
        << qPrintable(result.entries.value(1).reason);
}

TEST_F(PluginLoaderTest, ignoresWhatIsNoLibraryByName)
{
    for (const char *file :
         {"README.txt", "so", "libminimal.so.txt", "minimal.json", ".libminimal.so"})
        write(name(file), "not for you");
    put(name("minimal"), name("libminimal.so.bak"));
    makeFolder(name("folder"));
    const PluginRun result = run();
    EXPECT_EQ(result.states(), QString());
    EXPECT_EQ(result.log, QStringList());
    EXPECT_FALSE(result.crashed);
}

TEST_F(PluginLoaderTest, logsAMissingFolderAndGoesOn)
{
    put(name("minimal"));
    write(name("file"), "no folder");
    const PluginRun result =
        run({path(name("missing")), path(name("file")), QString(), path(name("missing")), path()});
    EXPECT_EQ(result.states(), name("libminimal.so=Initialised"));
    const QString sentence = name("The plug-in folder \"%1\" is missing or cannot be read.");
    EXPECT_EQ(result.log,
              (QStringList{sentence.arg(path(name("missing"))), sentence.arg(path(name("file"))),
                           sentence.arg(QString()), name("Made a Pebble.")}));
}

TEST_F(PluginLoaderTest, reportsALibraryWithoutARecord)
{
    put(name("notaplugin"));
    const PluginRun result =
        expectFailed("libnotaplugin.so", "is a library without a plug-in record");
    EXPECT_FALSE(result.isInProcess(name("libnotaplugin.so"))) << "it is of no use in the process";
}

TEST_F(PluginLoaderTest, reportsALibraryOfTwoRecords)
{
    put(name("doubled"));
    const PluginRun result = expectFailed("libdoubled.so", "has more than one plug-in record");
    EXPECT_EQ(result.records, QStringList());
    EXPECT_FALSE(result.isInProcess(name("libdoubled.so")));
}

TEST_F(PluginLoaderTest, reportsAMissingFunctionWhenItLoads)
{
    put(name("unresolved"));
    const PluginRun result =
        expectFailed("libunresolved.so", "does not load: undefined symbol: nobodyWroteThis");
    EXPECT_FALSE(result.isInProcess(name("libunresolved.so")));
}

TEST_F(PluginLoaderTest, neverInitialisesAnotherVersion)
{
    put(name("otherversion"));
    const PluginRun result = expectFailed(
        "libotherversion.so", "was built against framework version 1000, this is version 1");
    EXPECT_EQ(result.records, QStringList());
    EXPECT_FALSE(result.isInProcess(name("libotherversion.so")));
    EXPECT_EQ(result.entries.value(0).name, QString()) << "nobody knows where it keeps its name";
}

// Visible inline functions of the program and its libraries win over those of a loaded one.
TEST_F(PluginLoaderTest, seesAnotherVersionBehindALinkedPlugin)
{
    put(name("otherversion"));
    const PluginRun result = runLinked({path()});
    EXPECT_EQ(result.states(), name("libotherversion.so=Failed"));
    expectReason(result, 0, "was built against framework version 1000, this is version 1");
    EXPECT_EQ(result.records, QStringList{built(name("minimal"))});
    EXPECT_EQ(result.log, QStringList{result.entries.value(0).reason}) << "its name is not read";
}

TEST_F(PluginLoaderTest, leavesTheNameOfAnotherVersionToOthers)
{
    put(name("otherversion"), name("a.so"));
    put(name("minimal"), name("b.so"));
    EXPECT_EQ(run().states(), name("a.so=Failed b.so=Initialised"));
}

TEST_F(PluginLoaderTest, anotherVersionHoldsNoNameEvenWhileItStays)
{
    QLibrary library(built(name("otherversion")));
    ASSERT_TRUE(library.load());
    {
        const orvane::Plugin plugin("Minimal", "", "", "", "", nullptr);
        ASSERT_EQ(orvane::Plugin::All().size(), 2);
        EXPECT_FALSE(orvane::Plugin::All().first()->FitsFramework());
        EXPECT_FALSE(plugin.IsRefused());
    }
    EXPECT_TRUE(library.unload());
}

TEST_F(PluginLoaderTest, refusesASecondPluginOfOneName)
{
    put(name("minimal"));
    put(name("twin"));
    const PluginRun result = run();
    EXPECT_EQ(result.states(), name("libminimal.so=Initialised libtwin.so=Failed"));
    expectReason(result, 1, "names itself Minimal, and another plug-in has that name");
    EXPECT_EQ(result.log.value(0), name("A second plug-in named Minimal was refused."));
    EXPECT_EQ(result.log.size(), 3) << qPrintable(result.log.join(u'\n'));
    EXPECT_EQ(result.records, QStringList{path(name("libminimal.so"))});
    EXPECT_FALSE(result.isInProcess(name("libtwin.so")));
}

TEST_F(PluginLoaderTest, goesOnAfterAnInitialiserThatThrows)
{
    put(name("failing"));
    put(name("minimal"));
    const PluginRun result = run();
    EXPECT_EQ(result.states(), name("libfailing.so=Failed libminimal.so=Initialised"));
    expectReason(result, 0, "failed: no licence to be found");
    EXPECT_EQ(result.entries.value(0).name, name("Failing"));
    // Its menu entry was clicked: what it left behind still works.
    EXPECT_TRUE(result.isInProcess(name("libfailing.so")));
    EXPECT_TRUE(result.log.contains(name("Still here.")));
}

TEST_F(PluginLoaderTest, loadsTheGoodOnesAmongAllTheBadOnes)
{
    for (const char *plugin :
         {"doubled", "failing", "minimal", "notaplugin", "otherversion", "twin", "unresolved"})
        put(name(plugin));
    write(name("liba.so"), "rubbish");
    const PluginRun result = run();
    EXPECT_EQ(result.states(),
              name("liba.so=Failed libdoubled.so=Failed libfailing.so=Failed "
                   "libminimal.so=Initialised libnotaplugin.so=Failed libotherversion.so=Failed "
                   "libtwin.so=Failed libunresolved.so=Failed"));
    EXPECT_EQ(result.records,
              (QStringList{path(name("libfailing.so")), path(name("libminimal.so"))}));
}

TEST_F(PluginLoaderTest, reportsBytesThatAreNoLibrary)
{
    std::mt19937 random(17);
    QByteArray bytes(20000, '\0');
    for (char &byte : bytes)
        byte = char(random());
    write(name("libx.so"), bytes);
    expectFailed("libx.so", "does not load: invalid ELF header");
}

TEST_F(PluginLoaderTest, reportsAnEmptyFile)
{
    write(name("libx.so"), "");
    expectFailed("libx.so", "does not load: file too short");
}

// The system's loader would take one that is cut behind its headers, and then read past its end.
TEST_F(PluginLoaderTest, reportsALibraryThatIsCutOff)
{
    const QByteArray whole = bytesOf(built(name("minimal")));
    for (const int size : {1, 4, 16, 63}) {
        write(name("libx.so"), whole.left(size));
        expectFailed("libx.so", "does not load: file too short");
    }
    const int end = endOfSegments(whole);
    ASSERT_LT(end, whole.size());
    for (int size = 64; size < end; size += (end - 64) / 20) {
        write(name("libx.so"), whole.left(size));
        expectFailed("libx.so", "is cut off; expected the whole library");
    }
    write(name("libx.so"), whole.left(end - 1));
    expectFailed("libx.so", "is cut off; expected the whole library");
}

TEST_F(PluginLoaderTest, loadsALibraryThatLacksOnlyWhatNobodyReads)
{
    const QByteArray whole = bytesOf(built(name("minimal")));
    write(name("libx.so"), whole.left(endOfSegments(whole)));
    EXPECT_EQ(run().states(), name("libx.so=Initialised"));
}

TEST_F(PluginLoaderTest, reportsAFolderOfALibrarysName)
{
    makeFolder(name("libx.so"));
    expectFailed("libx.so", "has a library's name but is no file");
}

TEST_F(PluginLoaderTest, reportsALinkToNothing)
{
    link(path(name("gone.so.1")), name("libx.so"));
    expectFailed("libx.so", "has a library's name but is no file");
}

TEST_F(PluginLoaderTest, doesNotWaitForAPipe)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(path(name("libx.so"))).constData(), 0600), 0);
    expectFailed("libx.so", "has a library's name but is no file");
}

TEST_F(PluginLoaderTest, reportsAFileThatMayNotBeRead)
{
    const QFileDevice::Permissions everybody =
        QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::permissions(path()) | everybody));
    put(name("minimal"));
    ASSERT_TRUE(QFile::setPermissions(path(name("libminimal.so")), QFile::WriteOwner));
    PluginLoader loader;
    loader.AddFolder(path());
    {
        const PlainUser user;
        loader.Load();
    }
    ASSERT_EQ(loader.Entries().size(), 1);
    EXPECT_EQ(loader.Entries().first().state, PluginLoader::State::Failed);
    EXPECT_TRUE(loader.Entries().first().reason.endsWith(name("Permission denied.")))
        << qPrintable(loader.Entries().first().reason);
}

TEST_F(PluginLoaderTest, reportsAFolderThatMayNotBeRead)
{
    put(name("minimal"));
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::WriteOwner | QFile::ExeOwner));
    const LogCatcher log;
    PluginLoader loader;
    loader.AddFolder(path());
    {
        const PlainUser user;
        loader.Load();
    }
    EXPECT_TRUE(loader.Entries().isEmpty());
    EXPECT_TRUE(log.text().contains(name("is missing or cannot be read")))
        << qPrintable(log.text());
}

TEST_F(PluginLoaderTest, standardFoldersAreTheProgramsOwnThoseOfTheVariableAndTheExtraOnes)
{
    const QString program = QCoreApplication::applicationDirPath();
    const QString own = QDir::cleanPath(program + name("/../plugins"));
    const QByteArray separator(1, QDir::listSeparator().toLatin1());
    {
        const Environment none("ORVANE_PLUGIN_PATH", "");
        EXPECT_EQ(PluginLoader::StandardFolders({}), QStringList{own});
    }
    const Environment two("ORVANE_PLUGIN_PATH",
                          "/one" + separator + separator + "/t w o" + separator);
    EXPECT_EQ(PluginLoader::StandardFolders({name("three")}),
              (QStringList{own, name("/one"), name("/t w o"), name("three")}));
}

TEST_F(PluginLoaderTest, relativeFoldersCountFromWhereTheProgramWas)
{
    makeFolder(name("mine"));
    write(name("mine/libx.so"), "rubbish");
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(path()));
    PluginLoader loader;
    loader.AddFolder(name("mine"));
    ASSERT_TRUE(QDir::setCurrent(before));
    loader.Load();
    ASSERT_EQ(loader.Entries().size(), 1);
    EXPECT_EQ(loader.Entries().first().file, path(name("mine/libx.so")));
}

TEST_F(PluginLoaderTest, listsEverythingAsFoundBeforeItLoadsAnything)
{
    write(name("liba.so"), "rubbish");
    write(name("libb.so"), "rubbish");
    PluginLoader loader;
    loader.AddFolder(path());
    QVector<QVector<PluginLoader::State>> seen; // at each log line
    orvane::setLogSink([&](const QString &) {
        QVector<PluginLoader::State> states;
        for (const PluginLoader::Entry &entry : loader.Entries())
            states.append(entry.state);
        seen.append(states);
    });
    loader.Load();
    orvane::setLogSink({});
    using State = PluginLoader::State;
    EXPECT_EQ(seen, (QVector<QVector<State>>{{State::Failed, State::Found},
                                             {State::Failed, State::Failed}}));
}

TEST_F(PluginLoaderTest, findsWhatCameToTheFolderLater)
{
    write(name("liba.so"), "rubbish");
    PluginLoader loader;
    loader.AddFolder(path());
    loader.Load();
    write(name("libb.so"), "rubbish");
    const LogCatcher log;
    loader.Load();
    EXPECT_EQ(loader.Entries().size(), 2);
    EXPECT_EQ(log.count(), 1) << "what failed is not tried again";
}

TEST_F(PluginLoaderTest, noticesThatALibraryWasUnloadedBehindItsBack)
{
    put(name("twin"));
    QLibrary library(path(name("libtwin.so")));
    ASSERT_TRUE(library.load());
    PluginLoader loader;
    loader.AddFolder(path());
    loader.Load();
    ASSERT_EQ(loader.Entries().value(0).state, PluginLoader::State::Loaded);
    ASSERT_TRUE(library.unload());
    ASSERT_TRUE(orvane::Plugin::All().isEmpty());
    loader.Initialise();
    EXPECT_EQ(loader.Entries().value(0).state, PluginLoader::State::Failed);
    EXPECT_TRUE(loader.Entries().value(0).reason.contains(name("libtwin.so has been unloaded")));
}

TEST_F(PluginLoaderTest, knowsALibraryThatCameByARelativePath)
{
    put(name("twin"));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(path()));
    QLibrary library(name("./libtwin.so"));
    ASSERT_TRUE(library.load());
    ASSERT_TRUE(QDir::setCurrent(before));
    PluginLoader loader;
    loader.AddFolder(path());
    loader.Load();
    EXPECT_EQ(loader.Entries().value(0).state, PluginLoader::State::Loaded);
    EXPECT_EQ(orvane::Plugin::All().size(), 1);
    EXPECT_TRUE(library.unload());
}
