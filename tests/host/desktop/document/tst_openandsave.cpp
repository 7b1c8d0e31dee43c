// SPDX-License-Identifier: MIT
#include "tests/host/desktop/document/documenttest.h"

#include "tests/support/logcatcher.h"
#include "tests/support/numberoperation.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>

using namespace orvane;

namespace {

class OpenAndSave : public DocumentTest
{
protected:
    // Opening must fail and leave all as it is: scene, history, path, mark.
    QString refused(const QStringList &paths)
    {
        const QByteArray scene = sceneBytes();
        const int steps = Kernel()->Undos().StepCount();
        const QString path = document.Path();
        const QString title = document.Title();
        const bool isChanged = document.IsChanged();
        const FileReport report = document.Open(paths);
        EXPECT_FALSE(report.done);
        EXPECT_EQ(report.problems.size(), 1);
        EXPECT_EQ(sceneBytes(), scene);
        EXPECT_EQ(Kernel()->Undos().StepCount(), steps);
        EXPECT_EQ(document.Path(), path);
        EXPECT_EQ(document.Title(), title);
        EXPECT_EQ(document.IsChanged(), isChanged);
        return report.problems.value(0);
    }

    void openSomething()
    {
        sceneFile();
        step();
    }
};

Document *documentInUse = nullptr;

} // namespace

