// SPDX-License-Identifier: MIT
#include "tests/host/operations/samplescene.h"
#include "tests/support/logcatcher.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/operations/renameoperation.h>

using orvane::RenameOperation;
using Renaming = SampleScene;

TEST_F(Renaming, aGeometryGoesBackAndForth)
{
    RenameOperation operation(quad(), QStringLiteral("Gr\u00fcn"));
    expectDoUndoRedo(operation, "Rename");
    EXPECT_EQ(quad()->Name(), QStringLiteral("Gr\u00fcn"));
}

TEST_F(Renaming, aCurveGoesBackAndForth)
{
    RenameOperation operation(loop(), QString());
    expectDoUndoRedo(operation, "Rename");
    EXPECT_TRUE(loop()->Name().isEmpty());
}

TEST_F(Renaming, toTheSameNameIsNoStep)
{
    RenameOperation operation(quad(), QStringLiteral("Quad"));
    expectRefused(operation);
}

TEST_F(Renaming, whatIsNoNodeOfTheSceneListIsRefused)
{
    const LogCatcher logs;
    RenameOperation mesh(quad()->CurrentLevel(), QStringLiteral("Mesh"));
    expectRefused(mesh);
    RenameOperation nothing(nullptr, QStringLiteral("Nothing"));
    expectRefused(nothing);
    EXPECT_EQ(logs.count(), 2);
}

TEST_F(Renaming, canBeUndoneAfterTheOldNameWasGivenBehindItsBack)
{
    RenameOperation operation(quad(), QStringLiteral("Other"));
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    quad()->SetName(QStringLiteral("Quad"));
    EXPECT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(quad()->Name(), QStringLiteral("Quad"));
}
