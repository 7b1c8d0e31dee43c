// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QByteArray>
#include <QString>
#include <QVector>

#include <type_traits>

class QIODevice;

namespace orvane {

class Node;

//! Bytes going out to a device or coming in from it, numbers in native byte order.
//! The first failed read or write ends the stream: later reads give zeros and touch nothing.
class ORVANE_EXPORT Stream
{
public:
    enum Mode { Reading, Writing };

    //! The device is open already, in the mode; it is not owned.
    Stream(QIODevice *device, Mode mode) : m_device(device), m_mode(mode) {}

    bool IsWriting() const { return m_mode == Writing; }
    //! False once a read came short, a write failed, or a count made no sense.
    bool IsOk() const { return m_ok; }
    //! Bytes that can still be read; 0 when writing.
    qint64 BytesLeft() const;

    void Write(const void *data, qint64 size);
    //! Fills size bytes, with zeros when the stream has ended or ends on the way.
    void Read(void *data, qint64 size);

    int ReadInt();
    //! A count of things of elementSize bytes each that follow. A negative count, and one that
    //! needs more bytes than are left, reads as 0 and ends the stream.
    int ReadCount(int elementSize);

    //! A reference to a node of the scene: its number, 0 for null.
    void WriteNode(const Node *node);
    //! The node referred to; null when nothing in the scene has that number.
    Node *ReadNode();

    //! Writes the value, or reads into it, as the stream stands.
    template <typename T>
    void Transfer(T &value)
    {
        static_assert(std::is_trivially_copyable<T>::value, "only plain values are bytes");
        if (IsWriting())
            Write(&value, qint64(sizeof(T)));
        else
            Read(&value, qint64(sizeof(T)));
    }
    template <typename T>
    void Transfer(QVector<T> &values)
    {
        static_assert(std::is_trivially_copyable<T>::value, "only plain values are bytes");
        int count = values.size();
        if (IsWriting())
            Write(&count, qint64(sizeof(count)));
        else
            values.resize(ReadCount(int(sizeof(T))));
        const qint64 size = qint64(values.size()) * qint64(sizeof(T));
        if (IsWriting())
            Write(values.constData(), size);
        else
            Read(values.data(), size);
    }
    void Transfer(QString &text);
    void Transfer(QByteArray &bytes);
    //! One byte; any but 0 reads as true.
    void Transfer(bool &flag);

private:
    QIODevice *m_device;
    Mode m_mode;
    bool m_ok = true;
};

} // namespace orvane
