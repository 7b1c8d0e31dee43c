// SPDX-License-Identifier: MIT
// A host process in small: it knows the framework and nothing of the plug-in but its file.
#include "tests/support/dialoganswer.h"
#include "tests/support/hostwindow.h"
#include "tests/support/recordinggl.h"
#include "tests/support/strokes.h"

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/plugin.h>
#include <orvane/kernel/pluginloader.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/viewport.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QtTest>

#include <gtest/gtest.h>

namespace {

using orvane::PluginLoader;

bool isClassKnown(const char *name)
{
    return orvane::ClassDesc::ByName(QLatin1String(name)) != nullptr;
}

QList<QWidget *> windowsNamed(const char *name)
{
    QList<QWidget *> found;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String(name)
            || QLatin1String(window->metaObject()->className()) == QLatin1String(name))
            found.append(window);
    }
    return found;
}

// What the host could see before and after each step of loading.
struct Sight
{
    static Sight now()
    {
        return {isClassKnown("Quillmesh"), isClassKnown("ManualRetopoOperation"),
                orvane::Plugin::All().size(), orvane::Kernel()->Interface()->MenuItems().size(),
                windowsNamed("ManualRetopoDialog").size()};
    }

    bool knowsTool;
    bool knowsOperation;
    int records;
    int menuItems;
    int dialogs;
};

// One for the process: a plug-in is loaded once and stays.
struct Host
{
    Host()
    {
        orvane::Kernel()->SetTestMode(true);
        before = Sight::now();
        loader.AddFolder(QStringLiteral(QUILLMESH_LIBRARY_FOLDER));
        loader.Load();
        loaded = Sight::now();
        loader.Initialise();
        initialised = Sight::now();
    }

    HostWindow interface;
    PluginLoader loader;
    Sight before;
    Sight loaded;
    Sight initialised;
};

class LoadedLibrary : public testing::Test
{
protected:
    static void SetUpTestSuite() { theHost = new Host; }

    // Windows go before the application does.
    static void TearDownTestSuite()
    {
        delete theHost;
        theHost = nullptr;
    }

    LoadedLibrary() : host(*theHost), kernel(*orvane::Kernel()), answer(QStringLiteral("accept"))
    {
        RecordingGl::instance().reset();
    }

    ~LoadedLibrary() override
    {
        if (QWidget *shown = dialog())
            shown->findChild<QAbstractButton *>(QStringLiteral("close"))->click();
        kernel.NewScene();
    }

    const orvane::MenuItem *menuItem() const
    {
        for (const orvane::MenuItem &item : host.interface.MenuItems()) {
            if (item.id == QLatin1String("manualRetopo"))
                return &item;
        }
        return nullptr;
    }

    void chooseMenuEntry()
    {
        ASSERT_NE(menuItem(), nullptr);
        menuItem()->callback();
        ASSERT_NE(dialog(), nullptr);
    }

    static QWidget *dialog() { return windowsNamed("ManualRetopoDialog").value(0); }

    void type(const char *field, const char *text)
    {
        auto *edit = dialog()->findChild<QLineEdit *>(QLatin1String(field));
        ASSERT_NE(edit, nullptr) << field;
        QTest::mouseClick(edit, Qt::LeftButton);
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, QLatin1String(text));
    }

    void click(const char *button)
    {
        auto *found = dialog()->findChild<QAbstractButton *>(QLatin1String(button));
        ASSERT_NE(found, nullptr) << button;
        ASSERT_TRUE(found->isVisible()) << button;
        QTest::mouseClick(found, Qt::LeftButton);
    }

    void clickBox(const char *name)
    {
        auto *box = dialog()->findChild<QCheckBox *>(QLatin1String(name));
        ASSERT_NE(box, nullptr) << name;
        ASSERT_TRUE(box->isVisible()) << name;
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->height() / 2, box->height() / 2));
    }

    // Four strokes round a square: one cell of four corners.
    void drawCell()
    {
        sheet.straight({1, 2, 0}, {5, 2, 0});
        sheet.straight({1, 4, 0}, {5, 4, 0});
        sheet.straight({2, 1, 0}, {2, 5, 0});
        sheet.straight({4, 1, 0}, {4, 5, 0});
    }

    QVector<orvane::Geometry *> made() const { return kernel.Scene()->Geometries().mid(1); }
    QString lastCommand() const { return kernel.RecordedCommands().value(commandCount() - 1); }
    int commandCount() const { return kernel.RecordedCommands().size(); }

    void render()
    {
        RecordingGl::instance().reset();
        kernel.ViewPort()->EndRenderEvent().Raise();
    }

    static Host *theHost;
    Host &host;
    class orvane::Kernel &kernel;
    DialogAnswer answer;
    Sheet sheet;
};

Host *LoadedLibrary::theHost = nullptr;

} // namespace

TEST_F(LoadedLibrary, itsClassesAreKnownAfterLoadingAndNotBefore)
{
    EXPECT_FALSE(host.before.knowsTool);
    EXPECT_FALSE(host.before.knowsOperation);
    EXPECT_TRUE(host.loaded.knowsTool);
    EXPECT_TRUE(host.loaded.knowsOperation);
}

TEST_F(LoadedLibrary, loadingOnlyDeclares)
{
    EXPECT_EQ(host.before.records, 0);
    EXPECT_EQ(host.loaded.records, 1);
    EXPECT_EQ(host.loaded.menuItems, 0);
    EXPECT_EQ(host.loaded.dialogs, 0);
    EXPECT_EQ(host.initialised.menuItems, 1);
    EXPECT_EQ(host.initialised.dialogs, 1);
}

