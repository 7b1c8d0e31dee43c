// SPDX-License-Identifier: MIT
#include <orvane/base/stream.h>

#include <orvane/base/node.h>
#include <orvane/base/nodetable.h>

#include <QIODevice>

#include <cstring>

namespace orvane {

qint64 Stream::BytesLeft() const
{
    return IsWriting() || !m_ok ? 0 : m_device->bytesAvailable();
}

void Stream::Write(const void *data, qint64 size)
{
    if (m_ok)
        m_ok = m_device->write(static_cast<const char *>(data), size) == size;
}

void Stream::Read(void *data, qint64 size)
{
    if (size == 0)
        return;
    if (m_ok)
        m_ok = m_device->read(static_cast<char *>(data), size) == size;
    if (!m_ok)
        std::memset(data, 0, size_t(size));
}

int Stream::ReadInt()
{
    int value = 0;
    Read(&value, qint64(sizeof(value)));
    return value;
}

int Stream::ReadCount(int elementSize)
{
    const int count = ReadInt();
    if (count >= 0 && qint64(count) * elementSize <= BytesLeft())
        return count;
    m_ok = false;
    return 0;
}

void Stream::WriteNode(const Node *node)
{
    const int id = node ? node->ID() : 0;
    Write(&id, qint64(sizeof(id)));
}

Node *Stream::ReadNode()
{
    return NodeTable::Instance().Find(ReadInt());
}

void Stream::Transfer(QString &text)
{
    QByteArray utf8 = text.toUtf8();
    Transfer(utf8);
    if (!IsWriting())
        text = QString::fromUtf8(utf8);
}

void Stream::Transfer(QByteArray &bytes)
{
    int size = bytes.size();
    if (IsWriting()) {
        Write(&size, qint64(sizeof(size)));
        Write(bytes.constData(), size);
        return;
    }
    bytes.resize(ReadCount(1));
    Read(bytes.data(), bytes.size());
}

void Stream::Transfer(bool &flag)
{
    char byte = flag ? 1 : 0;
    Transfer(byte);
    flag = byte != 0;
}

} // namespace orvane
