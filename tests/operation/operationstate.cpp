// SPDX-License-Identifier: MIT
#include "tests/operation/operationstate.h"

#include "operation/manualretopooperation.h"

#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>

#include <QBuffer>

#include <gtest/gtest.h>

#include <cstring>

namespace {

// Reads the raw bytes by itself, so that a slip in the stream does not hide itself.
class Bytes
{
public:
    explicit Bytes(const QByteArray &bytes) : m_bytes(bytes) {}

    template <typename T>
    T take()
    {
        T value = T();
        if (m_place + int(sizeof(T)) <= m_bytes.size())
            std::memcpy(&value, m_bytes.constData() + m_place, sizeof(T));
        m_place += int(sizeof(T));
        return value;
    }

    QVector<int> takeInts(int count)
    {
        QVector<int> values;
        for (int i = 0; i < count && m_place < m_bytes.size(); ++i)
            values.append(take<int>());
        return values;
    }

    bool isAtEnd() const { return m_place == m_bytes.size(); }

private:
    QByteArray m_bytes;
    int m_place = 0;
};

template <typename Node>
QByteArray writtenBy(Node &node)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    orvane::Stream stream(&buffer, orvane::Stream::Writing);
    node.Serialize(stream);
    return bytes;
}

} // namespace

QByteArray bytesOf(ManualRetopoOperation &operation)
{
    return writtenBy(operation);
}

QByteArray bytesOf(orvane::Geometry *geometry)
{
    return writtenBy(*geometry);
}

OperationState stateOf(ManualRetopoOperation &operation)
{
    Bytes bytes(bytesOf(operation));
    OperationState state;
    state.firstExecution = bytes.take<char>() != 0;
    state.maxEdges = bytes.take<int>();
    state.mergeDistance = bytes.take<float>();
    state.intersectionTolerance = bytes.take<float>();
    state.useSelfIntersections = bytes.take<char>() != 0;
    state.overrunTolerance = bytes.take<float>();
    const int geometries = bytes.take<int>();
    const int curves = bytes.take<int>();
    for (QVector<int> *ids : {&state.geometryIDs, &state.companionIDs, &state.meshIDs})
        *ids = bytes.takeInts(bytes.take<int>());
    state.geometryReferences = bytes.takeInts(geometries);
    state.curveReferences = bytes.takeInts(curves);
    EXPECT_TRUE(bytes.isAtEnd());
    return state;
}

bool readInto(ManualRetopoOperation &operation, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    orvane::Stream stream(&buffer, orvane::Stream::Reading);
    operation.Serialize(stream);
    return stream.IsOk();
}
