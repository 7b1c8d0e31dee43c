// SPDX-License-Identifier: MIT
#include "tests/host/files/filetest.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/geometry/surfacelocator.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

using namespace orvane;

namespace {

// A dart: a quad with its notch at (1, 1), listed from each of its corners in turn.
QByteArray dartFrom(int corner)
{
    QByteArray text = "v 0 0 0\nv 4 1 0\nv 1 1 0\nv 1 4 0\nf";
    for (int i = 0; i < 4; ++i)
        text += ' ' + QByteArray::number((corner + i) % 4 + 1);
    return text + '\n';
}

// A block letter C, open to the right: eight corners, two of them in the notch.
const char LetterC[] = "v 0 0 0\nv 3 0 0\nv 3 1 0\nv 1 1 0\nv 1 2 0\nv 3 2 0\nv 3 3 0\nv 0 3 0\n"
                       "f 1 2 3 4 5 6 7 8\n";

class FanStart : public FileTest
{
protected:
    bool hasSurfaceAt(const QByteArray &bytes, const Vector &place)
    {
        Geometry *geometry = mesh(file(QStringLiteral("a.obj"), bytes));
        const SurfaceLocator locator(*geometry->CurrentLevel());
        return (locator.ClosestPoint(place, 100.0f).WorldPosition() - place).Length() < 1e-5f;
    }
};

} // namespace

TEST_F(FanStart, aNotchHasNoSurfaceFromWhicheverCornerItIsListed)
{
    for (int corner = 0; corner < 4; ++corner) {
        EXPECT_FALSE(hasSurfaceAt(dartFrom(corner), {1.8f, 1.8f, 0.0f})) << corner;
        EXPECT_TRUE(hasSurfaceAt(dartFrom(corner), {2.0f, 0.8f, 0.0f})) << corner;
        EXPECT_TRUE(hasSurfaceAt(dartFrom(corner), {0.8f, 2.0f, 0.0f})) << corner;
    }
}

TEST_F(FanStart, aConvexPolygonKeepsItsFirstCorner)
{
    const Geometry *geometry =
        mesh(file(QStringLiteral("a.obj"), "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nf 3 4 1 2\n"));
    EXPECT_EQ(geometry->CurrentLevel()->VertexIndex(0, 0), 2);
}

TEST_F(FanStart, aPolygonThatNoCornerSeesWholeStaysAsItIs)
{
    const Geometry *geometry = mesh(file(QStringLiteral("a.obj"), LetterC));
    const PolygonList polygons = polygonsOf(*geometry->CurrentLevel());
    ASSERT_EQ(polygons.Count(), 1);
    EXPECT_EQ(polygons.corners, (QVector<int>{0, 1, 2, 3, 4, 5, 6, 7}));
}
