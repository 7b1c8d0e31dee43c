// SPDX-License-Identifier: MIT
#include "tests/host/operations/operationsamples.h"
#include "tests/support/logcatcher.h"
#include "tests/support/scenebytes.h"
#include "tests/support/shapes.h"

#include <orvane/base/classdesc.h>
#include <orvane/base/nodetable.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/noderecord.h>
#include <orvane/kernel/scene.h>

#include <QBuffer>

#include <cstring>
#include <iostream>
#include <limits>

namespace {

const int HighestNumber = 100; // far more than the scene's nodes have

QByteArray bytesOf(orvane::Operation &operation)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    orvane::Stream stream(&buffer, orvane::Stream::Writing);
    operation.Serialize(stream);
    return bytes;
}

// Every node is found by its number and could be kept and brought back; a geometry is the active
// one if any was made so, and only geometries are.
void expectSoundScene()
{
    const orvane::Scene *scene = orvane::Kernel()->Scene();
    bool wasMadeActive = false;
    for (int i = 0; i < scene->NodeCount(); ++i) {
        orvane::Node *node = scene->NodeAt(i);
        ASSERT_TRUE(node->CheckValidity());
        for (orvane::Node *part : orvane::partsOf(node))
            ASSERT_EQ(orvane::NodeTable::Instance().Find(part->ID()), part);
        const bool hasRank = scene->PlaceOf(node).activeRank >= 0;
        ASSERT_TRUE(!hasRank || dynamic_cast<orvane::Geometry *>(node));
        wasMadeActive = wasMadeActive || hasRank;
    }
    ASSERT_EQ(wasMadeActive, scene->ActiveGeometry() != nullptr);
    ASSERT_LE(orvane::NodeTable::Instance().LastID(), HighestNumber);
}

class DamagedOperations : public OperationSamples
{
protected:
    // The bytes of the sample after so many executions, and the scene as it is then.
    QByteArray prepare(int executions)
    {
        fill();
        const std::unique_ptr<orvane::Operation> operation = makeOperation();
        for (int i = 0; i < executions; ++i)
            EXPECT_TRUE(operation->ExecuteAndInvert());
        m_scene = sceneBytes();
        return bytesOf(*operation);
    }

    void tryBytes(QByteArray bytes)
    {
        const std::unique_ptr<orvane::Node> node(
            orvane::ClassDesc::ByName(QString::fromUtf8(GetParam()))->Create());
        auto &operation = dynamic_cast<orvane::Operation &>(*node);
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        orvane::Stream stream(&buffer, orvane::Stream::Reading);
        operation.Serialize(stream);
        if (!operation.ExecuteAndInvert()) {
            ++m_refused;
            ASSERT_TRUE(sceneBytes() == m_scene);
            return;
        }
        ++m_done;
        expectSoundScene();
        operation.ExecuteAndInvert(); // back and forth again, as far as it will go
        operation.ExecuteAndInvert();
        expectSoundScene();
        prepare(m_executions);
    }

    // Executions: 1, what the history keeps of a step that is done; 2, of one that was undone.
    template <typename Damage>
    void tryEach(const Damage &damage)
    {
        const LogCatcher logs;
        for (m_executions = 1; m_executions <= 2; ++m_executions) {
            const QByteArray good = prepare(m_executions);
            for (int place = 0; place < good.size(); ++place) {
                SCOPED_TRACE(place);
                damage(good, place);
                ASSERT_FALSE(HasFatalFailure());
            }
        }
        std::cout << GetParam() << ": " << m_refused << " refused, " << m_done << " carried out"
                  << std::endl;
        EXPECT_GT(m_refused, 0);
    }

    int m_executions = 0;
    int m_refused = 0;
    int m_done = 0;
    QByteArray m_scene;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(EachClass, DamagedOperations, testing::ValuesIn(OperationClasses),
                         sampleName);

TEST_P(DamagedOperations, cutOffAnywhereDoNoHarm)
{
    tryEach([this](const QByteArray &good, int place) { tryBytes(good.left(place)); });
}

TEST_P(DamagedOperations, withABitFlippedAnywhereDoNoHarm)
{
    tryEach([this](const QByteArray &good, int place) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray bytes = good;
            bytes[place] = char(bytes[place] ^ (1 << bit));
            tryBytes(bytes);
        }
    });
}

TEST_P(DamagedOperations, withAnyCountOrNumberAnywhereDoNoHarm)
{
    const int highest = orvane::NodeTable::Instance().LastID();
    QVector<int> values{-1, 0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max(),
                        std::numeric_limits<int>::max() - 1};
    for (int id = 1; id <= highest + 1; ++id) // of nodes of each class, and of none
        values.append(id);
    tryEach([&](const QByteArray &good, int place) {
        for (int value : qAsConst(values)) {
            QByteArray bytes = good + QByteArray(int(sizeof(value)), '\0');
            std::memcpy(bytes.data() + place, &value, sizeof(value));
            bytes.truncate(good.size());
            tryBytes(bytes);
        }
    });
}

TEST_P(DamagedOperations, ofRandomBytesDoNoHarm)
{
    std::mt19937 random(testSeed());
    tryEach([&](const QByteArray &good, int place) {
        QByteArray bytes = good;
        const int length = 1 + int(random() % 16);
        for (int i = place; i < qMin(place + length, bytes.size()); ++i)
            bytes[i] = char(random());
        tryBytes(bytes);
    });
}

TEST_P(DamagedOperations, readByTheHistoryLeaveItUsable)
{
    const LogCatcher logs;
    const QByteArray good = prepare(1);
    for (int place = 0; place < good.size(); ++place) {
        prepare(1);
        const orvane::UndoStep step{{QString::fromUtf8(GetParam()), good.left(place)}};
        orvane::Kernel()->Undos().Restore({step}, 1);
        ASSERT_FALSE(orvane::Kernel()->Undo());
        ASSERT_TRUE(sceneBytes() == m_scene);
        ASSERT_TRUE(orvane::Kernel()->Undos().CanUndo());
    }
}
