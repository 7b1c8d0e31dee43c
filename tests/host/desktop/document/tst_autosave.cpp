// SPDX-License-Identifier: MIT
#include "host/desktop/document/autosave.h"
#include "host/desktop/document/examplescene.h"
#include "host/files/scenefile.h"
#include "tests/host/desktop/document/documenttest.h"
#include "tests/support/numberoperation.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>

#include <ctime>
#include <limits>

using namespace orvane;

namespace {

const QString Folder = QStringLiteral("recovery");
const int Patience = 20000; // milliseconds

// Lets events come while an operation runs, as a dialog of it does.
void waitInOperation(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

Autosave *autosaveInUse = nullptr;

class AutosaveTest : public DocumentTest
{
protected:
    bool hasCopy() const { return QFile::exists(autosave.ScenePath()); }
    QStringList filesOfSessions() const { return QDir(Folder).entryList(QDir::Files); }

    // As a session leaves it that was killed: all but the lock of a living process.
    Recovery crash()
    {
        EXPECT_TRUE(autosave.SaveNow());
        const QString session = SessionFiles::NewSessionName();
        const QString own = QFileInfo(autosave.ScenePath()).completeBaseName();
        for (const QString &ending : {QStringLiteral(".orvane"), QStringLiteral(".json")})
            EXPECT_TRUE(QFile::copy(Folder + QLatin1Char('/') + own + ending,
                                    Folder + QLatin1Char('/') + session + ending));
        const QVector<Recovery> found = findRecoveries(Folder);
        EXPECT_EQ(found.size(), 1);
        return found.value(0);
    }

    Autosave autosave{&document, Folder};
};

} // namespace

TEST_F(AutosaveTest, writesWhenTheSceneHasChangedAndOnlyThen)
{
    QSignalSpy saved(&autosave, &Autosave::saved);
    autosave.SetInterval(20);
    EXPECT_FALSE(saved.wait(200));
    EXPECT_FALSE(hasCopy());
    step();
    EXPECT_TRUE(saved.wait(Patience));
    EXPECT_TRUE(hasCopy());
    EXPECT_FALSE(saved.wait(200)) << "written again without a change";
    EXPECT_TRUE(Kernel()->Undo());
    step();
    EXPECT_TRUE(saved.wait(Patience));
}

TEST_F(AutosaveTest, waitsUntilARunningOperationEnds)
{
    QSignalSpy saved(&autosave, &Autosave::saved);
    step();
    autosave.SetInterval(10);
    autosaveInUse = &autosave;
    NumberOperation::whileRunning = [] {
        waitInOperation(300);
        EXPECT_FALSE(autosaveInUse->SaveNow());
    };
    step();
    EXPECT_EQ(saved.count(), 0);
    EXPECT_FALSE(hasCopy());
    NumberOperation::whileRunning = nullptr;
    EXPECT_TRUE(saved.wait(Patience));
    EXPECT_TRUE(hasCopy());
}

TEST_F(AutosaveTest, theCopyGoesWhenTheWorkIsSavedOrGivenUp)
{
    step();
    EXPECT_TRUE(autosave.SaveNow());
    EXPECT_TRUE(hasCopy());
    save(QStringLiteral("a.orvane"));
    EXPECT_FALSE(hasCopy());
    step();
    EXPECT_TRUE(autosave.SaveNow());
    EXPECT_TRUE(hasCopy());
    EXPECT_TRUE(document.Save(&error));
    EXPECT_FALSE(hasCopy());
    step();
    EXPECT_TRUE(autosave.SaveNow());
    EXPECT_TRUE(document.NewScene());
    EXPECT_FALSE(hasCopy());
    EXPECT_EQ(filesOfSessions().size(), 1) << "the lock";
}

TEST_F(AutosaveTest, aCopyThatIsStillBeingWrittenDoesNotComeBack)
{
    addToScene(sphere(60, 60));
    int begun = 0;
    for (int wait = 0; wait < 12 || begun == 0; ++wait) { // milliseconds
        ASSERT_LT(wait, 1000) << "no copy was ever written";
        step();
        autosave.SetInterval(0);
        waitInOperation(wait);
        autosave.SetInterval(Patience);
        begun += hasCopy();
        save(QStringLiteral("a.orvane"));
        EXPECT_FALSE(hasCopy());
        waitInOperation(20);
        EXPECT_FALSE(hasCopy());
        EXPECT_LE(filesOfSessions().size(), 1) << "more than the lock";
    }
}

TEST_F(AutosaveTest, whatChangesDuringTheWritingIsInTheNextCopy)
{
    addToScene(sphere(60, 60));
    step();
    QSignalSpy saved(&autosave, &Autosave::saved);
    autosave.SetInterval(0);
    EXPECT_TRUE(saved.wait(Patience));
    step();
    EXPECT_TRUE(saved.wait(Patience));
    autosave.SetInterval(Patience);
    const QByteArray copy = bytesOf(autosave.ScenePath());
    QString why;
    EXPECT_TRUE(writeScene(QStringLiteral("same.orvane"), &why)) << qPrintable(why);
    EXPECT_TRUE(autosave.SaveNow());
    EXPECT_EQ(bytesOf(autosave.ScenePath()), bytesOf(QStringLiteral("same.orvane")));
    EXPECT_EQ(bytesOf(autosave.ScenePath()), copy);
}

TEST_F(AutosaveTest, aCleanExitLeavesNothing)
{
    {
        Autosave second(&document, Folder);
        step();
        EXPECT_TRUE(second.SaveNow());
        EXPECT_EQ(filesOfSessions().size(), 3);
    }
    EXPECT_TRUE(filesOfSessions().isEmpty());
}

TEST_F(AutosaveTest, workThatWasUndoneStaysInTheCopy)
{
    save(QStringLiteral("a.orvane"));
    step();
    EXPECT_TRUE(autosave.SaveNow());
    const QByteArray copy = bytesOf(autosave.ScenePath());
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_FALSE(document.IsChanged());
    EXPECT_TRUE(autosave.SaveNow());
    EXPECT_EQ(bytesOf(autosave.ScenePath()), copy);
}

TEST_F(AutosaveTest, aLivingSessionIsNotOffered)
{
    step();
    EXPECT_TRUE(autosave.SaveNow());
    EXPECT_TRUE(findRecoveries(Folder).isEmpty());
    EXPECT_TRUE(hasCopy());
}

TEST_F(AutosaveTest, clocksThatWereChangedMakeNoDifference)
{
    sceneFile();
    step();
    EXPECT_TRUE(autosave.SaveNow());
    const QString lock = autosave.ScenePath().chopped(7) + QStringLiteral(".lock");
    ASSERT_TRUE(QFile::exists(lock));
    for (int days : {-5000, 5000}) {
        QFile lockFile(lock);
        ASSERT_TRUE(lockFile.open(QIODevice::ReadWrite));
        ASSERT_TRUE(lockFile.setFileTime(QDateTime::currentDateTime().addDays(days),
                                         QFileDevice::FileModificationTime));
        lockFile.close();
        EXPECT_TRUE(findRecoveries(Folder).isEmpty()) << days;
    }
    const Recovery left = crash();
    file(left.scenePath.chopped(7) + QStringLiteral(".json"),
         "{\"path\": \"/x/y.orvane\", \"time\": \"2999-01-01T00:00:00Z\"}");
    const QVector<Recovery> found = findRecoveries(Folder);
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].time.date().year(), 2999);
    EXPECT_EQ(found[0].path, QStringLiteral("/x/y.orvane"));
}

