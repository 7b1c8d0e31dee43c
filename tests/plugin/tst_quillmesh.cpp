// SPDX-License-Identifier: MIT
#include "plugin/quillmesh.h"
#include "tests/plugin/toolscene.h"
#include "ui/manualretopodialog.h"

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/plugin.h>
#include <orvane/kernel/scene.h>

#include <QApplication>
#include <QMetaMethod>
#include <QPointer>
#include <QRegularExpression>

namespace {

class QuillmeshTest : public ToolScene
{};

QMetaMethod ownMethod(int index)
{
    const QMetaObject &meta = Quillmesh::staticMetaObject;
    return meta.method(meta.methodOffset() + index);
}

void expectSlot(int index, const char *signature, const QList<QByteArray> &parameters)
{
    const QMetaMethod method = ownMethod(index);
    EXPECT_EQ(method.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(method.access(), QMetaMethod::Public);
    EXPECT_EQ(method.methodSignature(), QByteArray(signature));
    EXPECT_EQ(method.parameterNames(), parameters);
}

const orvane::Plugin *recordNamed(const QString &name)
{
    for (const orvane::Plugin *plugin : orvane::Plugin::All()) {
        if (plugin->Name() == name)
            return plugin;
    }
    return nullptr;
}

} // namespace

TEST_F(QuillmeshTest, theSlotsHaveTheirPlacesSignaturesAndParameterNames)
{
    const QMetaObject &meta = Quillmesh::staticMetaObject;
    EXPECT_STREQ(meta.className(), "Quillmesh");
    EXPECT_EQ(meta.superClass(), &QObject::staticMetaObject);
    EXPECT_EQ(meta.methodCount() - meta.methodOffset(), 3);
    expectSlot(0, "createMesh()", {});
    expectSlot(1, "renderIntersectionsCheckBox(int)", {"state"});
    expectSlot(2, "dialogClosed()", {});
}

TEST_F(QuillmeshTest, itIsAnObjectFirstAndANodeSecond)
{
    const auto *object = static_cast<const QObject *>(tool.get());
    const auto *node = static_cast<const orvane::Node *>(tool.get());
    EXPECT_EQ(static_cast<const void *>(object), static_cast<const void *>(tool.get()));
    EXPECT_GT(static_cast<const void *>(node), static_cast<const void *>(object));
    EXPECT_EQ(object->parent(), nullptr);
    EXPECT_TRUE(node->StringID().isEmpty());
    EXPECT_TRUE(node->DisplayName().isEmpty());
}

TEST_F(QuillmeshTest, theClassIsRegisteredByName)
{
    const orvane::ClassDesc *desc = Quillmesh::StaticClass();
    EXPECT_EQ(orvane::ClassDesc::ByName(QStringLiteral("Quillmesh")), desc);
    EXPECT_EQ(desc->Parent(), orvane::Node::StaticClass());
    EXPECT_EQ(desc->Category(), orvane::Node::StaticClass());
    EXPECT_EQ(desc->DisplayName(), QStringLiteral("Quillmesh"));
    EXPECT_EQ(desc->Version(), 0);
    EXPECT_EQ(desc->Flags(), 0);
    const orvane::Node *node = tool.get();
    EXPECT_EQ(node->RuntimeClass(), desc);
}

TEST_F(QuillmeshTest, theFactoryMakesOneForACountOf0Or1)
{
    for (unsigned count : {0u, 1u}) {
        const std::unique_ptr<orvane::Node> node(Quillmesh::StaticClass()->Create(count));
        auto *made = dynamic_cast<Quillmesh *>(node.get());
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(static_cast<orvane::Node *>(made), node.get());
    }
}

TEST_F(QuillmeshTest, theFactoryMakesAnArrayForMore)
{
    orvane::Node *first = Quillmesh::StaticClass()->Create(3);
    auto *tools = dynamic_cast<Quillmesh *>(first);
    ASSERT_NE(tools, nullptr);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(tools[i].Attributes().size(), 2);
    EXPECT_EQ(interface.window->findChildren<ManualRetopoDialog *>().size(), 4);
    delete[] tools;
}

TEST_F(QuillmeshTest, itsTwoAttributesAreHiddenAndFollowTheHosts)
{
    const QVector<orvane::Attribute *> &attributes = tool->Attributes();
    ASSERT_EQ(attributes.size(), 2);
    EXPECT_TRUE(attributes[0]->ID().isEmpty()) << "the gate is named by the empty string";
    EXPECT_NE(dynamic_cast<orvane::EventGate *>(attributes[0]), nullptr);
    EXPECT_EQ(attributes[0]->Source(), &view.EndRenderEvent());
    EXPECT_FALSE(attributes[0]->IsVisible());
    EXPECT_EQ(attributes[1]->ID(), QStringLiteral("nextcomand"));
    EXPECT_NE(dynamic_cast<orvane::AttributeInstance<QString> *>(attributes[1]), nullptr);
    EXPECT_EQ(attributes[1]->Source(), &orvane::Kernel()->CommandAttribute());
    EXPECT_FALSE(attributes[1]->IsVisible());
}

TEST_F(QuillmeshTest, itTakesNoNumberOfTheScene)
{
    EXPECT_EQ(tool->ID(), 0);
    EXPECT_FALSE(tool->IsInScene());
    EXPECT_EQ(orvane::Kernel()->Scene()->NodeCount(), 0);
    const Sheet sheet;
    EXPECT_EQ(sheet.geometry()->ID(), 1);
}

TEST_F(QuillmeshTest, theDialogIsTheMainWindowsAndIsMadeHidden)
{
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->parent(), interface.MainWindow());
    EXPECT_FALSE(dialog()->isVisible());
}

