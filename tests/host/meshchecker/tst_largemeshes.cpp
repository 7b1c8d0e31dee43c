// SPDX-License-Identifier: MIT
#include "host/meshchecker/meshchecker.h"
#include "tests/host/meshchecker/polygonmesh.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <iostream>

using orvane::MeshChecker;
using orvane::Vector;

namespace {

const qint64 Quick = 10000; // milliseconds; far less than anything quadratic takes
const int Many = 200000;

// Checks the mesh and says how long it took.
int faultsInTime(const MeshPointer &mesh)
{
    QElapsedTimer timer;
    timer.start();
    const int faults = MeshChecker().Validate(mesh.get());
    const qint64 elapsed = timer.elapsed();
    std::cout << mesh->FaceCount() << " faces checked in " << elapsed << " ms" << std::endl;
    EXPECT_LT(elapsed, timeLimit(Quick));
    return faults;
}

QVector<Vector> onACurve(int count)
{
    QVector<Vector> positions;
    for (int i = 0; i < count; ++i) {
        const float t = float(i) / float(count);
        positions.append({t, t * t, t * t * t});
    }
    return positions;
}

} // namespace

TEST(LargeMesh, aMillionFacesAreCheckedQuickly)
{
    EXPECT_EQ(faultsInTime(MeshPointer(gridOfQuads(1000, 1000))), 0);
}

TEST(LargeMesh, aVertexWithAllTheEdgesIsCheckedQuickly)
{
    EXPECT_TRUE(faultsInTime(wheel(Many)) & MeshChecker::HighValence);
}

TEST(LargeMesh, anEdgeWithAllTheFacesIsCheckedQuickly)
{
    QVector<QVector<int>> pages;
    for (int i = 2; i < Many; ++i)
        pages.append({0, 1, i});
    const MeshPointer mesh = polygonMesh(onACurve(Many), pages);
    EXPECT_TRUE(faultsInTime(mesh) & MeshChecker::NonManifoldEdge);
    EXPECT_FALSE(faultsInTime(mesh) & MeshChecker::VertexSplice);
}

TEST(LargeMesh, oneFaceOfAllTheCornersIsCheckedQuickly)
{
    QVector<int> corners;
    for (int i = 0; i < Many; ++i)
        corners.append(i);
    EXPECT_TRUE(faultsInTime(polygonMesh(onACurve(Many), {corners})) & MeshChecker::TooManySides);
}

TEST(LargeMesh, facesAllOnTopOfEachOtherAreCheckedQuickly)
{
    const QVector<QVector<int>> faces(Many, {0, 1, 2});
    const MeshPointer mesh = polygonMesh(onACurve(3), faces);
    EXPECT_TRUE(faultsInTime(mesh) & MeshChecker::LaminaFaces);
}
