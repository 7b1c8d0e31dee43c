// SPDX-License-Identifier: MIT
#include "tests/host/files/filetest.h"

#include "host/files/scenefile.h"
#include "host/files/scenesections.h"
#include "tests/support/numberoperation.h"
#include "tests/support/shapes.h"
#include "tests/support/strokes.h"

#include <orvane/base/nodetable.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>

#include <QBuffer>
#include <QFile>
#include <QScopedPointer>
#include <QThread>

using namespace orvane;

namespace {

const int HeadSize = 15;        // bytes of the file's head
const int SectionHeadSize = 28; // bytes

class SceneFile : public FileTest
{
protected:
    SceneFile() { NumberOperation::StaticClass(); }

    // A turned cube, hidden and selected, a sheet with an open and a closed curve, two done steps
    // and one undone.
    void fillScene()
    {
        std::mt19937 random(7);
        Geometry *cubes =
            addToScene(cube(2.0f), QStringLiteral("Wür\u00aafel"), randomPlacement(random));
        cubes->AddLevel(tetrahedron());
        cubes->SetCurrentLevel(0);
        cubes->SetHidden(true);
        cubes->SetSelected(true);
        Sheet sheet(4);
        sheet.straight({0.5f, 0.5f, 0.0f}, {3.5f, 3.5f, 0.0f}, 7)->SetSelected(true);
        sheet.circle({2.0f, 2.0f, 0.0f}, 1.0f, 12)->SetName(QStringLiteral("ring"));
        Kernel()->Scene()->SetActiveGeometry(sheet.geometry());
        Kernel()->Scene()->SetActiveGeometry(cubes);
        for (int amount : {1, 20, 300}) {
            NumberOperation operation(amount);
            Kernel()->DoOperation(&operation, false, amount == 20);
        }
        Kernel()->Undo();
    }

    QString save(const QString &name = QStringLiteral("a.orvane"))
    {
        QString error;
        EXPECT_TRUE(writeScene(name, &error)) << qPrintable(error);
        return name;
    }

    SceneContents read(const QString &path)
    {
        SceneContents contents;
        QString error;
        EXPECT_TRUE(readScene(path, &contents, &error)) << qPrintable(error);
        return contents;
    }

    QString refusal(const QString &path)
    {
        SceneContents contents;
        QString error;
        EXPECT_FALSE(readScene(path, &contents, &error));
        return error;
    }

    QString refusalOf(const QByteArray &bytes)
    {
        return refusal(file(QStringLiteral("bad.orvane"), bytes));
    }

    // Where the sections of a file begin, and its end.
    QVector<int> sectionStarts(const QByteArray &bytes)
    {
        QByteArray copy = bytes;
        QBuffer buffer(&copy);
        buffer.open(QIODevice::ReadOnly);
        QString error;
        EXPECT_TRUE(readSceneHead(&buffer, &error)) << qPrintable(error);
        QVector<int> starts;
        SceneSection section;
        while (readSection(&buffer, &section))
            starts.append(int(section.position));
        starts.append(bytes.size());
        return starts;
    }
};

} // namespace

TEST_F(SceneFile, whatIsSavedAndOpenedSavesToTheSameBytes)
{
    fillScene();
    const QByteArray saved = bytesOf(save());
    Kernel()->NewScene();
    EXPECT_TRUE(openScene(read(QStringLiteral("a.orvane"))).isEmpty());
    EXPECT_EQ(bytesOf(save(QStringLiteral("b.orvane"))), saved);
}

