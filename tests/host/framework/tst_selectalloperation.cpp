// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/selectalloperation.h>

#include <gtest/gtest.h>

using orvane::Geometry;
using orvane::SelectAllOperation;

class Selecting : public SceneCleaner
{
protected:
    Selecting()
    {
        for (int i = 0; i < 4; ++i) {
            m_shapes.append(addToScene(singleTriangle()));
            m_shapes.last()->SetSelected(i % 2 == 0);
        }
        m_curve = new orvane::OrvaneCurve; // the scene's
        m_curve->SetSelected(true);
        orvane::Kernel()->Scene()->AddCurve(m_curve);
    }

    QVector<bool> selection() const
    {
        QVector<bool> selected;
        for (const Geometry *shape : m_shapes)
            selected.append(shape->Selected());
        return selected;
    }

    const QVector<bool> m_none{false, false, false, false};
    const QVector<bool> m_some{true, false, true, false};
    const QVector<bool> m_all{true, true, true, true};
    QVector<Geometry *> m_shapes;
    orvane::OrvaneCurve *m_curve = nullptr;
};

TEST_F(Selecting, allSelectsAllAndBack)
{
    SelectAllOperation operation(true);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_EQ(selection(), m_all);
    EXPECT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(selection(), m_some);
    EXPECT_TRUE(orvane::Kernel()->Redo());
    EXPECT_EQ(selection(), m_all);
}

TEST_F(Selecting, noneClearsTheSelectionAndBack)
{
    SelectAllOperation operation(false);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_EQ(selection(), m_none);
    EXPECT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(selection(), m_some);
}

TEST_F(Selecting, leavesTheCurvesAlone)
{
    SelectAllOperation none(false);
    orvane::Kernel()->DoOperation(&none, false, false);
    EXPECT_TRUE(m_curve->Selected());
    m_curve->SetSelected(false);
    SelectAllOperation all(true);
    orvane::Kernel()->DoOperation(&all, false, false);
    EXPECT_FALSE(m_curve->Selected());
}

TEST_F(Selecting, leavesNoTraceUnlessTheUserAskedForIt)
{
    SelectAllOperation operation(false);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, false, false));
    EXPECT_EQ(selection(), m_none);
    EXPECT_FALSE(orvane::Kernel()->Undos().CanUndo());
    EXPECT_FALSE(orvane::Kernel()->Scene()->IsChanged());
}

TEST_F(Selecting, keepsWhatCanBeRedoneUnlessTheUserAskedForIt)
{
    SelectAllOperation asked(true);
    orvane::Kernel()->DoOperation(&asked, true, false);
    orvane::Kernel()->Undo();
    SelectAllOperation tidying(false);
    orvane::Kernel()->DoOperation(&tidying, false, false);
    EXPECT_TRUE(orvane::Kernel()->Undos().CanRedo());
    orvane::Kernel()->DoOperation(&asked, true, false);
    EXPECT_FALSE(orvane::Kernel()->Undos().CanRedo());
}

TEST_F(Selecting, isAllOrNothingByItsMaker)
{
    SelectAllOperation byDefault;
    orvane::Kernel()->DoOperation(&byDefault, false, false);
    EXPECT_EQ(selection(), m_all);
}
