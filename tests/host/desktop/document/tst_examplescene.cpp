// SPDX-License-Identifier: MIT
#include "host/desktop/document/examplescene.h"
#include "tests/host/desktop/document/documenttest.h"

#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>
#include <orvane/kernel/scene.h>

using namespace orvane;

class ExampleScene : public DocumentTest
{};

TEST_F(ExampleScene, isOpenedInOneCallAndHasNothingToSave)
{
    const FileReport report = openExample(&document);
    EXPECT_TRUE(report.done);
    EXPECT_TRUE(report.problems.isEmpty()) << qPrintable(report.problems.join(QLatin1Char('\n')));
    EXPECT_EQ(report.meshes, 1);
    EXPECT_GT(report.curves, 20);
    EXPECT_EQ(sceneCurves().size(), report.curves);
    EXPECT_GT(report.binding.points, 1000);
    EXPECT_EQ(report.binding.bound, report.binding.points);
    EXPECT_FALSE(document.IsChanged());
    EXPECT_EQ(document.Title(), QStringLiteral("head"));
    EXPECT_TRUE(document.Path().isEmpty());
    EXPECT_FALSE(document.ProposedPath().startsWith(resourceFolder()));
    EXPECT_TRUE(document.ProposedPath().endsWith(QStringLiteral("/head.orvane")));
    std::printf("%d triangles, %d curves, %d points\n",
                Kernel()->Scene()->DrawingSurface()->CurrentLevel()->FaceCount(), report.curves,
                report.binding.points);
}
