// SPDX-License-Identifier: MIT
#include "host/desktop/document/autosave.h"
#include "tests/host/desktop/document/documenttest.h"
#include "tests/support/repetitions.h"
#include "tests/support/shapes.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QFile>
#include <QProcess>
#include <QThread>

using namespace orvane;

namespace {

const int Kills = 10;              // in a short run
const int ToolInterval = 400;      // milliseconds, in the place of 20 seconds
const int GreatestLoss = 120;      // steps of 5 milliseconds each, in the place of 30 seconds
const float LongestLife = 2000.0f; // milliseconds
const int ProcessTime = 60000;     // milliseconds

const QString Folder = QStringLiteral("recovery");

// A session in a process of its own.
class Session
{
public:
    explicit Session(const QString &mesh)
    {
        m_process.start(QStringLiteral(DOCUMENTTOOL),
                        {mesh, Folder, QString::number(ToolInterval)});
    }

    // Reads on until the tool has said the word.
    void waitFor(const QByteArray &word)
    {
        while (!m_output.contains(word)) {
            ASSERT_TRUE(m_process.waitForReadyRead(ProcessTime))
                << m_process.readAllStandardError().constData();
            m_output += m_process.readAllStandardOutput();
        }
    }

    void kill()
    {
        m_process.kill();
        ASSERT_TRUE(m_process.waitForFinished(ProcessTime));
        ASSERT_EQ(m_process.exitStatus(), QProcess::CrashExit) << "it ended before it was killed";
        m_output += m_process.readAllStandardOutput();
    }

    // The number of the last step that was done.
    int lastStep() const
    {
        int last = 0;
        const int end = m_output.lastIndexOf('\n'); // a last line may be cut
        for (const QByteArray &line : m_output.left(end).split('\n'))
            last = qMax(last, line.toInt());
        return last;
    }

private:
    QProcess m_process;
    QByteArray m_output;
};

class RecoveryKill : public DocumentTest
{
protected:
    // The number of the step that the recovery has; its scene must be whole.
    int stepOf(const Recovery &recovery)
    {
        const FileReport report = document.OpenRecovered(recovery);
        EXPECT_TRUE(report.done);
        EXPECT_TRUE(report.problems.isEmpty())
            << qPrintable(report.problems.join(QLatin1Char('\n')));
        const Geometry *geometry = Kernel()->Scene()->DrawingSurface();
        EXPECT_TRUE(geometry);
        EXPECT_TRUE(Kernel()->Undos().CanUndo());
        return geometry ? geometry->Name().toInt() : 0;
    }
};

} // namespace

TEST_F(RecoveryKill, aKillAtAnyMomentLosesLittle)
{
    const QString mesh = meshFile(QStringLiteral("ball.ply"), sphere(120, 160));
    std::mt19937 random(testSeed());
    const int kills = repetitions("QUILLMESH_RECOVERIES", Kills);
    int greatest = 0;
    int recovered = 0;
    for (int i = 0; i < kills; ++i) {
        Session session(mesh);
        session.waitFor("\n");
        QThread::msleep(ulong(randomBetween(random, 0.0f, LongestLife)));
        session.kill();
        const QVector<Recovery> found = findRecoveries(Folder);
        ASSERT_LE(found.size(), 1);
        const int kept = found.isEmpty() ? 0 : stepOf(found[0]);
        recovered += kept > 0;
        // A machine that is busy elsewhere delays steps and copies alike.
        const int lost = session.lastStep() - kept;
        EXPECT_LE(lost, GreatestLoss) << "kill " << i << ", step " << kept << " kept";
        greatest = qMax(greatest, lost);
        for (const Recovery &recovery : found)
            EXPECT_TRUE(discard(recovery));
        EXPECT_TRUE(QDir(Folder).entryList(QDir::Files).isEmpty()) << "kill " << i;
    }
    std::printf("%d kills, %d with a copy; at most %d steps of 5 ms lost, a copy every %d ms\n",
                kills, recovered, greatest, ToolInterval);
    EXPECT_GT(recovered, 0);
}

TEST_F(RecoveryKill, sessionsThatAreAliveAreLeftAloneAndThoseThatDiedAreOffered)
{
    const QString mesh = ballFile();
    Session first(mesh);
    Session second(mesh);
    first.waitFor("saved");
    second.waitFor("saved");
    EXPECT_TRUE(findRecoveries(Folder).isEmpty());

    first.kill();
    const QVector<Recovery> one = findRecoveries(Folder);
    ASSERT_EQ(one.size(), 1);
    EXPECT_EQ(one[0].title, QStringLiteral("ball"));
    Autosave autosave(&document, Folder);
    EXPECT_TRUE(autosave.Recover(one[0]).done);
    EXPECT_TRUE(findRecoveries(Folder).isEmpty());

    second.kill();
    EXPECT_EQ(findRecoveries(Folder).size(), 1);
    EXPECT_TRUE(QFile::exists(autosave.ScenePath()));
}
