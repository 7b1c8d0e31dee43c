// SPDX-License-Identifier: MIT
#include "host/desktop/view/curvedrawdata.h"

#include "tests/support/shapes.h"

#include <orvane/geometry/orvanecurve.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using orvane::CurveDrawData;
using orvane::CurveLook;
using orvane::CurvePoint;
using orvane::CurveStrip;
using orvane::OrvaneCurve;
using orvane::Vector;

namespace {

const int BothParts = CurveDrawData::PositionsPart | CurveDrawData::StripsPart;

class DrawingCurves : public testing::Test
{
protected:
    DrawingCurves()
    {
        for (int count : {3, 2, 5, 4})
            add(count);
    }

    void add(int count)
    {
        m_curves.push_back(std::make_unique<OrvaneCurve>());
        for (int i = 0; i < count; ++i)
            m_curves.back()->AppendPoint(
                CurvePoint(Vector(float(m_curves.size()), float(i), 0.5f)));
    }

    OrvaneCurve &curve(int index) { return *m_curves[size_t(index)]; }

    int update(int hovered = -1)
    {
        QVector<const OrvaneCurve *> curves;
        for (const auto &each : m_curves)
            curves.append(each.get());
        return m_data.Update(curves, hovered < 0 ? nullptr : curves[hovered]);
    }

    // The strips say what the curves are, by a plain look at each.
    void expectTrue(int hovered = -1)
    {
        int strips = 0;
        for (size_t i = 0; i < m_curves.size(); ++i) {
            const OrvaneCurve &each = *m_curves[i];
            const CurveStrip *strip = stripOf(&each);
            if (each.IsHidden() || each.PointCount() < 2) {
                EXPECT_FALSE(strip);
                continue;
            }
            ASSERT_TRUE(strip);
            ++strips;
            ASSERT_EQ(strip->count, each.PointCount() + (each.Closed() ? 1 : 0));
            for (int k = 0; k < strip->count; ++k)
                EXPECT_EQ(m_data.Positions()[strip->first + k],
                          each.PointAt(k % each.PointCount()).position);
            const CurveLook look = int(i) == hovered ? CurveLook::Hovered
                                   : each.Selected() ? CurveLook::Selected
                                                     : CurveLook::Normal;
            EXPECT_EQ(strip->look, look);
        }
        EXPECT_EQ(m_data.Strips().size(), strips);
        for (int i = 1; i < m_data.Strips().size(); ++i)
            EXPECT_LE(int(m_data.Strips()[i - 1].look), int(m_data.Strips()[i].look));
    }

    const CurveStrip *stripOf(const OrvaneCurve *wanted)
    {
        for (const CurveStrip &strip : m_data.Strips()) {
            if (strip.curve == wanted)
                return &strip;
        }
        return nullptr;
    }

    std::vector<std::unique_ptr<OrvaneCurve>> m_curves;
    CurveDrawData m_data;
};

} // namespace

TEST_F(DrawingCurves, everyVisibleCurveIsAStrip)
{
    add(1);
    EXPECT_EQ(update(), BothParts);
    EXPECT_EQ(m_data.Positions().size(), 3 + 2 + 5 + 4);
    expectTrue();
    EXPECT_EQ(update(), 0);
}

TEST_F(DrawingCurves, aHiddenCurveIsLeftOut)
{
    update();
    curve(1).SetHidden(true);
    EXPECT_EQ(update(), BothParts);
    EXPECT_EQ(m_data.Positions().size(), 3 + 5 + 4);
    expectTrue();
}

TEST_F(DrawingCurves, aClosedCurveComesBackToItsFirstPoint)
{
    curve(2).SetClosed(true);
    update();
    const CurveStrip *strip = stripOf(&curve(2));
    ASSERT_TRUE(strip);
    EXPECT_EQ(strip->count, 6);
    EXPECT_EQ(m_data.Positions()[strip->first], m_data.Positions()[strip->first + 5]);
    expectTrue();
}

TEST_F(DrawingCurves, selectingAndHoveringUploadsNothing)
{
    update();
    curve(2).SetSelected(true);
    EXPECT_EQ(update(), CurveDrawData::StripsPart);
    expectTrue();
    EXPECT_EQ(update(2), CurveDrawData::StripsPart);
    expectTrue(2);
    EXPECT_EQ(m_data.Strips().last().curve, &curve(2));
    EXPECT_EQ(update(2), 0);
    EXPECT_EQ(update(), CurveDrawData::StripsPart);
    expectTrue();
}

TEST_F(DrawingCurves, movedPointsAreUploaded)
{
    update();
    QVector<CurvePoint> points = curve(0).Points();
    points[1].position = {9, 9, 9};
    curve(0).SetPoints(points);
    EXPECT_EQ(update(), int(CurveDrawData::PositionsPart));
    expectTrue();
    curve(3).AppendPoint(CurvePoint(Vector(1, 2, 3)));
    EXPECT_EQ(update(), BothParts);
    expectTrue();
}

TEST_F(DrawingCurves, theLooksCanBeToldApart)
{
    using orvane::curveColour;
    using orvane::curveWidth;
    EXPECT_NE(curveColour(CurveLook::Normal), curveColour(CurveLook::Selected));
    EXPECT_NE(curveColour(CurveLook::Selected), curveColour(CurveLook::Hovered));
    EXPECT_NE(curveColour(CurveLook::Normal), curveColour(CurveLook::Hovered));
    EXPECT_GT(curveWidth(CurveLook::Selected), curveWidth(CurveLook::Normal));
    EXPECT_GE(curveWidth(CurveLook::Hovered), curveWidth(CurveLook::Selected));
}

TEST_F(DrawingCurves, anyChangesAreFollowed)
{
    std::mt19937 random(testSeed());
    update();
    for (int step = 0; step < 1000; ++step) {
        const auto before = m_data.Positions();
        OrvaneCurve &some = curve(int(random() % m_curves.size()));
        switch (random() % 6) {
        case 0:
            some.SetSelected(random() % 2);
            break;
        case 1:
            some.SetHidden(random() % 2);
            break;
        case 2:
            some.SetClosed(random() % 2);
            break;
        case 3:
            some.AppendPoint(CurvePoint(randomVector(random)));
            break;
        case 4:
            some.SetPoints(some.Points().mid(1));
            break;
        default:
            if (m_curves.size() > 3)
                m_curves.erase(m_curves.begin() + int(random() % m_curves.size()));
            add(4);
        }
        const int hovered = int(random() % m_curves.size());
        const int changed = update(hovered);
        expectTrue(hovered);
        if (!(changed & CurveDrawData::PositionsPart)) {
            EXPECT_EQ(m_data.Positions(), before);
        }
    }
}