TEST_F(SceneFile, aSnapshotIsTheSceneOfItsMomentWhateverComesAfter)
{
    fillScene();
    SceneSnapshot snapshot;
    ASSERT_TRUE(takeSnapshot(&snapshot));
    const QByteArray then = bytesOf(save());
    Kernel()->Scene()->Geometries().first()->CurrentLevel()->SetVertexPosition(0, {7, 8, 9});
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_TRUE(Kernel()->NewScene());
    QString error;
    bool isWritten = false;
    const QScopedPointer<QThread> thread(QThread::create(
        [&] { isWritten = writeSnapshot(snapshot, QStringLiteral("later.orvane"), &error); }));
    thread->start();
    thread->wait();
    EXPECT_TRUE(isWritten) << qPrintable(error);
    EXPECT_EQ(bytesOf(QStringLiteral("later.orvane")), then);
}

TEST_F(SceneFile, everythingComesBackAsItWas)
{
    fillScene();
    Kernel()->Preferences()->renderMeshFaults.SetValue(true);
    const QVector<Geometry *> before = Kernel()->Scene()->Geometries();
    const int cubeID = before[0]->ID();
    const int levelID = before[0]->Level(1)->ID();
    const int placementID = before[0]->Placement()->ID();
    const Matrix matrix = before[0]->Placement()->WorldMatrix();
    save();
    const int lastID = NodeTable::Instance().LastID();
    Kernel()->NewScene();
    Kernel()->Preferences()->renderMeshFaults.SetValue(false);
    ASSERT_TRUE(openScene(read(QStringLiteral("a.orvane"))).isEmpty());

    const Scene &scene = *Kernel()->Scene();
    ASSERT_EQ(scene.NodeCount(), 4);
    Geometry *cubes = scene.Geometries()[0];
    EXPECT_EQ(cubes->Name(), QStringLiteral("Wür\u00aafel"));
    EXPECT_EQ(cubes->ID(), cubeID);
    EXPECT_EQ(cubes->Placement()->ID(), placementID);
    EXPECT_EQ(cubes->Placement()->WorldMatrix(), matrix);
    ASSERT_EQ(cubes->LevelCount(), 2);
    EXPECT_EQ(cubes->Level(1)->ID(), levelID);
    EXPECT_EQ(cubes->CurrentLevel(), cubes->Level(0));
    EXPECT_TRUE(cubes->IsHidden());
    EXPECT_TRUE(cubes->Selected());
    EXPECT_EQ(scene.ActiveGeometry(), cubes);
    const auto *open = dynamic_cast<OrvaneCurve *>(scene.NodeAt(2));
    const auto *ring = dynamic_cast<OrvaneCurve *>(scene.NodeAt(3));
    ASSERT_TRUE(open && ring);
    EXPECT_TRUE(open->Selected());
    EXPECT_EQ(open->Geometry(), scene.Geometries()[1]); // bound to its mesh by number
    EXPECT_TRUE(ring->Closed());
    EXPECT_EQ(ring->PointCount(), 13);
    EXPECT_TRUE(Kernel()->Preferences()->renderMeshFaults.Value());
    EXPECT_EQ(NodeTable::Instance().LastID(), lastID);
    EXPECT_FALSE(scene.IsChanged());
}

TEST_F(SceneFile, theUndoQueueGoesOnWhereItWas)
{
    fillScene();
    save();
    NumberOperation::number = 1000; // a stranger's
    ASSERT_TRUE(openScene(read(QStringLiteral("a.orvane"))).isEmpty());
    ASSERT_EQ(Kernel()->Undos().StepCount(), 2);
    EXPECT_EQ(Kernel()->Undos().Position(), 1);
    EXPECT_TRUE(Kernel()->Redo());
    EXPECT_EQ(NumberOperation::number, 1300);
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_TRUE(Kernel()->Undo()); // of two operations
    EXPECT_EQ(NumberOperation::number, 979);
    EXPECT_FALSE(Kernel()->Undo());
}

TEST_F(SceneFile, anEmptySceneIsAScene)
{
    save();
    addToScene(cube());
    EXPECT_TRUE(openScene(read(QStringLiteral("a.orvane"))).isEmpty());
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 0);
}