TEST_F(OpenAndSave, aSceneComesBackWithItsHistory)
{
    const QString path = sceneFile();
    step();
    save(path);
    const QByteArray bytes = sceneBytes();
    ASSERT_TRUE(document.NewScene());
    EXPECT_EQ(document.Title(), QStringLiteral("Untitled"));
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 0);

    const FileReport report = document.OpenScene(path);
    EXPECT_TRUE(report.done);
    EXPECT_EQ(report.meshes, 1);
    EXPECT_EQ(report.curves, 2);
    EXPECT_EQ(sceneBytes(), bytes);
    EXPECT_EQ(document.Path(), QFileInfo(path).absoluteFilePath());
    EXPECT_EQ(document.Title(), QStringLiteral("saved"));
    EXPECT_FALSE(document.IsChanged());
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_TRUE(document.IsChanged());
    EXPECT_TRUE(Kernel()->Redo());
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(OpenAndSave, undoGoesOnAfterSaving)
{
    sceneFile();
    EXPECT_EQ(sceneCurves().size(), 2);
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_EQ(sceneCurves().size(), 0);
    EXPECT_TRUE(document.Save(&error)) << qPrintable(error);
    EXPECT_TRUE(Kernel()->Redo());
    EXPECT_EQ(sceneCurves().size(), 2);
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(OpenAndSave, aMeshMakesANewSceneToDrawOn)
{
    sceneFile();
    step();
    QSignalSpy pathChanged(&document, &Document::pathChanged);
    open({meshFile(QStringLiteral("box.ply"), cube())});
    EXPECT_EQ(pathChanged.count(), 1);
    const Scene &scene = *Kernel()->Scene();
    ASSERT_EQ(scene.NodeCount(), 1);
    EXPECT_EQ(scene.NodeAt(0)->Name(), QStringLiteral("box"));
    EXPECT_EQ(scene.DrawingSurface(), scene.NodeAt(0));
    EXPECT_EQ(scene.ActiveGeometry(), scene.NodeAt(0));
    EXPECT_FALSE(Kernel()->Undos().CanUndo());
    EXPECT_TRUE(document.Path().isEmpty());
    EXPECT_EQ(document.Title(), QStringLiteral("box"));
    EXPECT_EQ(document.ProposedPath(), QFileInfo(QStringLiteral("box.orvane")).absoluteFilePath());
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(OpenAndSave, aSceneWithoutAFileIsNotSavedWithoutAName)
{
    EXPECT_FALSE(document.Save(&error));
    EXPECT_EQ(error,
              QStringLiteral("The scene has no file yet; expected a name to save it under."));
    EXPECT_FALSE(document.SaveAs(QStringLiteral("a.obj"), &error));
    EXPECT_EQ(error, QStringLiteral("a.obj: scenes are not saved under this name; expected one "
                                    "that ends in .orvane."));
    EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_F(OpenAndSave, savingUnderAnotherNameMovesThere)
{
    sceneFile();
    QSignalSpy pathChanged(&document, &Document::pathChanged);
    QSignalSpy saved(&document, &Document::saved);
    save(QStringLiteral("other.orvane"));
    EXPECT_EQ(document.Path(), QFileInfo(QStringLiteral("other.orvane")).absoluteFilePath());
    EXPECT_TRUE(document.Save(&error));
    EXPECT_EQ(pathChanged.count(), 1);
    EXPECT_EQ(saved.count(), 2);
    EXPECT_EQ(bytesOf(QStringLiteral("other.orvane")), bytesOf(QStringLiteral("saved.orvane")));
}

TEST_F(OpenAndSave, whatCannotBeOpenedLeavesTheSceneAlone)
{
    openSomething();
    EXPECT_EQ(refused({QStringLiteral("gone.orvane")}),
              QStringLiteral("gone.orvane: no such file."));
    EXPECT_EQ(refused({QStringLiteral("gone.obj")}), QStringLiteral("gone.obj: no such file."));
    EXPECT_EQ(refused({QStringLiteral("gone.json")}), QStringLiteral("gone.json: no such file."));
    EXPECT_EQ(refused({file(QStringLiteral("empty.orvane"), QByteArray())}),
              QStringLiteral("empty.orvane: the file is empty."));
    EXPECT_EQ(refused({file(QStringLiteral("text.orvane"), "hello, this is a letter")}),
              QStringLiteral("text.orvane: this is no scene; expected a file that Orvane saved."));
    EXPECT_EQ(refused({file(QStringLiteral("points.obj"), "v 0 0 0\nv 1 0 0\n")}),
              QStringLiteral("points.obj: the file has no faces; expected at least one."));
    EXPECT_TRUE(refused({file(QStringLiteral("bad.json"), "{\"curves\": [")})
                    .startsWith(QStringLiteral("bad.json: ")));
    EXPECT_EQ(refused({QStringLiteral(".")}),
              QStringLiteral(".: this is a folder or a device; expected a file."));
}

TEST_F(OpenAndSave, aSceneOfWhichNothingIsLeftLeavesTheSceneAlone)
{
    const QByteArray whole = bytesOf(sceneFile());
    step();
    EXPECT_EQ(refused({file(QStringLiteral("head.orvane"), whole.left(15))}),
              QStringLiteral("head.orvane: nothing in it can be read; the file is damaged."));
    // Up to the end of the section about the whole: names of objects, but none of them.
    const int firstNode = whole.indexOf("NODE");
    ASSERT_GT(firstNode, 0);
    EXPECT_EQ(refused({file(QStringLiteral("meta.orvane"), whole.left(firstNode))}),
              QStringLiteral("meta.orvane: no object in it can be read; the file is damaged."));
}

TEST_F(OpenAndSave, aDamagedSceneIsOpenedAsFarAsItGoesAndKeepsItsFile)
{
    QByteArray damaged = bytesOf(sceneFile());
    const int lastNode = damaged.lastIndexOf("NODE");
    ASSERT_GT(lastNode, 0);
    damaged[lastNode + 40] = char(damaged[lastNode + 40] ^ 0x55);
    const QString path = file(QStringLiteral("damaged.orvane"), damaged);
    const FileReport report = document.OpenScene(path);
    EXPECT_TRUE(report.done);
    ASSERT_EQ(report.problems.size(), 2);
    for (const QString &sentence : report.problems)
        EXPECT_TRUE(sentence.startsWith(QStringLiteral("damaged.orvane: ")))
            << qPrintable(sentence);
    EXPECT_EQ(report.curves, 1);
    EXPECT_EQ(sceneCurves().size(), 1);
    EXPECT_TRUE(document.IsChanged());
    EXPECT_EQ(document.Title(), QStringLiteral("damaged"));
    EXPECT_TRUE(document.Path().isEmpty());
    EXPECT_FALSE(document.Save(&error));
    EXPECT_EQ(bytesOf(path), damaged);
}

TEST_F(OpenAndSave, aFullDiskLeavesTheOldFileAndTheMark)
{
    const QString path = sceneFile();
    const QByteArray before = bytesOf(path);
    open({meshFile(QStringLiteral("large.ply"), sphere(60, 80))});
    step();
    {
        const FileSizeLimit full(4096);
        EXPECT_FALSE(document.SaveAs(path, &error));
        EXPECT_FALSE(document.ExportMeshes(QStringLiteral("out.obj"), &error));
    }
    EXPECT_TRUE(error.startsWith(QStringLiteral("out.obj: it cannot be written: ")))
        << qPrintable(error);
    EXPECT_TRUE(document.IsChanged());
    EXPECT_TRUE(document.Path().isEmpty());
    EXPECT_EQ(bytesOf(path), before);
    EXPECT_FALSE(QFile::exists(QStringLiteral("out.obj")));
}

TEST_F(OpenAndSave, aFolderThatIsGoneIsNamed)
{
    EXPECT_FALSE(document.SaveAs(QStringLiteral("gone/a.orvane"), &error));
    EXPECT_EQ(error, QStringLiteral("gone/a.orvane: the folder gone does not exist; expected one "
                                    "that does."));
}

TEST_F(OpenAndSave, nothingIsDoneWhileAnOperationRuns)
{
    sceneFile();
    documentInUse = &document;
    NumberOperation::whileRunning = [] {
        QString why;
        EXPECT_FALSE(documentInUse->NewScene());
        EXPECT_FALSE(documentInUse->OpenScene(QStringLiteral("saved.orvane")).done);
        EXPECT_FALSE(documentInUse->OpenMesh(QStringLiteral("ball.obj")).done);
        EXPECT_FALSE(documentInUse->ImportMesh(QStringLiteral("ball.obj")).done);
        EXPECT_FALSE(documentInUse->ImportCurves(QStringLiteral("strokes.json")).done);
        EXPECT_FALSE(documentInUse->Save(&why));
        EXPECT_FALSE(documentInUse->ExportMeshes(QStringLiteral("out.obj"), &why));
        EXPECT_FALSE(documentInUse->ExportCurves(QStringLiteral("out.json"), &why));
        EXPECT_EQ(why, QStringLiteral("out.json: an operation is still running; expected to be "
                                      "asked after it."));
        EXPECT_FALSE(documentInUse->IsChanged());
    };
    step();
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 3);
    EXPECT_TRUE(document.IsChanged());
}
