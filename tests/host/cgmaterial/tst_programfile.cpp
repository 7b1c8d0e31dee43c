// SPDX-License-Identifier: MIT
#include "host/cgmaterial/programfile.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <zlib.h>

#include <QtEndian>

using namespace orvane;

namespace {

const int LengthPlace = 12;   // bytes before it
const int ChecksumPlace = 16; // bytes before it
const int HeadSize = 20;      // bytes

QVector<ProgramText> samples()
{
    return {{7007, "vertex_shader", "float4 x;\nvoid vertex_shader() {}\n"},
            {7008, "lines_fragment", "first"},
            {7008, "points_fragment", ""}};
}

void expectSame(const QVector<ProgramText> &a, const QVector<ProgramText> &b)
{
    ASSERT_EQ(a.size(), b.size());
    for (int i = 0; i < a.size(); ++i) {
        EXPECT_EQ(a[i].profile, b[i].profile);
        EXPECT_EQ(a[i].entry, b[i].entry);
        EXPECT_EQ(a[i].text, b[i].text);
    }
}

QString faultOf(const QByteArray &bytes)
{
    QString fault;
    EXPECT_FALSE(unpackPrograms(bytes, &fault).has_value());
    EXPECT_FALSE(fault.isEmpty());
    return fault;
}

void put(QByteArray *bytes, int place, quint32 value)
{
    qToLittleEndian(value, bytes->data() + place);
}

// As if the writer had meant the body: its length and checksum are right.
QByteArray sealed(QByteArray bytes)
{
    const QByteArray body = bytes.mid(HeadSize);
    put(&bytes, LengthPlace, quint32(body.size()));
    put(&bytes, ChecksumPlace,
        quint32(crc32(0, reinterpret_cast<const Bytef *>(body.constData()), uInt(body.size()))));
    return bytes;
}

} // namespace

TEST(ProgramFile, whatIsPackedComesOutAgain)
{
    QString fault;
    for (const QVector<ProgramText> &programs : {samples(), QVector<ProgramText>()}) {
        const auto unpacked = unpackPrograms(packPrograms(programs), &fault);
        ASSERT_TRUE(unpacked.has_value()) << fault.toStdString();
        expectSame(*unpacked, programs);
    }
    EXPECT_TRUE(fault.isEmpty());
}

TEST(ProgramFile, theSameProgramsAreTheSameBytes)
{
    EXPECT_EQ(packPrograms(samples()), packPrograms(samples()));
}

TEST(ProgramFile, everyCutIsFound)
{
    const QByteArray whole = packPrograms(samples());
    for (int size = 0; size < whole.size(); ++size)
        faultOf(whole.left(size));
    faultOf(whole + 'x');
}

TEST(ProgramFile, everyChangedBitIsFound)
{
    const QByteArray whole = packPrograms(samples());
    for (int bit = 0; bit < 8 * whole.size(); ++bit) {
        QByteArray bytes = whole;
        bytes[bit / 8] = char(bytes[bit / 8] ^ (1 << (bit % 8)));
        faultOf(bytes);
    }
}

TEST(ProgramFile, aFaultIsToldApart)
{
    const QByteArray whole = packPrograms(samples());
    EXPECT_EQ(faultOf("Once upon a time there was a file"),
              QStringLiteral("it is no file of shader programs"));
    QByteArray later = whole;
    put(&later, 8, 2);
    EXPECT_EQ(faultOf(later), QStringLiteral("it has version 2, expected 1"));
    EXPECT_EQ(faultOf(whole.left(whole.size() - 3)),
              QStringLiteral("it has %1 bytes of programs, expected %2")
                  .arg(whole.size() - HeadSize - 3)
                  .arg(whole.size() - HeadSize));
}

TEST(ProgramFile, lengthsWithinAreBoundedByTheBytesThereAre)
{
    const QByteArray whole = packPrograms(samples());
    const int entryLength = HeadSize + 4; // after the first profile
    for (quint32 length : {0xfffffffeu, 0x7fffffffu, 0x10000000u, 100000u}) {
        QByteArray bytes = whole;
        put(&bytes, entryLength, length);
        EXPECT_EQ(faultOf(sealed(bytes)), QStringLiteral("its programs are damaged"));
    }
    faultOf(sealed(whole + "xy"));
}

TEST(ProgramFile, randomBytesUnderAValidHeadDoNoHarm)
{
    std::mt19937 random(testSeed());
    const QByteArray whole = packPrograms(samples());
    for (int round = 0; round < 5000; ++round) {
        QByteArray bytes = whole;
        for (int i = HeadSize; i < bytes.size(); ++i) {
            if (random() % 8 == 0)
                bytes[i] = char(random());
        }
        QString fault;
        const auto programs = unpackPrograms(sealed(bytes), &fault);
        EXPECT_EQ(programs.has_value(), fault.isEmpty());
    }
}