TEST_F(SceneFile, theDrawingSurfaceThatWasChosenComesBack)
{
    addToScene(cube(), QStringLiteral("first"));
    Kernel()->Scene()->SetDrawingSurface(addToScene(cube(), QStringLiteral("second")));
    save();
    openScene(read(QStringLiteral("a.orvane")));
    ASSERT_NE(Kernel()->Scene()->DrawingSurface(), nullptr);
    EXPECT_EQ(Kernel()->Scene()->DrawingSurface()->Name(), QStringLiteral("second"));
}

TEST_F(SceneFile, stepsKeepTheirTitles)
{
    for (const char *title : {"One", "", "Three"}) {
        NumberOperation operation(1);
        Kernel()->DoOperation(&operation, false, false);
        Kernel()->Undos().SetTitle(QString::fromUtf8(title));
    }
    const QString untitled = Kernel()->Undos().Steps().at(1).first().className;
    save();
    Kernel()->NewScene();
    EXPECT_TRUE(openScene(read(QStringLiteral("a.orvane"))).isEmpty());
    ASSERT_EQ(Kernel()->Undos().StepCount(), 3);
    EXPECT_EQ(Kernel()->Undos().UndoText(), QStringLiteral("Three"));
    EXPECT_EQ(Kernel()->Undos().Steps().at(1).first().title, QString());
    EXPECT_EQ(Kernel()->Undos().Steps().at(1).first().className, untitled);
    EXPECT_EQ(Kernel()->Undos().Steps().at(0).first().title, QStringLiteral("One"));
}

TEST_F(SceneFile, aSurfaceThatNobodyChoseStaysTheFirst)
{
    addToScene(cube(), QStringLiteral("first"));
    addToScene(cube(), QStringLiteral("second"));
    save();
    openScene(read(QStringLiteral("a.orvane")));
    EXPECT_EQ(Kernel()->Scene()->ChosenSurface(), 0);
    EXPECT_EQ(Kernel()->Scene()->DrawingSurface()->Name(), QStringLiteral("first"));
}

TEST_F(SceneFile, aLaterNodeTakesANumberThatWasNeverGiven)
{
    fillScene();
    save();
    const int lastID = NodeTable::Instance().LastID();
    openScene(read(QStringLiteral("a.orvane")));
    EXPECT_EQ(addToScene(cube())->ID(), lastID + 1);
}

TEST_F(SceneFile, readingLeavesTheSceneAlone)
{
    fillScene();
    save();
    Kernel()->NewScene();
    addToScene(cube(), QStringLiteral("mine"));
    read(QStringLiteral("a.orvane"));
    ASSERT_EQ(Kernel()->Scene()->NodeCount(), 1);
    EXPECT_EQ(Kernel()->Scene()->NodeAt(0)->Name(), QStringLiteral("mine"));
}

TEST_F(SceneFile, filesThatAreNoScenesAreRefusedByName)
{
    EXPECT_EQ(refusal(QStringLiteral("none.orvane")), QStringLiteral("none.orvane: no such file."));
    EXPECT_EQ(refusalOf(QByteArray()), QStringLiteral("bad.orvane: the file is empty."));
    const QString noScene =
        QStringLiteral("bad.orvane: this is no scene; expected a file that Orvane saved.");
    EXPECT_EQ(refusalOf("ORVANE\n\x1a\n is what a text mode makes of it"), noScene);
    EXPECT_EQ(refusalOf("v 0 0 0\n"), noScene);
}

TEST_F(SceneFile, otherVersionsAndByteOrdersAreNamed)
{
    const QByteArray good = bytesOf(save());
    QByteArray bytes = good;
    bytes[10] = 2;
    EXPECT_EQ(refusalOf(bytes),
              QStringLiteral("bad.orvane: it has version 2 of the format; expected "
                             "version 1."));
    bytes = good;
    bytes[14] = char(3 - good[14]);
    EXPECT_EQ(refusalOf(bytes),
              QStringLiteral("bad.orvane: it was saved on a machine of another byte order."));
}

