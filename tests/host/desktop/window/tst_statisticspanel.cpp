// SPDX-License-Identifier: MIT
#include "host/desktop/window/statisticspanel.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

using orvane::Geometry;
using orvane::Kernel;
using orvane::StatisticsPanel;

namespace {

class Statistics : public SceneCleaner
{
protected:
    QString textWith(Geometry *active)
    {
        Kernel()->Scene()->SetActiveGeometry(active);
        m_panel.Refresh();
        return m_panel.Text();
    }
    // As a panel shows it that has seen nothing else.
    static QString textOfNewPanel() { return StatisticsPanel().Text(); }

    StatisticsPanel m_panel;
};

} // namespace

TEST_F(Statistics, aSceneWithoutMeshesSaysSo)
{
    EXPECT_EQ(m_panel.Text(), QStringLiteral("No mesh yet."));
    textWith(addToScene(cube()));
    EXPECT_NE(m_panel.Text(), QStringLiteral("No mesh yet."));
    Kernel()->NewScene();
    m_panel.Refresh();
    EXPECT_EQ(m_panel.Text(), QStringLiteral("No mesh yet."));
}

TEST_F(Statistics, goingBackAndForthShowsEachMeshAsItIs)
{
    Geometry *meshes[] = {addToScene(cube(), QStringLiteral("cube")),
                          addToScene(tetrahedron(), QStringLiteral("tetrahedron")),
                          addToScene(singleQuad(), QStringLiteral("quad"))};
    for (int shown : {0, 1, 0, 1, 2, 0, 2, 2, 1, 0}) {
        const QString text = textWith(meshes[shown]);
        EXPECT_EQ(text, textOfNewPanel());
        EXPECT_TRUE(text.contains(meshes[shown]->Name())) << qPrintable(text);
    }
}

TEST_F(Statistics, aChangedMeshIsMeasuredAgain)
{
    Geometry *geometry = addToScene(cube());
    const QString before = textWith(geometry);
    for (int v = 0; v < 4; ++v) // a side without area
        geometry->CurrentLevel()->SetVertexPosition(v, {0, 0, 0});
    const QString after = textWith(geometry);
    EXPECT_NE(after, before);
    EXPECT_EQ(after, textOfNewPanel());
}

TEST_F(Statistics, aNewNameIsShownAndMarkupInItIsText)
{
    Geometry *geometry = addToScene(cube());
    textWith(geometry);
    geometry->SetName(QStringLiteral("a<b>"));
    EXPECT_TRUE(textWith(geometry).contains(QStringLiteral("a&lt;b&gt;")));
}
