// SPDX-License-Identifier: MIT
#include "ui/meshfaultrows.h"

#include <QString>

#include <gtest/gtest.h>

namespace {

struct Expected
{
    int bit;
    const char *icon;
    const char *beginning;
    const char *end;
};

const Expected Rows[] = {
    {0x00001, "highvalence", "High-valence vertex</strong><p></p>At least one vertex has more than",
     "there will be artifacts in the resulting map. "},
    {0x10000, "nonmanifold", "Non-manifold (T-shape)</strong><p></p>At least one edge in this mesh",
     "This must be corrected before the mesh can be used in Orvane."},
    {0x00008, "nonmanifold2", "Non-manifold (vertex splice)</strong><p></p>At least one vertex in",
     "This must be corrected before the mesh can be used in Orvane."},
    {0x20000, "twosided", "Two-sided faces</strong><p></p>There is at least one face in this mesh",
     "Using this mesh in Orvane will cause errors when sculpting and painting."},
    {0x40000, "toomany",
     "Too many sides in a face</strong><p></p>The boundary of at least one face",
     "and will show visible artifacts near this face if painted."},
    {0x00002, "boundaryvalence", "Boundary Vertex has Too Many Edges</strong><p></p>A vertex is",
     "This must be corrected before the mesh can be used in Orvane."},
    {0x00004, "interior2valence", "Interior Vertex has Valence Two</strong><p></p>A vertex on the",
     "This mesh cannot be subdivided, and will cause problems when sculpting."},
    {0x00100, "zerolength", "Zero-length edges</strong><p></p>At least one edge in this mesh is",
     "This can be corrected by subdividing the mesh once with Smooth Positions turned on."},
    {0x00200, "laminafaces",
     "Lamina Faces</strong><p></p>Some faces in this mesh lie exactly on top",
     "This mesh will not subdivide properly, and will have visible artifacts if painted."},
    {0x00400, "UVcrossing",
     "UV Faces Crossing Tile Boundaries</strong><p></p>The UV coordinates of",
     "This mesh cannot be painted properly. To see the problem, go to the UV View tab."},
    {0x00800, "missingUVs",
     "Incomplete UV Set</strong><p></p>This mesh has an incomplete set of UVs",
     "To replace the UVs, use \"Create UVs...\" in the \"UVs and Maps\" menu."},
    {0x80000, "zerolength", "Degenerated Face</strong><p></p>This mesh has some triangles where",
     "the normal of this kind of face may not be calculated properly."},
};

} // namespace

TEST(MeshFaultRows, standInTheOrderOfDisplayWithTheirPictures)
{
    ASSERT_EQ(meshFaultRows().size(), std::size(Rows));
    for (size_t i = 0; i < std::size(Rows); ++i) {
        const MeshFaultRow &row = meshFaultRows()[i];
        EXPECT_EQ(row.bit, Rows[i].bit) << "row " << i;
        EXPECT_EQ(row.icon, std::string("Icons/mesh_") + Rows[i].icon + ".png") << "row " << i;
    }
}

TEST(MeshFaultRows, sayWhatIsWrongAndWhatToDo)
{
    for (size_t i = 0; i < std::size(Rows); ++i) {
        const QString text = QString::fromLatin1(meshFaultRows()[i].text);
        const QString beginning = QStringLiteral("<strong>") + QLatin1String(Rows[i].beginning);
        EXPECT_TRUE(text.startsWith(beginning)) << qPrintable(text);
        EXPECT_TRUE(text.endsWith(QLatin1String(Rows[i].end))) << qPrintable(text);
    }
}

TEST(MeshFaultRows, haveNoBlanksRunTogether)
{
    for (const MeshFaultRow &row : meshFaultRows()) {
        const QString text = QString::fromLatin1(row.text);
        EXPECT_FALSE(text.contains(QStringLiteral("  "))) << row.text;
        EXPECT_FALSE(text.contains(QLatin1Char('\t'))) << row.text;
    }
}