TEST_F(AutosaveTest, whatACrashLeftIsOpenedAsUnsavedWorkOfItsFile)
{
    const QString path = sceneFile();
    const QByteArray old = bytesOf(path);
    step();
    const QByteArray scene = sceneBytes();
    const Recovery left = crash();
    EXPECT_EQ(left.path, QFileInfo(path).absoluteFilePath());
    EXPECT_EQ(left.title, QStringLiteral("saved"));
    EXPECT_LT(qAbs(left.time.secsTo(QDateTime::currentDateTime())), 60);
    ASSERT_TRUE(document.NewScene());

    const FileReport report = autosave.Recover(left);
    EXPECT_TRUE(report.done);
    EXPECT_TRUE(report.problems.isEmpty());
    EXPECT_EQ(sceneBytes(), scene);
    EXPECT_TRUE(document.IsChanged());
    EXPECT_EQ(document.Path(), left.path);
    EXPECT_EQ(bytesOf(path), old);
    EXPECT_FALSE(QFile::exists(left.scenePath));
    EXPECT_TRUE(hasCopy()) << "a second crash right now would have taken it";
    EXPECT_TRUE(findRecoveries(Folder).isEmpty());
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_TRUE(document.IsChanged());
    EXPECT_TRUE(document.Save(&error));
    EXPECT_FALSE(hasCopy());
    EXPECT_NE(bytesOf(path), old);
}

TEST_F(AutosaveTest, whatIsDiscardedIsGone)
{
    step();
    const Recovery left = crash();
    EXPECT_TRUE(discard(left));
    EXPECT_TRUE(findRecoveries(Folder).isEmpty());
    EXPECT_FALSE(QFile::exists(left.scenePath));
    EXPECT_TRUE(hasCopy()) << "that of the living session";
}

TEST_F(AutosaveTest, whatAnotherWindowHasTakenUpIsLeftAlone)
{
    step();
    const Recovery left = crash();
    SessionFiles other(Folder, left.session);
    ASSERT_TRUE(other.Lock());
    EXPECT_TRUE(findRecoveries(Folder).isEmpty());
    EXPECT_FALSE(discard(left));
    const FileReport report = autosave.Recover(left);
    EXPECT_FALSE(report.done);
    EXPECT_EQ(report.problems.size(), 1);
    EXPECT_TRUE(QFile::exists(left.scenePath));
}

