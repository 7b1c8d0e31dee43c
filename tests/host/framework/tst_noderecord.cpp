// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/base/nodetable.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/noderecord.h>
#include <orvane/kernel/scene.h>

#include <QBuffer>
#include <QScopedPointer>

#include <cmath>

using namespace orvane;

namespace {

class NodeRecords : public SceneCleaner
{
protected:
    // A record of a geometry of two levels that is not in the scene any more.
    static NodeRecord geometryRecord()
    {
        std::mt19937 random(3);
        Geometry *geometry = addToScene(cube(), QStringLiteral("Cube"), randomPlacement(random));
        geometry->AddLevel(tetrahedron());
        geometry->SetSelected(true);
        const NodeRecord record = recordOf(geometry);
        Kernel()->Scene()->Remove(geometry);
        delete geometry;
        return record;
    }

    static bool isRefused(const NodeRecord &record)
    {
        const QScopedPointer<Node> node(nodeOf(record));
        return node.isNull();
    }
};

} // namespace

TEST_F(NodeRecords, makeTheSameNodeAgain)
{
    const NodeRecord record = geometryRecord();
    EXPECT_EQ(record.ids.size(), 4); // itself, its placement, two levels
    auto *geometry = dynamic_cast<Geometry *>(nodeOf(record));
    ASSERT_NE(geometry, nullptr);
    Kernel()->Scene()->AddGeometry(geometry);
    EXPECT_EQ(geometry->Name(), QStringLiteral("Cube"));
    EXPECT_EQ(geometry->ID(), record.ids[0]);
    EXPECT_EQ(geometry->Placement()->ID(), record.ids[1]);
    EXPECT_EQ(geometry->Level(1)->ID(), record.ids[3]);
    EXPECT_EQ(NodeTable::Instance().Find(record.ids[3]), geometry->Level(1));
    EXPECT_EQ(recordOf(geometry).bytes, record.bytes);
}

TEST_F(NodeRecords, areWrittenToAStreamAndReadBack)
{
    NodeRecord record = geometryRecord();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Stream writer(&buffer, Stream::Writing);
    record.Serialize(writer);
    buffer.close();
    buffer.open(QIODevice::ReadOnly);
    Stream reader(&buffer, Stream::Reading);
    NodeRecord read;
    read.Serialize(reader);
    EXPECT_TRUE(reader.IsOk());
    EXPECT_EQ(read.className, record.className);
    EXPECT_EQ(read.ids, record.ids);
    EXPECT_EQ(read.bytes, record.bytes);
}

TEST_F(NodeRecords, ofACurveHaveOneNumber)
{
    auto *curve = new OrvaneCurve;
    Kernel()->Scene()->AddCurve(curve);
    EXPECT_EQ(recordOf(curve).ids, QVector<int>{curve->ID()});
}

TEST_F(NodeRecords, ofOtherClassesMakeNothing)
{
    NodeRecord record = geometryRecord();
    for (const char *name :
         {"", "Nonsense", "Node", "Placement", "CurveBase", "SelectAllOperation"}) {
        record.className = QString::fromLatin1(name);
        EXPECT_TRUE(isRefused(record)) << name;
    }
}

TEST_F(NodeRecords, ofTooFewOrTooManyBytesMakeNothing)
{
    const NodeRecord good = geometryRecord();
    ASSERT_FALSE(isRefused(good));
    NodeRecord record = good;
    record.bytes.append('x');
    EXPECT_TRUE(isRefused(record));
    for (int size = 0; size < good.bytes.size(); ++size) {
        record.bytes = good.bytes.left(size);
        EXPECT_TRUE(isRefused(record)) << size;
    }
}

TEST_F(NodeRecords, withNumbersThatAreMissingRepeatedOrTakenMakeNothing)
{
    NodeRecord record = geometryRecord();
    const QVector<int> ids = record.ids;
    const int taken = addToScene(cube())->ID();
    const QVector<QVector<int>> bad{{},
                                    ids.mid(1),
                                    ids + QVector<int>{99},
                                    {ids[0], ids[1], ids[2], ids[2]},
                                    {ids[0], ids[1], ids[2], 0},
                                    {ids[0], ids[1], ids[2], -5},
                                    {ids[0], taken, ids[2], ids[3]}};
    for (const QVector<int> &numbers : bad) {
        record.ids = numbers;
        EXPECT_TRUE(isRefused(record));
    }
}

TEST_F(NodeRecords, atPlacesThatAreNoNumbersMakeNothing)
{
    Geometry *geometry = addToScene(cube());
    geometry->CurrentLevel()->SetVertexPosition(0, {NAN, 0.0f, 0.0f});
    NodeRecord record = recordOf(geometry);
    Kernel()->NewScene();
    EXPECT_TRUE(isRefused(record));

    auto *curve = new OrvaneCurve;
    Kernel()->Scene()->AddCurve(curve);
    curve->AppendPoint(CurvePoint({0.0f, INFINITY, 0.0f}));
    record = recordOf(curve);
    Kernel()->NewScene();
    EXPECT_TRUE(isRefused(record));
}