TEST_F(SceneFile, aDamagedObjectIsNamedAndTheOthersAreRead)
{
    fillScene();
    QByteArray bytes = bytesOf(save());
    const QVector<int> starts = sectionStarts(bytes);
    bytes[starts[2] + SectionHeadSize + 5] = char(bytes[starts[2] + SectionHeadSize + 5] ^ 16);
    const SceneContents contents = read(file(QStringLiteral("bad.orvane"), bytes));
    EXPECT_EQ(contents.nodes.size(), 3);
    EXPECT_TRUE(contents.steps.isEmpty()); // they may need what is missing
    EXPECT_EQ(contents.damage,
              QStringList({QStringLiteral("The section of an object at byte %1 was left out: its "
                                          "checksum does not match.")
                               .arg(starts[2]),
                           QStringLiteral("Object 2 of 4, \"Sheet\", is missing.")}));
    EXPECT_TRUE(openScene(contents).isEmpty());
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 3);
    EXPECT_EQ(Kernel()->Undos().StepCount(), 0);
}

TEST_F(SceneFile, aDamagedHeadCostsOneSection)
{
    fillScene();
    const QByteArray good = bytesOf(save());
    const QVector<int> starts = sectionStarts(good);
    for (int section = 0; section + 1 < starts.size(); ++section) {
        for (int byte = 0; byte < SectionHeadSize; ++byte) {
            QByteArray bytes = good;
            bytes[starts[section] + byte] = char(bytes[starts[section] + byte] ^ 1);
            const SceneContents contents = read(file(QStringLiteral("bad.orvane"), bytes));
            EXPECT_EQ(contents.nodes.size(), section >= 1 && section <= 4 ? 3 : 4);
            ASSERT_FALSE(contents.damage.isEmpty());
            EXPECT_TRUE(contents.damage[0].contains(
                QStringLiteral("at byte %1 was left out: its beginning is damaged")
                    .arg(starts[section])))
                << qPrintable(contents.damage[0]);
        }
    }
}

TEST_F(SceneFile, withoutTheSectionAboutTheWholeTheObjectsAreThere)
{
    fillScene();
    QByteArray bytes = bytesOf(save());
    const QVector<int> starts = sectionStarts(bytes);
    bytes.remove(starts[0], starts[1] - starts[0]);
    const SceneContents contents = read(file(QStringLiteral("bad.orvane"), bytes));
    EXPECT_EQ(contents.nodes.size(), 4);
    EXPECT_EQ(contents.damage,
              QStringList(QStringLiteral("What belongs to the scene as a whole is missing.")));
    EXPECT_TRUE(openScene(contents).isEmpty());
    const int highest = contents.nodes.last().ids.last();
    EXPECT_GT(addToScene(cube())->ID(), highest);
}

TEST_F(SceneFile, aFileCutAnywhereIsReadAsFarAsItGoes)
{
    fillScene();
    const QByteArray good = bytesOf(save());
    const QVector<int> starts = sectionStarts(good);
    for (int length = 1; length < good.size(); ++length) {
        const QByteArray bytes = good.left(length);
        // The section about the whole must be there, or else an object.
        if (length < starts[1]) {
            const QString error = refusalOf(bytes);
            EXPECT_TRUE(error.startsWith(QStringLiteral("bad.orvane: "))) << qPrintable(error);
            continue;
        }
        const SceneContents contents = read(file(QStringLiteral("bad.orvane"), bytes));
        int whole = 0;
        while (whole < 4 && starts[whole + 2] <= length)
            ++whole;
        EXPECT_EQ(contents.nodes.size(), whole) << length;
        EXPECT_FALSE(contents.damage.isEmpty()) << length;
        EXPECT_TRUE(contents.steps.isEmpty()) << length;
    }
}

