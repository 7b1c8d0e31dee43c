// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QScopedPointer>

using orvane::Dot;
using orvane::Geometry;
using orvane::Matrix;
using orvane::Stream;
using orvane::SubdivisionLevel;
using orvane::Vector;

namespace {

QVector<Vector> worldPositions(const SubdivisionLevel &level)
{
    QVector<Vector> positions;
    for (int v = 0; v < level.VertexCount(); ++v)
        positions.append(level.WorldVertexPosition(v));
    return positions;
}

QByteArray written(Geometry *geometry)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Stream stream(&buffer, Stream::Writing);
    geometry->Serialize(stream);
    return buffer.data();
}

void read(Geometry *geometry, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    Stream stream(&buffer, Stream::Reading);
    geometry->Serialize(stream);
}

Geometry *placed(SubdivisionLevel *level, const Matrix &matrix)
{
    auto *geometry = new Geometry; // the caller's
    geometry->Placement()->SetWorldMatrix(matrix);
    geometry->AddLevel(level);
    return geometry;
}

} // namespace

TEST(Geometry, startsWithoutLevelsAndWithAPlacement)
{
    const Geometry geometry;
    EXPECT_EQ(geometry.LevelCount(), 0);
    EXPECT_EQ(geometry.CurrentLevel(), nullptr);
    EXPECT_EQ(geometry.Level(0), nullptr);
    ASSERT_NE(geometry.Placement(), nullptr);
    EXPECT_TRUE(geometry.Placement()->IsIdentity());
    EXPECT_FALSE(geometry.IsHidden());
    EXPECT_FALSE(geometry.Selected());
}

TEST(Geometry, holdsItsLevelsAndShowsTheLatest)
{
    Geometry geometry;
    SubdivisionLevel *coarse = singleTriangle();
    SubdivisionLevel *fine = gridOfTriangles(2, 2);
    EXPECT_EQ(coarse->Holder(), nullptr);
    geometry.AddLevel(coarse);
    geometry.AddLevel(fine);
    EXPECT_EQ(coarse->Holder(), &geometry);
    EXPECT_EQ(geometry.CurrentLevel(), fine);
    geometry.SetCurrentLevel(0);
    EXPECT_EQ(geometry.CurrentLevel(), coarse);
    geometry.SetCurrentLevel(2);
    geometry.SetCurrentLevel(-1);
    EXPECT_EQ(geometry.CurrentLevel(), coarse);
}

TEST(Geometry, takesNoLevelTwice)
{
    Geometry geometry;
    Geometry other;
    SubdivisionLevel *level = singleTriangle();
    geometry.AddLevel(level);
    geometry.AddLevel(level);
    other.AddLevel(level);
    other.AddLevel(nullptr);
    EXPECT_EQ(geometry.LevelCount(), 1);
    EXPECT_EQ(other.LevelCount(), 0);
    EXPECT_EQ(level->Holder(), &geometry);
}

TEST(TakingAPlacement, keepsVerticesWhereTheyAreInTheWorld)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE(round);
        const QScopedPointer<Geometry> target(placed(singleTriangle(), randomPlacement(random)));
        const Matrix own = round % 2 ? randomPlacement(random) : Matrix();
        const QScopedPointer<Geometry> geometry(placed(sphere(6, 8), own));
        geometry->AddLevel(bumpySheet(3, 3, random));
        const QVector<Vector> before[] = {worldPositions(*geometry->Level(0)),
                                          worldPositions(*geometry->Level(1))};
        geometry->TakePlacementOf(*target);
        EXPECT_EQ(geometry->Placement()->WorldMatrix(), target->Placement()->WorldMatrix());
        for (int level = 0; level < 2; ++level) {
            const QVector<Vector> after = worldPositions(*geometry->Level(level));
            for (int v = 0; v < after.size(); ++v)
                EXPECT_LT((after[v] - before[level][v]).Length(), 2e-5f) << "vertex " << v;
        }
    }
}

TEST(TakingAPlacement, keepsNormalsSquareToTheSurface)
{
    std::mt19937 random(testSeed());
    for (int round = 0; round < 100; ++round) {
        SCOPED_TRACE(round);
        const QScopedPointer<Geometry> target(placed(singleTriangle(), randomPlacement(random)));
        const QScopedPointer<Geometry> geometry(placed(singleQuad(), Matrix()));
        geometry->TakePlacementOf(*target);
        const SubdivisionLevel &level = *geometry->CurrentLevel();
        const Vector along = level.WorldVertexPosition(1) - level.WorldVertexPosition(0);
        const Vector across = level.WorldVertexPosition(3) - level.WorldVertexPosition(0);
        const Vector face = target->Placement()->NormalToWorld(level.FaceNormal(0));
        for (const Vector &normal : {level.WorldVertexNormal(2), face}) {
            EXPECT_NEAR(normal.Length(), 1.0f, 1e-5f);
            EXPECT_NEAR(Dot(normal, along), 0.0f, 1e-4f);
            EXPECT_NEAR(Dot(normal, across), 0.0f, 1e-4f);
            EXPECT_GT(normal.z, 0.0f) << "the square faces +z in the world";
        }
    }
}

