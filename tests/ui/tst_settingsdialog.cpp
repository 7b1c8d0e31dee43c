// SPDX-License-Identifier: MIT
#include "tests/support/hostwindow.h"
#include "tests/ui/settingsdialogtest.h"
#include "ui/retopologyhelpdialog.h"

#include <orvane/kernel/kernel.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include <limits>

namespace {

using SettingsDialog = SettingsDialogTest;

QList<RetopologyHelpDialog *> helpDialogs()
{
    QList<RetopologyHelpDialog *> found;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *help = qobject_cast<RetopologyHelpDialog *>(window))
            found.append(help);
    }
    return found;
}

} // namespace

TEST_F(SettingsDialog, aFreshDialogGivesTheUsualValuesWithTheSelfIntersectionBoxChecked)
{
    EXPECT_EQ(dialog.maximumEdges(), 5);
    EXPECT_FLOAT_EQ(dialog.mergeDistance(), 0.30f);
    EXPECT_FLOAT_EQ(dialog.intersectionTolerance(), 0.05f);
    EXPECT_FLOAT_EQ(dialog.overrunTolerance(), 35.0f);
    EXPECT_FALSE(dialog.useSelfIntersections());
    EXPECT_TRUE(box("ignoreSelfIntersections")->isChecked());
    EXPECT_EQ(edit("maximumEdges")->text(), QStringLiteral("5"));
    EXPECT_EQ(edit("mergeDistance")->text(), QStringLiteral("30"));
    EXPECT_EQ(edit("intersectionTolerance")->text(), QStringLiteral("5"));
    EXPECT_EQ(edit("overrunTolerance")->text(), QStringLiteral("35"));
}

TEST_F(SettingsDialog, clearedFieldsGiveTheirOwnFallbacks)
{
    show();
    clear("mergeDistance");
    EXPECT_FLOAT_EQ(dialog.mergeDistance(), -0.01f);
    clear("overrunTolerance");
    EXPECT_EQ(dialog.overrunTolerance(), 0.0f);
    clear("maximumEdges");
    EXPECT_EQ(dialog.maximumEdges(), 0);
    clear("intersectionTolerance");
    EXPECT_FLOAT_EQ(dialog.intersectionTolerance(), -0.01f);
}

TEST_F(SettingsDialog, typingTheSingleDigitTwoIntoMaximumEdgesStoresTwo)
{
    show();
    type("maximumEdges", QStringLiteral("2"));
    EXPECT_FALSE(edit("maximumEdges")->hasAcceptableInput());
    EXPECT_EQ(dialog.maximumEdges(), 2);
}

TEST_F(SettingsDialog, uncheckingIgnoreSelfIntersectionsUsesThemAndCheckingAgainDoesNot)
{
    show();
    click("ignoreSelfIntersections");
    EXPECT_FALSE(box("ignoreSelfIntersections")->isChecked());
    EXPECT_TRUE(dialog.useSelfIntersections());
    click("ignoreSelfIntersections");
    EXPECT_FALSE(dialog.useSelfIntersections());
}

TEST_F(SettingsDialog, outsideTestModeOnlyParametersAndButtonsAreShown)
{
    show();
    ASSERT_EQ(dialog.layout()->count(), 2);
    EXPECT_EQ(dialog.findChild<QCheckBox *>(QStringLiteral("renderIntersections")), nullptr);
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        EXPECT_NE(label->text(), QStringLiteral("Render Intersections: "));
}