TEST_F(SceneFile, objectsOfTheWrongClassAreLeftOut)
{
    fillScene();
    save();
    for (const char *name : {"Placement", "NumberOperation", "Node", "Nonsense", ""}) {
        SceneContents contents = read(QStringLiteral("a.orvane"));
        contents.nodes[0].className = QString::fromLatin1(name);
        EXPECT_EQ(
            openScene(contents),
            QStringList(QStringLiteral("Object 1 of 4 was left out: its contents make no sense.")));
        EXPECT_EQ(Kernel()->Scene()->NodeCount(), 3);
        EXPECT_EQ(Kernel()->Undos().StepCount(), 0);
    }
}

TEST_F(SceneFile, numbersThatAreTakenOrWrongAreRefused)
{
    fillScene();
    save();
    const SceneContents good = read(QStringLiteral("a.orvane"));
    const auto countWith = [&good](const QVector<int> &ids) {
        SceneContents contents = good;
        contents.nodes[1].ids = ids;
        openScene(contents);
        return Kernel()->Scene()->NodeCount();
    };
    const QVector<int> ids = good.nodes[1].ids;
    ASSERT_EQ(ids.size(), 3);
    EXPECT_EQ(countWith(ids), 4);
    EXPECT_EQ(countWith({}), 3);
    EXPECT_EQ(countWith({ids[0], ids[1]}), 3);
    EXPECT_EQ(countWith({ids[0], ids[1], ids[1]}), 3);
    EXPECT_EQ(countWith({0, ids[1], ids[2]}), 3);
    EXPECT_EQ(countWith({-1, ids[1], ids[2]}), 3);
    EXPECT_EQ(countWith({good.nodes[0].ids[0], ids[1], ids[2]}), 3);
}

TEST_F(SceneFile, meshesAndCurvesAtNoPlaceAreRefused)
{
    Geometry *geometry = addToScene(cube());
    geometry->CurrentLevel()->SetVertexPosition(3, {0.0f, std::nanf(""), 0.0f});
    save();
    EXPECT_EQ(openScene(read(QStringLiteral("a.orvane"))).size(), 1);
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 0);
}

TEST_F(SceneFile, nothingIsSavedOrOpenedWhileAnOperationRuns)
{
    save();
    static QString error;
    static QStringList damage;
    NumberOperation::whileRunning = [] {
        writeScene(QStringLiteral("b.orvane"), &error);
        damage = openScene(SceneContents());
    };
    addToScene(cube());
    NumberOperation operation(1);
    Kernel()->DoOperation(&operation, false, false);
    EXPECT_EQ(error, QStringLiteral("b.orvane: an operation is still running; expected to be asked "
                                    "after it."));
    EXPECT_EQ(damage.size(), 1);
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 1);
    EXPECT_FALSE(QFile::exists(QStringLiteral("b.orvane")));
}

TEST_F(SceneFile, aFullDiskLeavesTheOldSceneWhole)
{
    addToScene(cube());
    const QByteArray old = bytesOf(save());
    addToScene(sphere(60, 60));
    QString error;
    {
        const FileSizeLimit limit(1 << 12);
        EXPECT_FALSE(writeScene(QStringLiteral("a.orvane"), &error));
    }
    EXPECT_TRUE(error.startsWith(QStringLiteral("a.orvane: it cannot be written: ")))
        << qPrintable(error);
    EXPECT_EQ(bytesOf(QStringLiteral("a.orvane")), old);
    EXPECT_EQ(filesInFolder(), QStringList(QStringLiteral("a.orvane")));
}

TEST_F(SceneFile, theHeadIsAsDocumented)
{
    const QByteArray bytes = bytesOf(save());
    EXPECT_EQ(bytes.left(HeadSize - 1), QByteArray("ORVANE\r\n\x1a\n\1\0\0\0", HeadSize - 1));
    EXPECT_EQ(sectionStarts(bytes)[0], HeadSize);
    EXPECT_EQ(bytes.mid(HeadSize, 4), QByteArray("META"));
}
