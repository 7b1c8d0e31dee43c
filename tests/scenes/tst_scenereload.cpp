// SPDX-License-Identifier: MIT
#include "tests/scenes/scenehistory.h"

#include "operation/manualretopooperation.h"
#include "tests/support/strokes.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QProcess>

namespace {

class SceneReload : public SceneHistory
{
protected:
    // Another process opens the file, undoes and redoes; each state saves to the same bytes as
    // here: objects with their numbers, meshes, curves, the undo queue.
    void expectTheSameElsewhere(const QString &saved, const QStringList &steps)
    {
        QProcess process;
        process.start(QStringLiteral(SCENETOOL), QStringList{QStringLiteral("states"), path(saved),
                                                             path(QStringLiteral("there"))}
                                                     + steps);
        ASSERT_TRUE(process.waitForFinished(60000));
        ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        for (int i = 0; i <= steps.size(); ++i) {
            if (i > 0) {
                const bool undo = steps[i - 1] == QLatin1String("undo");
                ASSERT_TRUE(undo ? orvane::Kernel()->Undo() : orvane::Kernel()->Redo());
            }
            EXPECT_EQ(save(QStringLiteral("here.orvane")),
                      bytesOf(path(QStringLiteral("there%1").arg(i))))
                << "state " << i;
        }
    }
};

const QString Undo = QStringLiteral("undo");
const QString Redo = QStringLiteral("redo");

} // namespace

TEST_F(SceneReload, aSceneSavedAfterDoUndoDoGoesOnInANewProcess)
{
    Sheet sheet(8);
    sheet.grid(4, 4);
    ManualRetopoOperation first(sheet.curves(), 5, 0.3f, 0.05f, 0.35f, false);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&first, true, false));
    ASSERT_TRUE(orvane::Kernel()->Undo());
    ManualRetopoOperation second(sheet.curves().mid(0, 7), 5, 0.3f, 0.05f, 0.35f, false);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&second, true, false));
    ManualRetopoOperation third(sheet.curves(), 5, 0.3f, 0.05f, 0.35f, false);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&third, true, false));
    save(QStringLiteral("saved.orvane"));
    expectTheSameElsewhere(QStringLiteral("saved.orvane"), {Undo, Undo, Redo, Redo, Undo});
}

TEST_F(SceneReload, aSceneSavedWhileUndoneIsRedoneInANewProcessWithTheSameNumbers)
{
    Sheet sheet(8);
    sheet.grid(4, 4);
    ManualRetopoOperation operation(sheet.curves(), 5, 0.3f, 0.05f, 0.35f, false);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    ASSERT_TRUE(orvane::Kernel()->Undo());
    save(QStringLiteral("saved.orvane"));
    expectTheSameElsewhere(QStringLiteral("saved.orvane"), {Redo, Undo, Redo});
}

TEST_F(SceneReload, aMixedHistoryGoesOnInANewProcess)
{
    makeHistory();
    save(QStringLiteral("saved.orvane"));
    QStringList steps{Redo, Redo};
    for (int i = 0; i < 11; ++i)
        steps.append(Undo);
    for (int i = 0; i < 11; ++i)
        steps.append(Redo);
    expectTheSameElsewhere(QStringLiteral("saved.orvane"), steps);
}