TEST_F(SettingsDialog, inTestModeTheRenderIntersectionsRowLiesBetweenThem)
{
    orvane::Kernel()->SetTestMode(true);
    ManualRetopoDialog inTestMode(nullptr);
    inTestMode.show();
    ASSERT_EQ(inTestMode.layout()->count(), 3);
    QLayout *row = inTestMode.layout()->itemAt(1)->layout();
    ASSERT_NE(row, nullptr);
    ASSERT_EQ(row->count(), 2);
    const auto *label = qobject_cast<QLabel *>(row->itemAt(0)->widget());
    const auto *render = qobject_cast<QCheckBox *>(row->itemAt(1)->widget());
    ASSERT_TRUE(label && render);
    EXPECT_EQ(label->text(), QStringLiteral("Render Intersections: "));
    EXPECT_EQ(row->itemAt(0)->alignment(), Qt::AlignLeft);
    EXPECT_TRUE(label->isVisible() && render->isVisible());
    EXPECT_FALSE(render->isChecked());
    const auto *field =
        inTestMode.findChild<QCheckBox *>(QStringLiteral("ignoreSelfIntersections"));
    const auto *button = inTestMode.findChild<QPushButton *>(QStringLiteral("help"));
    EXPECT_GT(render->y(), field->geometry().bottom());
    EXPECT_LT(render->geometry().bottom(), button->y());
}

