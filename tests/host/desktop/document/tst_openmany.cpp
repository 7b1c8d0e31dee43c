// SPDX-License-Identifier: MIT
#include "host/desktop/document/filekind.h"
#include "tests/host/desktop/document/documenttest.h"
#include "tests/support/shapes.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QFile>

using namespace orvane;

class OpenMany : public DocumentTest
{};

TEST_F(OpenMany, theKindOfAFileIsInItsNameAndItsText)
{
    const auto kind = [this](const char *name, const QByteArray &text) {
        return kindOfFile(file(QString::fromUtf8(name), text));
    };
    EXPECT_EQ(kind("a.orvane", "x"), FileKind::Scene);
    EXPECT_EQ(kind("a.ORVANE", "x"), FileKind::Scene);
    EXPECT_EQ(kind("renamed.bak", "ORVANE\r\n"), FileKind::Scene);
    EXPECT_EQ(kind("a.json", "{}"), FileKind::Curves);
    EXPECT_EQ(kind("a.gltf", "{}"), FileKind::Mesh);
    EXPECT_EQ(kind("a.stl", "solid"), FileKind::Mesh);
    EXPECT_EQ(kind("faces.obj", "v 0 0 0\nf 1 2 3\n"), FileKind::Mesh);
    EXPECT_EQ(kind("lines.obj", "v 0 0 0\n  l 1 2 3\n"), FileKind::Curves);
    EXPECT_EQ(kind("lines.OBJ", "v 0 0 0\rl\t1 2\r"), FileKind::Curves);
    EXPECT_EQ(kind("both.obj", "l 1 2\nf 1 2 3\n"), FileKind::Mesh);
    EXPECT_EQ(kind("words.obj", "v 0 0 0\nlod 1\nusemtl l f\n# l 1 2\n"), FileKind::Mesh);
    EXPECT_EQ(kind("empty.obj", ""), FileKind::Mesh);
    EXPECT_EQ(kindOfFile(QStringLiteral("gone.obj")), FileKind::Mesh);
    EXPECT_EQ(kindOfFile(QStringLiteral("/dev/zero")), FileKind::Mesh);
}

TEST_F(OpenMany, theKindIsFoundAcrossLargeTexts)
{
    for (int length : {65534, 65535, 65536, 65537, 200000}) {
        const QByteArray start = QByteArray(length, '#') + '\n';
        EXPECT_EQ(kindOfFile(file(QStringLiteral("a.obj"), start + "l 1 2\n")), FileKind::Curves);
        EXPECT_EQ(kindOfFile(file(QStringLiteral("a.obj"), "l 1 2\n" + start + "f 1 2 3\n")),
                  FileKind::Mesh);
    }
}

TEST_F(OpenMany, curvesThatComeBeforeTheirMeshLandOnIt)
{
    open({curveFile(), ballFile()});
    EXPECT_EQ(sceneCurves().size(), 2);
    EXPECT_EQ(document.Title(), QStringLiteral("ball"));
    EXPECT_FALSE(document.IsChanged());
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_EQ(sceneCurves().size(), 0);
    EXPECT_TRUE(document.IsChanged());
    EXPECT_TRUE(Kernel()->Redo());
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(OpenMany, theFirstMeshMakesTheSceneAndFurtherOnesComeToIt)
{
    const QString box = meshFile(QStringLiteral("box.obj"), cube());
    const FileReport report = document.Open({box, ballFile(), box});
    EXPECT_EQ(report.meshes, 2);
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 2);
    EXPECT_EQ(Kernel()->Scene()->DrawingSurface()->Name(), QStringLiteral("box"));
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(OpenMany, aSceneGoesFirstAndWhatCameAlongIsUnsaved)
{
    sceneFile();
    QFile::copy(QStringLiteral("saved.orvane"), QStringLiteral("second.orvane"));
    const QString box = meshFile(QStringLiteral("box.obj"), cube());
    const FileReport report = document.Open(
        {curveFile(), box, QStringLiteral("saved.orvane"), QStringLiteral("second.orvane")});
    EXPECT_TRUE(report.done);
    EXPECT_EQ(report.problems,
              QStringList(QStringLiteral(
                  "second.orvane: it was left alone; expected one scene at a time.")));
    EXPECT_EQ(document.Title(), QStringLiteral("saved"));
    EXPECT_EQ(Kernel()->Scene()->Geometries().size(), 2);
    EXPECT_EQ(sceneCurves().size(), 4);
    EXPECT_TRUE(document.IsChanged());
}

TEST_F(OpenMany, whatCameWithAMeshThatCannotBeOpenedIsLeftAlone)
{
    sceneFile();
    const FileReport report =
        document.Open({file(QStringLiteral("bad.obj"), "f 1 2 3\n"), curveFile()});
    EXPECT_FALSE(report.done);
    EXPECT_EQ(report.problems.size(), 1);
    EXPECT_EQ(sceneCurves().size(), 2);
    EXPECT_FALSE(document.IsChanged());
}

TEST_F(OpenMany, curvesThatCannotBeReadDoNotKeepTheMeshOut)
{
    const FileReport report =
        document.Open({ballFile(), file(QStringLiteral("bad.json"), "{"), curveFile()});
    EXPECT_TRUE(report.done);
    EXPECT_EQ(report.problems.size(), 1);
    EXPECT_TRUE(report.problems[0].startsWith(QStringLiteral("bad.json: ")));
    EXPECT_EQ(report.curves, 2);
}

TEST_F(OpenMany, onlyScenesAndMeshesReplaceTheScene)
{
    EXPECT_FALSE(Document::WouldReplaceScene({}));
    EXPECT_FALSE(Document::WouldReplaceScene({curveFile()}));
    EXPECT_TRUE(Document::WouldReplaceScene({curveFile(), ballFile()}));
    EXPECT_TRUE(Document::WouldReplaceScene({QStringLiteral("a.orvane")}));
    EXPECT_FALSE(document.Open({}).done);
}
