// SPDX-License-Identifier: MIT
#include "host/cgmaterial/programfile.h"

#include <QDataStream>

#include <zlib.h>

namespace orvane {

namespace {

const QByteArray Magic = QByteArrayLiteral("ORVCG\r\n\x1a");
const quint32 Version = 1;
const int HeadSize = 20; // bytes: magic, version, length, checksum

quint32 checksumOf(const QByteArray &bytes)
{
    return quint32(
        crc32(0, reinterpret_cast<const Bytef *>(bytes.constData()), uInt(bytes.size())));
}

void setFormat(QDataStream *stream)
{
    stream->setVersion(QDataStream::Qt_5_15);
    stream->setByteOrder(QDataStream::LittleEndian);
}

QByteArray bodyOf(const QVector<ProgramText> &programs)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    setFormat(&stream);
    for (const ProgramText &program : programs)
        stream << qint32(program.profile) << program.entry << program.text;
    return body;
}

// A length beyond the bytes that are left ends the reading.
bool readBody(const QByteArray &body, QVector<ProgramText> *programs)
{
    QDataStream stream(body);
    setFormat(&stream);
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        ProgramText program;
        qint32 profile = 0;
        stream >> profile >> program.entry >> program.text;
        program.profile = profile;
        programs->append(program);
    }
    return stream.status() == QDataStream::Ok;
}

} // namespace

QByteArray packPrograms(const QVector<ProgramText> &programs)
{
    const QByteArray body = bodyOf(programs);
    QByteArray head = Magic;
    QDataStream stream(&head, QIODevice::WriteOnly | QIODevice::Append);
    setFormat(&stream);
    stream << Version << quint32(body.size()) << checksumOf(body);
    return head + body;
}

std::optional<QVector<ProgramText>> unpackPrograms(const QByteArray &bytes, QString *fault)
{
    if (bytes.size() < HeadSize || !bytes.startsWith(Magic)) {
        *fault = QStringLiteral("it is no file of shader programs");
        return std::nullopt;
    }
    quint32 version = 0;
    quint32 length = 0;
    quint32 checksum = 0;
    QDataStream head(bytes.mid(Magic.size(), HeadSize - Magic.size()));
    setFormat(&head);
    head >> version >> length >> checksum;
    if (version != Version) {
        *fault = QStringLiteral("it has version %1, expected %2").arg(version).arg(Version);
        return std::nullopt;
    }
    const QByteArray body = bytes.mid(HeadSize);
    if (quint32(body.size()) != length) {
        *fault =
            QStringLiteral("it has %1 bytes of programs, expected %2").arg(body.size()).arg(length);
        return std::nullopt;
    }
    QVector<ProgramText> programs;
    if (checksumOf(body) != checksum || !readBody(body, &programs)) {
        *fault = QStringLiteral("its programs are damaged");
        return std::nullopt;
    }
    return programs;
}

} // namespace orvane