TEST_F(SettingsDialog, createMeshPressedTwiceAsksTwiceAndLeavesTheDialogOpen)
{
    const QSignalSpy asked(&dialog, &ManualRetopoDialog::createMesh);
    show();
    click("createMesh");
    click("createMesh");
    EXPECT_EQ(asked.count(), 2);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(SettingsDialog, twoPressesOfHelpOpenTwoHelpWindows)
{
    const HostWindow host;
    show();
    click("help");
    click("help");
    ASSERT_EQ(helpDialogs().size(), 2);
    EXPECT_TRUE(
        helpDialogs().contains(qobject_cast<RetopologyHelpDialog *>(QApplication::activeWindow())));
    for (const RetopologyHelpDialog *help : helpDialogs()) {
        EXPECT_TRUE(help->isVisible());
        EXPECT_FALSE(help->isModal());
        EXPECT_EQ(help->parentWidget(), host.MainWindow());
        EXPECT_TRUE(help->testAttribute(Qt::WA_DeleteOnClose));
    }
    for (RetopologyHelpDialog *help : helpDialogs())
        help->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(helpDialogs().isEmpty());
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(SettingsDialog, theCheckBoxStateOfRenderIntersectionsIsHandedOn)
{
    orvane::Kernel()->SetTestMode(true);
    ManualRetopoDialog inTestMode(nullptr);
    const QSignalSpy states(&inTestMode, &ManualRetopoDialog::renderIntersectionsCheckBox);
    inTestMode.show();
    auto *render = inTestMode.findChild<QCheckBox *>(QStringLiteral("renderIntersections"));
    for (int i = 0; i < 2; ++i)
        QTest::mouseClick(render, Qt::LeftButton, Qt::NoModifier, {8, render->height() / 2});
    ASSERT_EQ(states.count(), 2);
    EXPECT_EQ(states[0][0].toInt(), 2);
    EXPECT_EQ(states[1][0].toInt(), 0);
    inTestMode.onRenderIntersectionCheck(1);
    EXPECT_EQ(states[2][0].toInt(), 1);
}

TEST_F(SettingsDialog, closeSaysSoBeforeTheDialogIsHidden)
{
    bool wasVisible = false;
    QObject::connect(&dialog, &ManualRetopoDialog::dialogClosed, &dialog,
                     [this, &wasVisible]() { wasVisible = dialog.isVisible(); });
    const QSignalSpy closed(&dialog, &ManualRetopoDialog::dialogClosed);
    show();
    click("close");
    EXPECT_EQ(closed.count(), 1);
    EXPECT_TRUE(wasVisible);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(SettingsDialog, escapeAndTheWindowsFrameHideItWithoutSayingSo)
{
    const QSignalSpy closed(&dialog, &ManualRetopoDialog::dialogClosed);
    show();
    QTest::keyClick(edit("mergeDistance"), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    show();
    dialog.close();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(closed.count(), 0);
}

TEST_F(SettingsDialog, editsSurviveClosingAndReopeningButNotANewDialog)
{
    show();
    type("mergeDistance", QStringLiteral("12.5"));
    click("close");
    show();
    EXPECT_EQ(edit("mergeDistance")->text(), QStringLiteral("12.5"));
    EXPECT_FLOAT_EQ(dialog.mergeDistance(), 0.125f);
    const ManualRetopoDialog fresh(nullptr);
    EXPECT_FLOAT_EQ(fresh.mergeDistance(), 0.30f);
}

TEST_F(SettingsDialog, twoValuesLeaveAsFractionsAndTheOverrunAsPercent)
{
    show();
    type("maximumEdges", QStringLiteral("6"));
    type("mergeDistance", QStringLiteral("250"));
    type("intersectionTolerance", QStringLiteral("7.25"));
    type("overrunTolerance", QStringLiteral("7.25"));
    EXPECT_EQ(dialog.maximumEdges(), 6);
    EXPECT_EQ(dialog.mergeDistance(), 250.0f / 100.0f);
    EXPECT_EQ(dialog.intersectionTolerance(), 7.25f / 100.0f);
    EXPECT_EQ(dialog.overrunTolerance(), 7.25f);
}

TEST_F(SettingsDialog, maximumEdgesAreTruncatedTowardZero)
{
    dialog.onMaximumEdgesChanged(QStringLiteral("7.9"));
    EXPECT_EQ(dialog.maximumEdges(), 7);
    dialog.onMaximumEdgesChanged(QStringLiteral("-7.9"));
    EXPECT_EQ(dialog.maximumEdges(), -7);
    dialog.onMaximumEdgesChanged(QStringLiteral("many"));
    EXPECT_EQ(dialog.maximumEdges(), 0);
}

TEST_F(SettingsDialog, edgesBeyondEveryIntegerAreTheGreatestOne)
{
    show();
    type("maximumEdges", QStringLiteral("2147483647"));
    EXPECT_EQ(edit("maximumEdges")->text(), QStringLiteral("2147483647"));
    EXPECT_EQ(dialog.maximumEdges(), std::numeric_limits<int>::max());
    dialog.onMaximumEdgesChanged(QStringLiteral("1e30"));
    EXPECT_EQ(dialog.maximumEdges(), std::numeric_limits<int>::max());
    dialog.onMaximumEdgesChanged(QStringLiteral("-1e30"));
    EXPECT_EQ(dialog.maximumEdges(), std::numeric_limits<int>::min());
    dialog.onMaximumEdgesChanged(QStringLiteral("nan"));
    EXPECT_EQ(dialog.maximumEdges(), 0);
}

TEST_F(SettingsDialog, textsThatAreNoNumbersGiveTheFallbacks)
{
    for (const QString &text : {QStringLiteral("abc"), QStringLiteral("."), QStringLiteral("1,5"),
                                QStringLiteral("1 000"), QStringLiteral("5%")}) {
        dialog.onMergeDistanceChanged(text);
        EXPECT_EQ(dialog.mergeDistance(), -1.0f / 100.0f) << qPrintable(text);
        dialog.onIntersectionToleranceChanged(text);
        EXPECT_EQ(dialog.intersectionTolerance(), -1.0f / 100.0f) << qPrintable(text);
        dialog.onOverrunChanged(text);
        EXPECT_EQ(dialog.overrunTolerance(), 0.0f) << qPrintable(text);
        dialog.onMaximumEdgesChanged(text);
        EXPECT_EQ(dialog.maximumEdges(), 0) << qPrintable(text);
    }
}

TEST_F(SettingsDialog, onlyTheUncheckedStateUsesSelfIntersections)
{
    dialog.onSelfIntersectionCheck(0);
    EXPECT_TRUE(dialog.useSelfIntersections());
    dialog.onSelfIntersectionCheck(1);
    EXPECT_FALSE(dialog.useSelfIntersections());
    dialog.onSelfIntersectionCheck(0);
    dialog.onSelfIntersectionCheck(2);
    EXPECT_FALSE(dialog.useSelfIntersections());
}
