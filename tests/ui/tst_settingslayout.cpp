// SPDX-License-Identifier: MIT
#include "tests/ui/bracketing.h"
#include "tests/ui/settingsdialogtest.h"

#include <orvane/kernel/kernel.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

struct Row
{
    const char *label;
    const char *toolTip;
    const char *field;
    const char *unit;
};

const Row Rows[] = {
    {"Maximum Edges in a Face: ",
     "If the curve intersections you <br> draw describe a boundary comprising more than this "
     "number of edges, Orvane will assume this is intended to be a hole in the mesh, and not a "
     "face.",
     "maximumEdges", nullptr},
    {"Merge vertices closer than ", "", "mergeDistance", "% of average edge length"},
    {"Intersection Tolerance: ",
     "Some 3d curves can appear <br> to cross each other while in fact they have a slight "
     "separation between them. This sets the largest distance at which such a crossing will be "
     "detected as an intersection.",
     "intersectionTolerance", "% of average edge length"},
    {"Overrun Tolerance: ",
     "Tells Orvane how far to extend curves while searching <br> for intersections. This can help "
     "when the end of one curve is barely touching the middle of another.",
     "overrunTolerance", "% of average edge length"},
    {"Ignore Self-intersections: ",
     "Turn this on to prevent Orvane<br> from counting curve<br> self-intersections as new "
     "vertices<br> when creating a mesh",
     "ignoreSelfIntersections", nullptr},
};
const int RowCount = 5;

QGridLayout *parameters(const ManualRetopoDialog &dialog)
{
    return qobject_cast<QGridLayout *>(dialog.layout()->itemAt(0)->layout());
}

template <typename Widget>
Widget *at(const QGridLayout *grid, int row, int column)
{
    QLayoutItem *item = grid->itemAtPosition(row, column);
    return item ? qobject_cast<Widget *>(item->widget()) : nullptr;
}

using SettingsLayout = SettingsDialogTest;

} // namespace

TEST_F(SettingsLayout, theParametersStandInAGridOfThreeColumns)
{
    EXPECT_NE(qobject_cast<QVBoxLayout *>(dialog.layout()), nullptr);
    const QGridLayout *grid = parameters(dialog);
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->rowCount(), 5);
    EXPECT_EQ(grid->columnCount(), 3);
    EXPECT_EQ(grid->count(), 13);
    for (int row = 0; row < RowCount; ++row) {
        const Row &expected = Rows[row];
        const auto *label = at<QLabel>(grid, row, 0);
        ASSERT_NE(label, nullptr);
        EXPECT_EQ(label->text(), QLatin1String(expected.label));
        EXPECT_EQ(label->buddy(), widget(expected.field));
        EXPECT_EQ(at<QWidget>(grid, row, 1), widget(expected.field));
        const auto *unit = at<QLabel>(grid, row, 2);
        EXPECT_EQ(unit != nullptr, expected.unit != nullptr);
        if (unit) {
            EXPECT_EQ(unit->text(), QLatin1String(expected.unit));
        }
        EXPECT_EQ(grid->rowStretch(row), row == 4 ? 1 : 0);
    }
}

TEST_F(SettingsLayout, labelsStandRightFieldsCentredAndUnitsLeft)
{
    const QGridLayout *grid = parameters(dialog);
    for (int row = 0; row < RowCount; ++row) {
        EXPECT_EQ(grid->itemAtPosition(row, 0)->alignment(), Qt::AlignRight);
        EXPECT_EQ(grid->itemAtPosition(row, 1)->alignment(),
                  row == 4 ? Qt::AlignLeft : Qt::AlignCenter);
        if (Rows[row].unit) {
            EXPECT_EQ(grid->itemAtPosition(row, 2)->alignment(), Qt::AlignLeft);
        }
    }
}

