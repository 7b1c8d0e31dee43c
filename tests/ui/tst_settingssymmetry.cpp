// SPDX-License-Identifier: MIT
#include "tests/ui/bracketing.h"
#include "tests/ui/settingsdialogtest.h"

#include <orvane/kernel/kernel.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QtTest>

#include <memory>

namespace {

// The symmetry section has no parent and stands nowhere: what a dialog made is what is there since.
QSet<QWidget *> widgetsWithoutParent()
{
    QSet<QWidget *> found;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *widget : all)
        found.insert(widget);
    return found;
}

class SettingsSymmetry : public SceneCleaner
{
protected:
    SettingsSymmetry()
    {
        const QSet<QWidget *> before = widgetsWithoutParent();
        dialog.reset(new ManualRetopoDialog(nullptr));
        loose = widgetsWithoutParent().subtract(before);
        loose.remove(dialog.get());
    }

    template <typename Widget>
    Widget *withText(const QString &text) const
    {
        for (QWidget *widget : loose) {
            auto *found = qobject_cast<Widget *>(widget);
            if (found && found->property("text").toString() == text)
                return found;
        }
        return nullptr;
    }
    QComboBox *choices(const char *firstChoice) const
    {
        for (QWidget *widget : loose) {
            auto *box = qobject_cast<QComboBox *>(widget);
            if (box && box->itemText(1) == QLatin1String(firstChoice))
                return box;
        }
        return nullptr;
    }
    QComboBox *x() const { return choices("Mirror Left to Right"); }
    QComboBox *y() const { return choices("Mirror Bottom to Top"); }
    QComboBox *z() const { return choices("Mirror Back to Front"); }
    QRadioButton *axis(const char *name) const
    {
        return withText<QRadioButton>(QLatin1String(name));
    }
    QLabel *axisLabel() const
    {
        return withText<QLabel>(QStringLiteral("Set Topological Axis to:"));
    }
    // As a user would: with keys, which tell the dialog.
    static void choose(QComboBox *box, int index)
    {
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < index; ++i)
            QTest::keyClick(box, Qt::Key_Down);
    }

    std::unique_ptr<ManualRetopoDialog> dialog;
    QSet<QWidget *> loose;
};

} // namespace

TEST_F(SettingsSymmetry, withEverythingOffThereIsNoAxisAndNoSymmetry)
{
    EXPECT_EQ(dialog->topologicalAxis(), 0);
    EXPECT_EQ(dialog->xSymmetry(), 0);
    EXPECT_EQ(dialog->ySymmetry(), 0);
    EXPECT_EQ(dialog->zSymmetry(), 0);
    EXPECT_FALSE(axisLabel()->isEnabled());
    for (const char *name : {"X", "Y", "Z"}) {
        EXPECT_FALSE(axis(name)->isEnabled());
        EXPECT_FALSE(axis(name)->isChecked());
    }
}

TEST_F(SettingsSymmetry, mirrorLeftToRightEnablesAndChecksTheXButtonAndEnablesTheLabel)
{
    x()->setCurrentIndex(1);
    EXPECT_FALSE(axis("X")->isEnabled());
    dialog->refreshRadio();
    EXPECT_TRUE(axis("X")->isEnabled());
    EXPECT_TRUE(axis("X")->isChecked());
    EXPECT_TRUE(axisLabel()->isEnabled());
    EXPECT_EQ(dialog->xSymmetry(), 1);
    EXPECT_EQ(dialog->topologicalAxis(), 1);
}

TEST_F(SettingsSymmetry, mirrorRightToLeftIsMinusOne)
{
    x()->setCurrentIndex(2);
    EXPECT_EQ(dialog->xSymmetry(), -1);
}

TEST_F(SettingsSymmetry, choosingRefreshesTheAxes)
{
    choose(y(), 2);
    EXPECT_EQ(dialog->ySymmetry(), -1);
    EXPECT_EQ(dialog->topologicalAxis(), 2);
    choose(z(), 1);
    EXPECT_EQ(dialog->zSymmetry(), 1);
    EXPECT_TRUE(axis("Z")->isEnabled());
    EXPECT_FALSE(axis("Z")->isChecked());
    EXPECT_EQ(dialog->topologicalAxis(), 2);
    choose(y(), 0);
    EXPECT_FALSE(axis("Y")->isEnabled());
    EXPECT_FALSE(axis("Y")->isChecked());
    EXPECT_EQ(dialog->topologicalAxis(), 3);
    choose(z(), 0);
    EXPECT_EQ(dialog->topologicalAxis(), 0);
    EXPECT_FALSE(axisLabel()->isEnabled());
}

