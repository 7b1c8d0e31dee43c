// SPDX-License-Identifier: MIT
// Anything at all, done to the window with mouse and keys: nothing breaks, nothing is lost.
#include "tests/host/desktop/whole/randomanswer.h"
#include "tests/host/desktop/whole/randomhand.h"
#include "tests/host/desktop/window/windowtest.h"
#include "tests/support/memoryuse.h"
#include "tests/support/repetitions.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include "host/desktop/document/document.h"
#include "host/desktop/tools/toolbox.h"
#include "host/desktop/window/filecommands.h"
#include "host/files/meshfile.h"
#include "host/files/scenefile.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/selectalloperation.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QtTest>

#include <gtest/gtest.h>

#include <iostream>

using orvane::Kernel;

namespace {

const int UsualTime = 60; // seconds
const int MostCurves = 150;
const int MostGeometries = 4;
const int ActsBetweenChecks = 100;

class SoakTest : public WindowTest
{
protected:
    SoakTest()
    {
        openWindowWithPlugins(QStringLiteral(QUILLMESH_PLUGIN_DIR));
        m_window->resize(m_window->minimumSizeHint());
        writeBall();
    }

    ~SoakTest() override { m_window.reset(); }

    // What file dialogs are told: files that are there, files to come, and nonsense.
    QStringList paths() const
    {
        return {file("ball.obj"),    file("work.orvane"), file("again.orvane"),
                file("mesh.obj"),    file("mesh.ply"),    file("mesh.glb"),
                file("curves.json"), file("curves.obj"),  file("macro.txt"),
                file("missing.obj"), file("plain"),       file("no/such/place.obj"),
                file("ball.orvane")};
    }

    void writeBall()
    {
        const orvane::Geometry *ball = addToScene(sphere(24, 48));
        QString error;
        ASSERT_TRUE(orvane::writeMeshes({ball}, file("ball.obj"), &error)) << qPrintable(error);
        Kernel()->NewScene();
    }

    static int curveCount()
    {
        int count = 0;
        for (int i = 0; i < Kernel()->Scene()->NodeCount(); ++i)
            count += dynamic_cast<orvane::OrvaneCurve *>(Kernel()->Scene()->NodeAt(i)) ? 1 : 0;
        return count;
    }

    // The hand keeps finding a window with something in it, and not too much.
    void keepGoing(RandomHand &hand)
    {
        if (!m_window->isVisible())
            m_window->show();
        if (!QApplication::activeWindow() && !QApplication::activePopupWidget())
            m_window->activateWindow();
        if (curveCount() > MostCurves) {
            hand.LetGo();
            m_window->activateWindow();
            for (const char *name : {"showAllCurves", "selectAll", "delete"})
                action(name)->trigger();
        }
        const orvane::Scene &scene = *Kernel()->Scene();
        if (scene.Geometries().isEmpty() || scene.Geometries().size() > MostGeometries) {
            hand.LetGo();
            if (++m_openings % 8 == 0)
                m_window->Files().OpenExample();
            else
                m_window->Files().Open({file("ball.obj")});
        }
    }

    void expectSaves()
    {
        QString error;
        ASSERT_TRUE(orvane::writeScene(file("check.orvane"), &error)) << qPrintable(error);
        orvane::SceneContents contents;
        ASSERT_TRUE(orvane::readScene(file("check.orvane"), &contents, &error))
            << qPrintable(error);
        EXPECT_TRUE(contents.damage.isEmpty())
            << qPrintable(contents.damage.join(QLatin1Char(' ')));
    }

    void expectSavesAndLoadsAlike()
    {
        const QByteArray before = sceneBytes();
        QString error;
        ASSERT_TRUE(orvane::writeScene(file("check.orvane"), &error)) << qPrintable(error);
        orvane::SceneContents contents;
        ASSERT_TRUE(orvane::readScene(file("check.orvane"), &contents, &error))
            << qPrintable(error);
        EXPECT_TRUE(contents.damage.isEmpty())
            << qPrintable(contents.damage.join(QLatin1Char(' ')));
        EXPECT_TRUE(orvane::openScene(contents).isEmpty());
        EXPECT_EQ(sceneBytes(), before);
        ASSERT_TRUE(orvane::writeScene(file("twice.orvane"), &error)) << qPrintable(error);
        EXPECT_EQ(bytesOf("twice.orvane"), bytesOf("check.orvane"));
    }

    QByteArray bytesOf(const char *name) const
    {
        QFile saved(file(name));
        return saved.open(QIODevice::ReadOnly) ? saved.readAll() : QByteArray();
    }

    // A creation deselects meshes first, which is no step: done again, they stay selected.
    static QByteArray bytesWithoutSelectedMeshes()
    {
        orvane::SelectAllOperation deselection(false);
        Kernel()->DoOperation(&deselection, false, false);
        return sceneBytes();
    }

    // Back to the oldest step that is kept and forward again. A creation that is done again asks
    // about faults again, so somebody must be there to answer as before.
    void expectAllUndone()
    {
        const QByteArray before = bytesWithoutSelectedMeshes();
        const int position = Kernel()->Undos().Position();
        for (int i = 0; i < position; ++i)
            ASSERT_TRUE(Kernel()->Undo()) << qPrintable(Kernel()->Undos().UndoText());
        EXPECT_FALSE(Kernel()->Undos().CanUndo());
        for (int i = 0; i < position; ++i)
            ASSERT_TRUE(Kernel()->Redo()) << qPrintable(Kernel()->Undos().RedoText());
        EXPECT_EQ(bytesWithoutSelectedMeshes(), before);
    }

private:
    int m_openings = 0;
};

} // namespace

TEST_F(SoakTest, nothingBreaksWhateverHandsDo)
{
    const int seconds = repetitions("QUILLMESH_SOAK", UsualTime);
    const unsigned seed = testSeed();
    RandomHand hand(seed, m_window.data());
    QScopedPointer<RandomAnswer> answer(new RandomAnswer(seed + 1, paths()));
    QElapsedTimer time;
    time.start();
    int acts = 0;
    int changes = 0;
    qint64 memoryAtFirst = 0;
    int revision = m_window->Document().Revision();
    for (; time.elapsed() < 1000LL * seconds && !HasFailure(); ++acts) {
        keepGoing(hand);
        hand.Act();
        const int now = m_window->Document().Revision();
        changes += now != revision;
        revision = now;
        EXPECT_FALSE(Kernel()->IsOperationRunning());
        if (acts % ActsBetweenChecks == ActsBetweenChecks - 1)
            expectSaves();
        if (!memoryAtFirst && time.elapsed() > 250LL * seconds)
            memoryAtFirst = memoryInUse();
    }
    const qint64 memoryAtLast = memoryInUse();
    hand.LetGo();
    m_window->Tools().Cancel();
    std::cout << acts << " acts in " << seconds << " seconds, " << changes << " changes, "
              << answer->count() << " dialogs; memory in MiB after a quarter "
              << memoryAtFirst / 1048576 << ", at the end " << memoryAtLast / 1048576 << std::endl;
    EXPECT_GT(changes, acts / 20) << "the hand did next to nothing";
    expectAllUndone();
    answer.reset();
    expectSavesAndLoadsAlike();
    settle();
    EXPECT_FALSE(HasFailure()) << "run again with QUILLMESH_SEED=" << seed;
}