TEST_F(LoadedLibrary, theLoaderListsItAsInitialised)
{
    ASSERT_EQ(host.loader.Entries().size(), 1);
    const PluginLoader::Entry &entry = host.loader.Entries().first();
    EXPECT_EQ(entry.state, PluginLoader::State::Initialised) << entry.reason.toStdString();
    EXPECT_EQ(entry.name, QStringLiteral("Quillmesh"));
    EXPECT_EQ(entry.description, QStringLiteral("Quill Mesh"));
}

TEST_F(LoadedLibrary, theMenuEntryIsInTheMeshMenu)
{
    const orvane::MenuItem *item = menuItem();
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->menu, orvane::Interface::menuMesh);
    EXPECT_TRUE(item->subMenu.isEmpty());
    EXPECT_EQ(item->label, QStringLiteral("Create Mesh from Curves..."));
    EXPECT_EQ(item->position, 800);
    EXPECT_FALSE(item->checkable);
    EXPECT_EQ(item->kind, 1);
}

TEST_F(LoadedLibrary, choosingTheEntryTwiceShowsAndActivatesTheSameDialog)
{
    chooseMenuEntry();
    QWidget *first = dialog();
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(first->parentWidget(), host.interface.MainWindow());
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activeWindow(), first);
    host.interface.MainWindow()->show();
    host.interface.MainWindow()->activateWindow();
    QCoreApplication::processEvents();
    ASSERT_EQ(QApplication::activeWindow(), host.interface.MainWindow());
    chooseMenuEntry();
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activeWindow(), first);
    click("close");
    EXPECT_FALSE(first->isVisible());
    chooseMenuEntry();
    EXPECT_EQ(dialog(), first);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(windowsNamed("ManualRetopoDialog").size(), 1);
}

TEST_F(LoadedLibrary, typingAndPressingCreateMeshMakesAMeshAndRecordsTheLine)
{
    drawCell();
    chooseMenuEntry();
    type("maximumEdges", "6");
    type("mergeDistance", "12.5");
    type("intersectionTolerance", "7");
    type("overrunTolerance", "40");
    const int commands = commandCount();
    click("createMesh");
    EXPECT_EQ(commandCount(), commands + 1);
    EXPECT_EQ(lastCommand(), QStringLiteral("manualretopo 6 0.125 0.07 40 0"));
    ASSERT_EQ(made().size(), 1);
    EXPECT_EQ(made().first()->Name(), QStringLiteral("Sheet-Retopo"));
    EXPECT_EQ(made().first()->CurrentLevel()->VertexCount(), 4);
    EXPECT_EQ(made().first()->CurrentLevel()->FaceCount(), 1);
    EXPECT_TRUE(dialog()->isVisible()) << "it stays open for the next one";
}

TEST_F(LoadedLibrary, whatIsTypedReachesTheOperation)
{
    drawCell();
    chooseMenuEntry();
    type("maximumEdges", "3");
    click("createMesh");
    EXPECT_TRUE(made().isEmpty()) << "the cell has four edges";
    type("maximumEdges", "4");
    type("mergeDistance", "250");
    click("createMesh");
    EXPECT_TRUE(made().isEmpty()) << "the cell is smaller than the merge distance";
    type("mergeDistance", "150");
    click("createMesh");
    EXPECT_EQ(made().size(), 1);
}

TEST_F(LoadedLibrary, undoAndRedoWorkThroughTheClassesName)
{
    drawCell();
    chooseMenuEntry();
    type("maximumEdges", "5");
    type("mergeDistance", "30");
    click("createMesh");
    ASSERT_EQ(made().size(), 1);
    const int id = made().first()->ID();
    ASSERT_TRUE(kernel.Undo());
    EXPECT_TRUE(made().isEmpty());
    ASSERT_TRUE(kernel.Redo());
    ASSERT_EQ(made().size(), 1);
    EXPECT_EQ(made().first()->ID(), id);
}

TEST_F(LoadedLibrary, theRecordedLineReplaysWithoutTheDialog)
{
    drawCell();
    kernel.CommandAttribute().SetValue(QStringLiteral("manualretopo 5 0.3 0.05 35 0"));
    ASSERT_EQ(made().size(), 1);
    EXPECT_EQ(made().first()->CurrentLevel()->FaceCount(), 1);
}

TEST_F(LoadedLibrary, pressingHelpTwiceOpensTwoWindows)
{
    chooseMenuEntry();
    click("help");
    click("help");
    const QList<QWidget *> helps = windowsNamed("RetopologyHelpDialog");
    EXPECT_EQ(helps.size(), 2);
    for (QWidget *help : helps) {
        EXPECT_TRUE(help->isVisible());
        help->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(windowsNamed("RetopologyHelpDialog").isEmpty());
}

TEST_F(LoadedLibrary, theOverlayIsDrawnAfterEachRenderUntilTheDialogCloses)
{
    drawCell();
    chooseMenuEntry();
    type("maximumEdges", "5");
    type("mergeDistance", "30");
    click("createMesh");
    render();
    EXPECT_TRUE(RecordingGl::instance().isIdle());
    clickBox("renderIntersections");
    for (int i = 0; i < 2; ++i) {
        render();
        EXPECT_EQ(RecordingGl::instance().dots().size(), 4);
        EXPECT_EQ(RecordingGl::instance().strokes().size(), 8);
        EXPECT_EQ(RecordingGl::instance().mistakes, 0);
        const QStringList bindings =
            RecordingGl::instance().calls.filter(QStringLiteral("cgGLBindProgram"));
        EXPECT_EQ(bindings.size(), QUILLMESH_HAS_CG);
    }
    click("close");
    render();
    EXPECT_TRUE(RecordingGl::instance().isIdle());
    chooseMenuEntry();
    clickBox("renderIntersections"); // as it was for the next test
}