TEST_F(SettingsSymmetry, theLastNewAxisIsCheckedWhenSeveralComeAtOnce)
{
    x()->setCurrentIndex(1);
    y()->setCurrentIndex(1);
    dialog->refreshRadio();
    EXPECT_TRUE(axis("X")->isEnabled());
    EXPECT_FALSE(axis("X")->isChecked());
    EXPECT_TRUE(axis("Y")->isChecked());
    EXPECT_EQ(dialog->topologicalAxis(), 2);
}

TEST_F(SettingsSymmetry, theAxisTheUserCheckedIsKept)
{
    choose(x(), 1);
    choose(z(), 2);
    axis("X")->setAutoExclusive(false);
    axis("X")->setChecked(false);
    axis("Z")->setChecked(true);
    choose(y(), 1);
    EXPECT_EQ(dialog->topologicalAxis(), 3);
    EXPECT_FALSE(axis("Y")->isChecked());
    EXPECT_TRUE(axis("Y")->isEnabled());
}

TEST_F(SettingsSymmetry, anAxisThatIsOffIsStillExclusive)
{
    dialog->refreshRadio();
    for (const char *name : {"X", "Y", "Z"})
        EXPECT_TRUE(axis(name)->autoExclusive());
}

TEST_F(SettingsSymmetry, noSelectionIsNoSymmetry)
{
    x()->setCurrentIndex(-1);
    EXPECT_EQ(dialog->xSymmetry(), 0);
    EXPECT_EQ(ManualRetopoDialog::symmetrySign(-1), 0);
    EXPECT_EQ(ManualRetopoDialog::symmetrySign(0), 0);
    EXPECT_EQ(ManualRetopoDialog::symmetrySign(1), 1);
    EXPECT_EQ(ManualRetopoDialog::symmetrySign(2), -1);
    EXPECT_EQ(ManualRetopoDialog::symmetrySign(3), 0);
}

TEST_F(SettingsSymmetry, eachAxisOffersOffAndTwoDirections)
{
    const QList<QStringList> expected{
        {QStringLiteral("Off"), QStringLiteral("Mirror Left to Right"),
         QStringLiteral("Mirror Right to Left")},
        {QStringLiteral("Off"), QStringLiteral("Mirror Bottom to Top"),
         QStringLiteral("Mirror Top to Bottom")},
        {QStringLiteral("Off"), QStringLiteral("Mirror Back to Front"),
         QStringLiteral("Mirror Front to Back")}};
    const QList<QComboBox *> boxes{x(), y(), z()};
    for (int i = 0; i < 3; ++i) {
        ASSERT_NE(boxes[i], nullptr);
        ASSERT_EQ(boxes[i]->count(), 3);
        EXPECT_EQ(boxes[i]->currentIndex(), 0);
        for (int item = 0; item < 3; ++item) {
            EXPECT_EQ(boxes[i]->itemText(item), expected[i][item]);
            EXPECT_TRUE(boxes[i]->itemIcon(item).isNull());
            EXPECT_FALSE(boxes[i]->itemData(item).isValid());
        }
    }
    for (const char *label :
         {"Left/Right (X) Symmetry:", "Top/Bottom (Y) Symmetry:", "Front/Back (Z) Symmetry:"})
        EXPECT_NE(withText<QLabel>(QLatin1String(label)), nullptr) << label;
}

TEST_F(SettingsSymmetry, itsTextsAreTranslated)
{
    const Bracketing brackets("ManualRetopoDialog");
    const ManualRetopoDialog translated(nullptr);
    for (const char *text :
         {"Left/Right (X) Symmetry:", "Mirror Left to Right", "Mirror Right to Left", "X",
          "Top/Bottom (Y) Symmetry:", "Mirror Bottom to Top", "Mirror Top to Bottom", "Y",
          "Front/Back (Z) Symmetry:", "Mirror Back to Front", "Mirror Front to Back", "Z", "Off"})
        EXPECT_TRUE(brackets.texts().contains(QLatin1String(text))) << text;
}

TEST_F(SettingsSymmetry, nothingOfItIsEverVisible)
{
    // Three rows of label and choices, the axis row of a label and three buttons, and the row that
    // only test mode shows.
    ASSERT_EQ(loose.size(), 3 * 2 + 4 + 2);
    dialog->show();
    choose(x(), 1);
    dialog->resize(dialog->size() * 2);
    QCoreApplication::processEvents();
    for (const QWidget *widget : loose) {
        EXPECT_FALSE(widget->isVisible());
        EXPECT_EQ(widget->parentWidget(), nullptr);
    }
    EXPECT_TRUE(dialog->findChildren<QComboBox *>().isEmpty());
    EXPECT_TRUE(dialog->findChildren<QRadioButton *>().isEmpty());
}

TEST_F(SettingsSymmetry, allOfItGoesWithTheDialog)
{
    QList<QPointer<QWidget>> watched;
    for (QWidget *widget : loose)
        watched.append(widget);
    dialog.reset();
    for (const QPointer<QWidget> &widget : watched)
        EXPECT_TRUE(widget.isNull());
}
