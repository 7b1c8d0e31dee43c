// SPDX-License-Identifier: MIT
#include "mesh/facelist.h"

#include <gtest/gtest.h>

namespace {

using Faces = QList<QVector<int>>;

} // namespace

TEST(FaceList, isEmptyAtFirst)
{
    const FaceList faces;
    EXPECT_TRUE(faces.isEmpty());
    EXPECT_EQ(faces.size(), 0);
    EXPECT_EQ(Faces(faces), Faces());
}

TEST(FaceList, readsAsTheListOfArraysItWasMadeFrom)
{
    const Faces expected{{0, 1, 2}, {}, {7}, {3, 2, 1, 0, 4}};
    FaceList faces;
    for (const QVector<int> &face : expected)
        faces.append(face);
    EXPECT_TRUE(faces == FaceList(expected));
    EXPECT_TRUE(Faces(faces) == expected);
    ASSERT_EQ(faces.size(), expected.size());
    int i = 0;
    for (const QVector<int> &face : faces) {
        EXPECT_EQ(face, expected[i]);
        EXPECT_EQ(faces[i], expected[i]);
        ASSERT_EQ(faces.cornerCount(i), expected[i].size());
        for (int corner = 0; corner < expected[i].size(); ++corner)
            EXPECT_EQ(faces.corners(i)[corner], expected[i][corner]);
        ++i;
    }
    EXPECT_EQ(i, expected.size());
}

TEST(FaceList, isNotTheSameWithItsCornersSharedOutOtherwise)
{
    const Faces other{{0, 1}, {2, 3, 4}};
    EXPECT_FALSE(FaceList({{0, 1, 2}, {3, 4}}) == other);
    EXPECT_FALSE(other == FaceList({{0, 1}, {2, 3, 5}}));
    EXPECT_TRUE(other == FaceList({{0, 1}, {2, 3, 4}}));
}

TEST(FaceList, aCopyIsAListOfItsOwn)
{
    FaceList faces({{0, 1, 2}});
    const FaceList copy = faces;
    faces.append({2, 1, 3});
    EXPECT_EQ(copy.size(), 1);
    EXPECT_EQ(faces[1], QVector<int>({2, 1, 3}));
}

TEST(FaceList, givingBackRoomChangesNoFace)
{
    FaceList faces(QList<QVector<int>>{{0, 1, 2}, {2, 1, 3, 4}, {7, 8, 9}});
    const FaceList before = faces;
    faces.squeeze();
    EXPECT_EQ(faces, before);
    faces.append({4, 5, 6});
    EXPECT_EQ(faces.size(), 4);
    EXPECT_EQ(faces[3], (QVector<int>{4, 5, 6}));
}