TEST_F(QuillmeshTest, showingTwiceShowsTheSameDialog)
{
    tool->showDialog();
    const ManualRetopoDialog *shown = dialog();
    EXPECT_TRUE(shown->isVisible());
    press("close");
    EXPECT_FALSE(shown->isVisible());
    tool->showDialog();
    EXPECT_TRUE(shown->isVisible());
    EXPECT_EQ(interface.window->findChildren<ManualRetopoDialog *>().size(), 1);
}

TEST_F(QuillmeshTest, theDialogOutlivesTheToolAndThenAsksNobody)
{
    const QPointer<ManualRetopoDialog> left = dialog();
    const int redraws = view.redraws;
    tool.reset();
    ASSERT_FALSE(left.isNull());
    const int commands = orvane::Kernel()->RecordedCommands().size();
    createMesh();
    press("close");
    EXPECT_EQ(orvane::Kernel()->RecordedCommands().size(), commands);
    EXPECT_EQ(view.redraws, redraws);
    orvane::Kernel()->CommandAttribute().SetValue(QStringLiteral("manualretopo"));
    view.render();
}

TEST_F(QuillmeshTest, withTheMainWindowGoneThereIsNothingToShow)
{
    interface.window.reset();
    tool->showDialog();
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST_F(QuillmeshTest, switchingTheOverlayRepaintsAllOfTheView)
{
    tool->renderIntersectionsCheckBox(2);
    EXPECT_EQ(view.redraws, 1);
    tool->renderIntersectionsCheckBox(0);
    EXPECT_EQ(view.redraws, 2);
    tool->dialogClosed();
    EXPECT_EQ(view.redraws, 3);
    EXPECT_EQ(view.partialRedraws, 0);
}

TEST_F(QuillmeshTest, theDialogsSignalsReachTheSlots)
{
    emit dialog()->renderIntersectionsCheckBox(2);
    EXPECT_EQ(view.redraws, 1);
    emit dialog()->dialogClosed();
    EXPECT_EQ(view.redraws, 2);
    const int commands = orvane::Kernel()->RecordedCommands().size();
    emit dialog()->createMesh();
    EXPECT_EQ(orvane::Kernel()->RecordedCommands().size(), commands + 1);
}

TEST_F(QuillmeshTest, thePluginSaysWhoItIs)
{
    const orvane::Plugin *record = recordNamed(QStringLiteral("Quillmesh"));
    ASSERT_NE(record, nullptr);
    EXPECT_TRUE(record->FitsFramework());
    EXPECT_FALSE(record->IsRefused());
    EXPECT_EQ(record->Description(), QStringLiteral("Quill Mesh"));
    EXPECT_EQ(record->Author(), QStringLiteral("The Quillmesh developers"));
    EXPECT_EQ(record->Address(), QStringLiteral("https://quillmesh.example"));
    const QRegularExpression stamp(
        QStringLiteral("^(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) [ 1-3]\\d 20\\d\\d "
                       "\\d\\d:\\d\\d:\\d\\d$"));
    EXPECT_TRUE(stamp.match(record->BuildStamp()).hasMatch()) << record->BuildStamp().toStdString();
}

TEST_F(QuillmeshTest, theMenuEntryIsLeftToTheInitialiser)
{
    EXPECT_TRUE(interface.MenuItems().isEmpty());
}
