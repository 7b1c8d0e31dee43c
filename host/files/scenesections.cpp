// SPDX-License-Identifier: MIT
#include "host/files/scenesections.h"

#include <QIODevice>
#include <QSysInfo>
#include <QtEndian>

#include <zlib.h>

#include <limits>

namespace orvane {

namespace {

// The ends of lines in it show when a file went through a program that changes them.
const QByteArray Magic = QByteArrayLiteral("ORVANE\r\n\x1a\n");
const quint32 Version = 1;
const char LittleEndianRaw = 1;
const char BigEndianRaw = 2;
const int HeadSize = 28;          // bytes of a section's head
const int ChunkSize = 1 << 16;    // bytes
const qint64 MostUnpacked = 1040; // zlib never packs more bytes than this into one

char ownRawOrder()
{
    return QSysInfo::ByteOrder == QSysInfo::LittleEndian ? LittleEndianRaw : BigEndianRaw;
}

template <typename T>
void append(QByteArray *bytes, T value)
{
    value = qToLittleEndian(value);
    bytes->append(reinterpret_cast<const char *>(&value), int(sizeof(value)));
}

quint32 checksumOf(const QByteArray &bytes)
{
    return quint32(
        crc32(0, reinterpret_cast<const Bytef *>(bytes.constData()), uInt(bytes.size())));
}

struct Head
{
    quint32 kind = 0;
    quint64 unpackedSize = 0;
    quint64 storedSize = 0;
    quint32 checksum = 0;
};

QByteArray bytesOf(const Head &head)
{
    QByteArray bytes;
    append(&bytes, head.kind);
    append(&bytes, head.unpackedSize);
    append(&bytes, head.storedSize);
    append(&bytes, head.checksum);
    append(&bytes, checksumOf(bytes));
    return bytes;
}

// False when the bytes, at least as many as a head has, are none.
bool readHead(const char *bytes, Head *head)
{
    head->kind = qFromLittleEndian<quint32>(bytes);
    if (head->kind != MetaSection && head->kind != NodeSection && head->kind != StepSection)
        return false;
    head->unpackedSize = qFromLittleEndian<quint64>(bytes + 4);
    head->storedSize = qFromLittleEndian<quint64>(bytes + 12);
    head->checksum = qFromLittleEndian<quint32>(bytes + 20);
    return checksumOf(QByteArray::fromRawData(bytes, HeadSize - 4))
           == qFromLittleEndian<quint32>(bytes + 24);
}

// Moves the device on to where a head begins, or to its end.
void seekNextHead(QIODevice *device)
{
    Head head;
    device->seek(device->pos() + 1);
    while (true) {
        const QByteArray window = device->peek(ChunkSize);
        if (window.size() < HeadSize) {
            device->seek(device->size());
            return;
        }
        int i = 0;
        const int end = window.size() - HeadSize + 1;
        while (i < end && !readHead(window.constData() + i, &head))
            ++i;
        device->seek(device->pos() + i);
        if (i < end)
            return;
    }
}

bool canBe(const Head &head)
{
    const auto most = quint64(std::numeric_limits<int>::max());
    return head.storedSize <= most && head.unpackedSize <= most
           && head.unpackedSize <= head.storedSize * MostUnpacked;
}

QByteArray unpack(const Head &head, const QByteArray &stored, QString *damage)
{
    QByteArray bytes(int(head.unpackedSize), Qt::Uninitialized);
    uLongf size = uLongf(bytes.size());
    const int result =
        uncompress(reinterpret_cast<Bytef *>(bytes.data()), &size,
                   reinterpret_cast<const Bytef *>(stored.constData()), uLong(stored.size()));
    if (result == Z_OK && size == uLongf(bytes.size()))
        return bytes;
    *damage = QStringLiteral("it cannot be unpacked");
    return {};
}

QByteArray readBytes(QIODevice *device, const Head &head, QString *damage)
{
    if (head.storedSize > quint64(device->bytesAvailable())) {
        *damage = QStringLiteral("it is cut off");
        device->seek(device->size());
        return {};
    }
    if (!canBe(head)) {
        *damage = QStringLiteral("its size makes no sense");
        device->seek(device->pos() + qint64(head.storedSize));
        return {};
    }
    const QByteArray stored = device->read(qint64(head.storedSize));
    if (checksumOf(stored) == head.checksum)
        return unpack(head, stored, damage);
    *damage = QStringLiteral("its checksum does not match");
    return {};
}

} // namespace

bool writeSceneHead(QIODevice *device)
{
    QByteArray bytes = Magic;
    append(&bytes, Version);
    bytes.append(ownRawOrder());
    return device->write(bytes) == bytes.size();
}

bool writeSection(QIODevice *device, quint32 kind, const QByteArray &bytes)
{
    const uLong bound = compressBound(uLong(bytes.size()));
    if (bound > uLong(std::numeric_limits<int>::max()))
        return false;
    QByteArray stored(int(bound), Qt::Uninitialized);
    uLongf size = uLongf(stored.size());
    const int result = compress2(reinterpret_cast<Bytef *>(stored.data()), &size,
                                 reinterpret_cast<const Bytef *>(bytes.constData()),
                                 uLong(bytes.size()), Z_BEST_SPEED);
    if (result != Z_OK)
        return false;
    stored.truncate(int(size));
    const QByteArray head =
        bytesOf({kind, quint64(bytes.size()), quint64(stored.size()), checksumOf(stored)});
    return device->write(head) == head.size() && device->write(stored) == stored.size();
}

bool readSceneHead(QIODevice *device, QString *error)
{
    const QByteArray head = device->read(Magic.size() + int(sizeof(quint32)) + 1);
    if (!head.startsWith(Magic) || head.size() <= Magic.size() + int(sizeof(quint32))) {
        *error = QStringLiteral("this is no scene; expected a file that Orvane saved.");
        return false;
    }
    const auto version = qFromLittleEndian<quint32>(head.constData() + Magic.size());
    if (version != Version) {
        *error = QStringLiteral("it has version %1 of the format; expected version %2.")
                     .arg(version)
                     .arg(Version);
        return false;
    }
    if (head.back() != ownRawOrder()) {
        *error = QStringLiteral("it was saved on a machine of another byte order.");
        return false;
    }
    return true;
}

bool readSection(QIODevice *device, SceneSection *section)
{
    *section = SceneSection();
    section->position = device->pos();
    if (device->atEnd())
        return false;
    Head head;
    const QByteArray bytes = device->peek(HeadSize);
    if (bytes.size() < HeadSize || !readHead(bytes.constData(), &head)) {
        section->damage = QStringLiteral("its beginning is damaged");
        seekNextHead(device);
        return true;
    }
    device->seek(device->pos() + HeadSize);
    section->kind = head.kind;
    section->bytes = readBytes(device, head, &section->damage);
    return true;
}

} // namespace orvane