TEST_F(SettingsLayout, toolTipsAreOnTheLabels)
{
    const QGridLayout *grid = parameters(dialog);
    for (int row = 0; row < RowCount; ++row) {
        EXPECT_EQ(at<QLabel>(grid, row, 0)->toolTip(), QLatin1String(Rows[row].toolTip));
        EXPECT_EQ(widget(Rows[row].field)->toolTip(), QString());
    }
    orvane::Kernel()->SetTestMode(true);
    const ManualRetopoDialog inTestMode(nullptr);
    EXPECT_EQ(inTestMode.layout()->itemAt(1)->layout()->itemAt(0)->widget()->toolTip(),
              QStringLiteral("Renders the computed curve <br> intersections. Select Create Mesh to "
                             "see the intersections."));
}

TEST_F(SettingsLayout, helpStandsLeftAndCreateMeshAndCloseRight)
{
    QLayout *row = dialog.layout()->itemAt(1)->layout();
    ASSERT_NE(row, nullptr);
    ASSERT_EQ(row->count(), 4);
    EXPECT_EQ(row->itemAt(0)->widget(), widget("help"));
    EXPECT_EQ(row->itemAt(0)->alignment(), Qt::AlignLeft);
    EXPECT_NE(row->itemAt(1)->spacerItem(), nullptr);
    EXPECT_EQ(qobject_cast<QBoxLayout *>(row)->stretch(1), 1);
    EXPECT_EQ(row->itemAt(2)->widget(), widget("createMesh"));
    EXPECT_EQ(row->itemAt(2)->alignment(), Qt::AlignRight);
    EXPECT_EQ(row->itemAt(3)->widget(), widget("close"));
    EXPECT_EQ(row->itemAt(3)->alignment(), Qt::AlignRight);
    EXPECT_EQ(dialog.findChild<QPushButton *>(QStringLiteral("help"))->text(),
              QStringLiteral("Help..."));
    EXPECT_EQ(dialog.findChild<QPushButton *>(QStringLiteral("createMesh"))->text(),
              QStringLiteral("Create Mesh"));
    EXPECT_EQ(dialog.findChild<QPushButton *>(QStringLiteral("close"))->text(),
              QStringLiteral("Close"));
}

TEST_F(SettingsLayout, theWindowHasItsTitleAndIsNotModal)
{
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Create Mesh from Curves"));
    EXPECT_EQ(dialog.objectName(), QStringLiteral("ManualRetopoDialog"));
    show();
    EXPECT_FALSE(dialog.isModal());
}

TEST_F(SettingsLayout, titleButtonsAndToolTipsAreTranslatedAndLabelsAreNot)
{
    orvane::Kernel()->SetTestMode(true);
    const Bracketing brackets("ManualRetopoDialog");
    const ManualRetopoDialog translated(nullptr);
    const QGridLayout *grid = parameters(translated);
    for (int row = 0; row < RowCount; ++row) {
        const auto *label = at<QLabel>(grid, row, 0);
        EXPECT_EQ(label->text(), QLatin1String(Rows[row].label));
        if (*Rows[row].toolTip) {
            EXPECT_EQ(label->toolTip(),
                      QStringLiteral("[%1]").arg(QLatin1String(Rows[row].toolTip)));
        }
        if (Rows[row].unit) {
            EXPECT_EQ(at<QLabel>(grid, row, 2)->text(), QLatin1String(Rows[row].unit));
        }
    }
    const auto *render =
        qobject_cast<QLabel *>(translated.layout()->itemAt(1)->layout()->itemAt(0)->widget());
    EXPECT_EQ(render->text(), QStringLiteral("Render Intersections: "));
    EXPECT_TRUE(render->toolTip().startsWith(QLatin1String("[Renders")));
    EXPECT_EQ(translated.windowTitle(), QStringLiteral("[Create Mesh from Curves]"));
    for (const QPushButton *button : translated.findChildren<QPushButton *>())
        EXPECT_TRUE(button->text().startsWith(QLatin1Char('['))) << qPrintable(button->text());
}