TEST_F(AutosaveTest, aDamagedCopyStaysForAnotherTry)
{
    sceneFile();
    step();
    const Recovery left = crash();
    QByteArray bytes = bytesOf(left.scenePath);
    const int node = bytes.lastIndexOf("NODE");
    bytes[node + 40] = char(bytes[node + 40] ^ 0x55);
    file(left.scenePath, bytes);
    const FileReport report = autosave.Recover(left);
    EXPECT_TRUE(report.done);
    EXPECT_FALSE(report.problems.isEmpty());
    EXPECT_TRUE(document.Path().isEmpty());
    EXPECT_EQ(bytesOf(left.scenePath), bytes);

    file(left.scenePath, "nonsense");
    const QByteArray scene = sceneBytes();
    EXPECT_FALSE(autosave.Recover(left).done);
    EXPECT_EQ(sceneBytes(), scene);
    EXPECT_TRUE(QFile::exists(left.scenePath));
}

TEST_F(AutosaveTest, whatIsHalfWrittenIsClearedAndStrangeFilesStay)
{
    step();
    const Recovery left = crash();
    EXPECT_TRUE(QFile::remove(left.scenePath));
    const QString half = left.scenePath + QStringLiteral(".XyZabc");
    file(half, "half");
    file(Folder + QStringLiteral("/notes.txt"), "mine");
    file(Folder + QStringLiteral("/drawing.orvane"), "mine too");
    EXPECT_TRUE(findRecoveries(Folder).isEmpty());
    EXPECT_FALSE(QFile::exists(half));
    EXPECT_FALSE(QFile::exists(left.scenePath.chopped(7) + QStringLiteral(".json")));
    EXPECT_TRUE(QFile::exists(Folder + QStringLiteral("/notes.txt")));
    EXPECT_TRUE(QFile::exists(Folder + QStringLiteral("/drawing.orvane")));
    EXPECT_TRUE(hasCopy());
}

TEST_F(AutosaveTest, workOfAnUnknownFileIsOfferedToo)
{
    step();
    const Recovery left = crash();
    EXPECT_TRUE(QFile::remove(left.scenePath.chopped(7) + QStringLiteral(".json")));
    const QVector<Recovery> found = findRecoveries(Folder);
    ASSERT_EQ(found.size(), 1);
    EXPECT_TRUE(found[0].path.isEmpty());
    EXPECT_TRUE(found[0].time.isValid());
    EXPECT_TRUE(autosave.Recover(found[0]).done);
    EXPECT_EQ(document.Title(), QStringLiteral("Untitled"));
}

TEST_F(AutosaveTest, aFullDiskIsToldOnceAndTriedAgain)
{
    QSignalSpy failed(&autosave, &Autosave::failed);
    addToScene(sphere(60, 80));
    step();
    {
        const FileSizeLimit full(4096);
        EXPECT_FALSE(autosave.SaveNow());
        EXPECT_FALSE(autosave.SaveNow());
    }
    ASSERT_EQ(failed.count(), 1);
    EXPECT_TRUE(failed[0][0].toString().contains(QStringLiteral("it cannot be written: ")));
    EXPECT_FALSE(hasCopy());
    EXPECT_TRUE(autosave.SaveNow());
    EXPECT_TRUE(hasCopy());
}

TEST_F(AutosaveTest, aFolderThatCannotBeIsTold)
{
    file(QStringLiteral("afile"), "x");
    Autosave nowhere(&document, QStringLiteral("afile/recovery"));
    QSignalSpy failed(&nowhere, &Autosave::failed);
    step();
    EXPECT_FALSE(nowhere.SaveNow());
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed[0][0].toString(),
              QStringLiteral("afile/recovery: unsaved work cannot be kept there; expected a folder "
                             "that can be written."));
    EXPECT_TRUE(findRecoveries(QStringLiteral("afile/recovery")).isEmpty());
}

TEST_F(AutosaveTest, theExampleIsCopiedWithoutAPauseThatIsFelt)
{
    ASSERT_TRUE(openExample(&document).done);
    const int faces = Kernel()->Scene()->Geometries().first()->CurrentLevel()->FaceCount();
    EXPECT_GT(faces, 100000);
    qint64 best = Patience;
    std::clock_t bestWork = std::numeric_limits<std::clock_t>::max();
    for (int i = 0; i < 5; ++i) {
        step();
        QElapsedTimer timer;
        timer.start();
        const std::clock_t before = std::clock();
        EXPECT_TRUE(autosave.SaveNow());
        best = qMin(best, timer.elapsed());
        bestWork = qMin(bestWork, std::clock() - before);
    }
    std::printf(
        "a copy of %d triangles and %d curves: %lld ms (%.0f of the processor), %lld bytes\n",
        faces, sceneCurves().size(), static_cast<long long>(best),
        1000.0 * double(bestWork) / CLOCKS_PER_SEC,
        static_cast<long long>(QFileInfo(autosave.ScenePath()).size()));
    EXPECT_LT(best, timeLimit(500));
}
