// SPDX-License-Identifier: MIT
#include "tests/scenes/scenehistory.h"

#include "tests/support/repetitions.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>

#include <QFile>
#include <QProcess>
#include <QThread>

namespace {

const int Kills = 20;            // in a short run
const float LongestWait = 40.0f; // milliseconds, some saves
const int ProcessTime = 60000;   // milliseconds

} // namespace

class SceneKill : public SceneHistory
{};

TEST_F(SceneKill, leavesTheOldSceneOrTheNewOneWhole)
{
    addToScene(sphere(60, 80));
    const QByteArray a = save(QStringLiteral("a.orvane"));
    makeHistory();
    const QByteArray b = save(QStringLiteral("b.orvane"));
    ASSERT_NE(a, b);
    const QString out = file(QStringLiteral("out.orvane"), a);
    std::mt19937 random(testSeed());
    int old = 0;
    const int kills = repetitions("QUILLMESH_KILLS", Kills);
    for (int i = 0; i < kills; ++i) {
        QProcess process;
        process.start(QStringLiteral(SCENETOOL),
                      {QStringLiteral("saves"), path(QStringLiteral("a.orvane")),
                       path(QStringLiteral("b.orvane")), out});
        ASSERT_TRUE(process.waitForReadyRead(ProcessTime));
        QThread::usleep(ulong(randomBetween(random, 0.0f, LongestWait) * 1000.0f));
        process.kill();
        ASSERT_TRUE(process.waitForFinished(ProcessTime));
        ASSERT_EQ(process.exitStatus(), QProcess::CrashExit) << "it ended before it was killed";
        const QByteArray left = bytesOf(out);
        ASSERT_TRUE(left == a || left == b) << "kill " << i << " left " << left.size() << " bytes";
        old += left == a;
    }
    std::printf("%d kills: %d left the one scene, %d the other\n", kills, old, kills - old);
}
