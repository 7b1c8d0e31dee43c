// SPDX-License-Identifier: MIT
#include "tests/host/desktop/drawing/drawingtest.h"
#include "tests/host/desktop/tools/toolstest.h"
#include "tests/support/repetitions.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include "host/desktop/tools/curvecommands.h"
#include "host/files/scenefile.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>

#include <QTemporaryDir>

using namespace orvane;

// Whatever hands do: pointer, keys, commands, undo, in any order.
class RandomGesturesTest : public ToolsTest
{
protected:
    int upTo(int count) { return int(random() % unsigned(count)); }

    QPointF anywhere()
    {
        return {double(randomBetween(random, 250.0f, 1030.0f)),
                double(randomBetween(random, -20.0f, 740.0f))};
    }

    Qt::KeyboardModifiers anyModifiers()
    {
        const Qt::KeyboardModifiers all[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                             Qt::ControlModifier};
        return all[upTo(4)];
    }

    void takeAny() { box.Choose(box.Tools()[upTo(box.Tools().size())]->Description().id); }

    // Onto a point of a curve as often as anywhere: that is where tools take hold.
    QPointF target()
    {
        const QVector<OrvaneCurve *> all = curves();
        if (all.isEmpty() || upTo(2) == 0)
            return anywhere();
        const OrvaneCurve &one = *all[upTo(all.size())];
        const int ends[] = {0, one.PointCount() - 1, upTo(one.PointCount())};
        return at(one.PointAt(ends[upTo(3)]).position);
    }

    void gesture()
    {
        const Qt::KeyboardModifiers modifiers = anyModifiers();
        QPointF pixel = target();
        moveTo(pixel, modifiers);
        press(pixel, upTo(20) == 0 ? Qt::RightButton : Qt::LeftButton, modifiers);
        for (int leg = upTo(4); leg >= 0; --leg) {
            const QPointF to = target();
            for (const QPointF &each : line(pixel, to, 1 + upTo(12)))
                moveTo(each, modifiers);
            pixel = to;
            interrupt();
        }
        release(pixel, Qt::LeftButton, modifiers);
    }

    void interrupt()
    {
        switch (upTo(40)) {
        case 0:
            box.Cancel();
            break;
        case 1:
            box.Finish();
            break;
        case 2:
            box.Leave();
            break;
        case 3:
            takeAny();
            break;
        case 4:
            Kernel()->Undo();
            break;
        case 5:
            deleteSelectedCurves();
            break;
        default:
            break;
        }
    }

    void command()
    {
        switch (upTo(16)) {
        case 0:
            duplicateSelectedCurves(context);
            break;
        case 1:
            mirrorSelectedCurves(context, upTo(3));
            break;
        case 2:
            closeSelectedCurves(context);
            break;
        case 3:
            openSelectedCurves(context);
            break;
        case 4:
            reverseSelectedCurves(context);
            break;
        case 5:
            resampleSelectedCurves(context);
            break;
        case 6:
            smoothSelectedCurves(context);
            break;
        case 7:
            joinSelectedCurves(context);
            break;
        case 8:
            hideSelectedCurves();
            break;
        case 9:
            showAllCurves();
            break;
        case 10:
            invertCurveSelection();
            break;
        case 11:
            box.Finish();
            break;
        case 12:
            Kernel()->Redo();
            break;
        case 13:
            context.settings.mirrorAxis = upTo(4) - 1;
            break;
        case 14:
            context.settings.snap = upTo(2) == 0;
            break;
        default:
            Kernel()->Undo();
            break;
        }
    }

    void moveCamera()
    {
        context.camera.Orbit(double(randomBetween(random, -1.0f, 1.0f)),
                             double(randomBetween(random, -0.5f, 0.5f)));
        context.camera.Zoom(double(randomBetween(random, 0.8f, 1.25f)));
        if (upTo(4) == 0)
            context.camera.SetOrthographic(upTo(2) == 0);
    }

    void keepFew()
    {
        while (curves().size() > 25) {
            select({upTo(curves().size())});
            if (!deleteSelectedCurves())
                showAllCurves();
        }
    }

    void expectSavable()
    {
        const QString path = m_folder.filePath(QStringLiteral("scene.orvane"));
        const QByteArray before = sceneBytes();
        QString error;
        ASSERT_TRUE(writeScene(path, &error)) << error.toStdString();
        SceneContents contents;
        ASSERT_TRUE(readScene(path, &contents, &error)) << error.toStdString();
        EXPECT_TRUE(contents.damage.isEmpty());
        EXPECT_TRUE(openScene(contents).isEmpty());
        EXPECT_EQ(sceneBytes(), before);
    }

    void play(SubdivisionLevel *shape, int rounds)
    {
        show(shape);
        int changes = 0;
        for (int i = 0; i < rounds && !HasFailure(); ++i) {
            if (upTo(2) == 0)
                takeAny();
            if (upTo(6) == 0)
                moveCamera();
            const QByteArray before = sceneBytes();
            gesture();
            changes += sceneBytes() != before;
            command();
            keepFew();
            if (i % 10 == 9) {
                expectSound();
                expectSavable();
            }
        }
        EXPECT_GT(changes, rounds / 4) << "gestures that did anything";
        EXPECT_FALSE(HasFailure()) << "run again with QUILLMESH_SEED";
    }

    std::mt19937 random{testSeed()};

private:
    QTemporaryDir m_folder;
};

TEST_F(RandomGesturesTest, overASphere)
{
    play(sphere(30, 60), repetitions("QUILLMESH_GESTURES", 120));
}

TEST_F(RandomGesturesTest, overABumpySheet)
{
    play(bumpySheet(24, 16, random), repetitions("QUILLMESH_GESTURES", 120));
}

TEST_F(RandomGesturesTest, overATorus)
{
    play(torus(2.0f, 0.6f, 48, 24), repetitions("QUILLMESH_GESTURES", 120));
}