TEST(TakingAPlacement, bringsTheBoundsIntoTheNewFrame)
{
    const QScopedPointer<Geometry> target(placed(singleQuad(), Matrix::Scaling({2, 4, 1})));
    const QScopedPointer<Geometry> geometry(placed(singleQuad(8.0f), Matrix()));
    geometry->TakePlacementOf(*target);
    EXPECT_EQ(geometry->CurrentLevel()->Bounds().maximum, Vector(4, 2, 0));
}

TEST(TakingAPlacement, thatIsTheSameLeavesEveryBit)
{
    std::mt19937 random(testSeed());
    const Matrix matrix = randomPlacement(random);
    for (const Matrix &frame : {Matrix(), matrix}) {
        const QScopedPointer<Geometry> target(placed(singleTriangle(), frame));
        const QScopedPointer<Geometry> geometry(placed(bumpySheet(4, 4, random), frame));
        const QByteArray before = written(geometry.data());
        geometry->TakePlacementOf(*target);
        geometry->TakePlacementOf(*geometry);
        EXPECT_EQ(written(geometry.data()), before);
    }
}

TEST(TakingAPlacement, leavesUnknownVertexNormalsUnknown)
{
    const QScopedPointer<Geometry> target(placed(singleTriangle(), Matrix::Scaling({2, 2, 2})));
    const QScopedPointer<Geometry> geometry(placed(singleTriangle(), Matrix()));
    geometry->CurrentLevel()->SetVertexNormal(0, {});
    geometry->TakePlacementOf(*target);
    EXPECT_EQ(geometry->CurrentLevel()->VertexNormal(0), Vector());
}

TEST(Geometry, isReadAsItWasWritten)
{
    Geometry geometry;
    geometry.SetName(QStringLiteral("Body"));
    geometry.SetHidden(true);
    geometry.SetSelected(true);
    geometry.Placement()->SetWorldMatrix(Matrix::Translation({1, 0, 0}));
    geometry.AddLevel(singleTriangle());
    geometry.AddLevel(gridOfQuads(2, 2));
    geometry.SetCurrentLevel(0);

    Geometry copy;
    copy.AddLevel(cube());
    copy.AddLevel(cube());
    copy.AddLevel(cube());
    ASSERT_TRUE(geometry.CopyTo(&copy));
    EXPECT_EQ(copy.Name(), QStringLiteral("Body"));
    EXPECT_TRUE(copy.IsHidden());
    EXPECT_TRUE(copy.Selected());
    ASSERT_EQ(copy.LevelCount(), 2);
    EXPECT_EQ(copy.CurrentLevel(), copy.Level(0));
    EXPECT_EQ(copy.Level(1)->Holder(), &copy);
    EXPECT_EQ(copy.Level(1)->WorldVertexPosition(0), Vector(1, 0, 0));
    EXPECT_EQ(written(&copy), written(&geometry));
}

TEST(Geometry, hasNoCurrentLevelAfterReadingOneWithout)
{
    const Geometry empty;
    Geometry geometry;
    geometry.AddLevel(cube());
    ASSERT_TRUE(empty.CopyTo(&geometry));
    EXPECT_EQ(geometry.LevelCount(), 0);
    EXPECT_EQ(geometry.CurrentLevel(), nullptr);
    EXPECT_EQ(written(&geometry), written(QScopedPointer<Geometry>(new Geometry).data()));
}

TEST(Geometry, survivesDamagedBytes)
{
    std::mt19937 random(testSeed());
    LogCatcher quiet;
    Geometry geometry;
    geometry.AddLevel(polygonOfFakes(5));
    geometry.AddLevel(singleQuad());
    const QByteArray bytes = written(&geometry);
    for (int round = 0; round < 5000; ++round) {
        QByteArray damaged = bytes.left(int(random() % unsigned(bytes.size() + 1)));
        for (unsigned hits = random() % 4; hits > 0 && !damaged.isEmpty(); --hits)
            damaged[int(random() % unsigned(damaged.size()))] = char(random());
        Geometry copy;
        read(&copy, damaged);
        ASSERT_LE(copy.LevelCount(), bytes.size()) << "round " << round;
        for (int i = 0; i < copy.LevelCount(); ++i)
            copy.Level(i)->RecomputeNormals(false);
    }
}
