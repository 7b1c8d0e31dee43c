// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"
#include "tests/ui/faultdialog.h"
#include "ui/validatenewmesh.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QScopedPointer>

#include <memory>

using orvane::AttributeInstance;
using orvane::SubdivisionLevel;

namespace {

class WindowInterface : public orvane::Interface
{
public:
    QWidget *MainWindow() const override { return m_window.data(); }

private:
    QScopedPointer<QWidget> m_window{new QWidget};
};

// Counts how often the preference is set.
class PreferenceFollower : public orvane::Node
{
public:
    PreferenceFollower() : m_value(this, QStringLiteral("value"))
    {
        m_value.Connect(&orvane::Kernel()->Preferences()->renderMeshFaults, false);
    }
    void OnNodeEvent(const orvane::Attribute &, orvane::NodeEventType type) override
    {
        if (type == orvane::NodeEventValueChanged)
            ++changes;
    }

    int changes = 0;

private:
    AttributeInstance<bool> m_value;
};

class ValidateNewMesh : public SceneCleaner
{
protected:
    ValidateNewMesh() { preference().SetValue(false); }
    ~ValidateNewMesh() override { preference().SetValue(false); }

    static AttributeInstance<bool> &preference()
    {
        return orvane::Kernel()->Preferences()->renderMeshFaults;
    }

    static std::unique_ptr<SubdivisionLevel> faultyMesh()
    {
        std::unique_ptr<SubdivisionLevel> mesh(polygonOfFakes(17));
        mesh->SetName(QStringLiteral("Sketched Mesh"));
        return mesh;
    }

    // What validateNewMesh answers when the user ends its dialog so.
    static bool answer(SubdivisionLevel *mesh, void (*end)(QDialog &))
    {
        const DialogVisitor visitor(end);
        const bool kept = validateNewMesh(mesh);
        EXPECT_TRUE(visitor.hasVisited());
        return kept;
    }

    // What the dialog shows above the list.
    static QString messageFor(SubdivisionLevel *mesh)
    {
        QString message;
        const DialogVisitor visitor([&message](QDialog &dialog) {
            message = qobject_cast<QLabel *>(dialog.layout()->itemAt(1)->widget())->text();
            clickClose(dialog);
        });
        validateNewMesh(mesh);
        return message;
    }
};

} // namespace

TEST_F(ValidateNewMesh, aMeshWithNoFaultsGivesTrueAndShowsNothing)
{
    const std::unique_ptr<SubdivisionLevel> mesh(gridOfQuads(3, 3));
    const int windows = QApplication::topLevelWidgets().size();
    const DialogVisitor visitor(clickClose);
    EXPECT_TRUE(validateNewMesh(mesh.get()));
    QApplication::processEvents();
    EXPECT_FALSE(visitor.hasVisited());
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
    EXPECT_FALSE(preference().Value());
}

TEST_F(ValidateNewMesh, closeGivesFalseAndTheCallerDestroysTheMesh)
{
    std::unique_ptr<SubdivisionLevel> mesh = faultyMesh();
    ASSERT_FALSE(answer(mesh.get(), clickClose));
    EXPECT_EQ(mesh->FaceCount(), 15); // still whole, and the caller's to destroy
    mesh.reset();
    EXPECT_FALSE(preference().Value());
}

TEST_F(ValidateNewMesh, acceptGivesTrueAndFaultsAreRenderedAfterwards)
{
    const auto mesh = faultyMesh();
    EXPECT_TRUE(answer(mesh.get(), clickAccept));
    EXPECT_TRUE(preference().Value());
}

TEST_F(ValidateNewMesh, aPreferenceThatIsAlreadyTrueStaysTrue)
{
    preference().SetValue(true);
    const PreferenceFollower follower;
    const auto mesh = faultyMesh();
    EXPECT_TRUE(answer(mesh.get(), clickAccept));
    EXPECT_TRUE(preference().Value());
    EXPECT_EQ(follower.changes, 0);
    EXPECT_FALSE(answer(mesh.get(), clickClose));
    EXPECT_TRUE(preference().Value());
}

TEST_F(ValidateNewMesh, whoFollowsThePreferenceIsToldOnce)
{
    const PreferenceFollower follower;
    const auto mesh = faultyMesh();
    EXPECT_TRUE(answer(mesh.get(), clickAccept));
    EXPECT_EQ(follower.changes, 1);
}

TEST_F(ValidateNewMesh, escapeAndTheWindowsCloseButtonDiscardLikeClose)
{
    const auto mesh = faultyMesh();
    EXPECT_FALSE(answer(mesh.get(), pressEscape));
    EXPECT_FALSE(answer(mesh.get(), closeWindow));
    EXPECT_FALSE(preference().Value());
}

TEST_F(ValidateNewMesh, theDialogIsGoneAfterwards)
{
    const auto mesh = faultyMesh();
    const int windows = QApplication::topLevelWidgets().size();
    EXPECT_TRUE(answer(mesh.get(), clickAccept));
    EXPECT_FALSE(answer(mesh.get(), clickClose));
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
}

TEST_F(ValidateNewMesh, aMeshOfItsOwnIsShownByItsName)
{
    const auto mesh = faultyMesh();
    EXPECT_EQ(messageFor(mesh.get()), QStringLiteral("The mesh Sketched Mesh contains errors. "));
}

TEST_F(ValidateNewMesh, aMeshOfAGeometryIsShownByTheNameOfThat)
{
    SubdivisionLevel *mesh = faultyMesh().release(); // the scene's from here on
    addToScene(mesh, QStringLiteral("Body-Retopo"));
    EXPECT_EQ(messageFor(mesh), QStringLiteral("The mesh Body-Retopo contains errors. "));
}

TEST_F(ValidateNewMesh, theDialogBelongsToTheMainWindowAndListsWhatTheMeshHas)
{
    WindowInterface interface;
    orvane::Kernel()->SetInterface(&interface);
    const auto mesh = faultyMesh();
    const DialogVisitor visitor([&interface](QDialog &dialog) {
        EXPECT_EQ(dialog.parentWidget(), interface.MainWindow());
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(dialog.objectName(), QStringLiteral("ValidateMeshFeedbackmDialog"));
        EXPECT_EQ(rowTitles(dialog), QStringList{QStringLiteral("Too many sides in a face")});
        clickClose(dialog);
    });
    EXPECT_FALSE(validateNewMesh(mesh.get()));
    EXPECT_TRUE(visitor.hasVisited());
    orvane::Kernel()->SetInterface(nullptr);
}

TEST_F(ValidateNewMesh, nullHasNothingToComplainAbout)
{
    EXPECT_TRUE(validateNewMesh(nullptr));
}
