// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"
#include "tests/support/shapes.h"

#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <climits>

using orvane::Stream;

namespace {

// Bytes that were written, to be read by a stream.
class Bytes
{
public:
    template <typename Write>
    explicit Bytes(Write write)
    {
        m_buffer.open(QIODevice::WriteOnly);
        Stream stream(&m_buffer, Stream::Writing);
        write(stream);
        EXPECT_TRUE(stream.IsOk());
        reopen();
    }

    QIODevice *device() { return &m_buffer; }
    const QByteArray &data() const { return m_buffer.data(); }
    void truncate(int size)
    {
        m_buffer.buffer().truncate(size);
        reopen();
    }

private:
    void reopen()
    {
        m_buffer.close();
        m_buffer.open(QIODevice::ReadOnly);
    }

    QBuffer m_buffer;
};

Bytes bytesOfInts(const QVector<int> &values)
{
    return Bytes([&values](Stream &stream) {
        for (int value : values)
            stream.Write(&value, sizeof(value));
    });
}

} // namespace

class NodeReference : public SceneCleaner
{};

TEST(Stream, givesBackPlainValues)
{
    const auto transfer = [](Stream &stream, int &number, double &fraction, bool &flag) {
        stream.Transfer(number);
        stream.Transfer(fraction);
        stream.Transfer(flag);
    };
    Bytes bytes([&](Stream &stream) {
        int number = -7;
        double fraction = 0.1;
        bool flag = true;
        transfer(stream, number, fraction, flag);
    });
    EXPECT_EQ(bytes.data().size(), 4 + 8 + 1);
    Stream stream(bytes.device(), Stream::Reading);
    EXPECT_FALSE(stream.IsWriting());
    EXPECT_EQ(stream.BytesLeft(), 13);
    int number = 0;
    double fraction = 0;
    bool flag = false;
    transfer(stream, number, fraction, flag);
    EXPECT_EQ(number, -7);
    EXPECT_EQ(fraction, 0.1);
    EXPECT_TRUE(flag);
    EXPECT_TRUE(stream.IsOk());
    EXPECT_EQ(stream.BytesLeft(), 0);
}

TEST(Stream, readsAsIntegersWhatWasWrittenRaw)
{
    Bytes bytes = bytesOfInts({0, -1, INT_MAX, INT_MIN});
    Stream stream(bytes.device(), Stream::Reading);
    EXPECT_EQ(stream.ReadInt(), 0);
    EXPECT_EQ(stream.ReadInt(), -1);
    EXPECT_EQ(stream.ReadInt(), INT_MAX);
    EXPECT_EQ(stream.ReadInt(), INT_MIN);
    EXPECT_TRUE(stream.IsOk());
}

TEST(Stream, readsAnyByteButZeroAsTrue)
{
    QByteArray data("\x02\xff", 2);
    data.append('\0');
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    Stream stream(&buffer, Stream::Reading);
    bool flags[3] = {false, false, true};
    for (bool &flag : flags)
        stream.Transfer(flag);
    EXPECT_TRUE(flags[0]);
    EXPECT_TRUE(flags[1]);
    EXPECT_FALSE(flags[2]);
}

TEST(Stream, givesBackVectorsAndTexts)
{
    const QVector<float> numbers = {1.5f, -2.5f};
    const QString text = QStringLiteral("Käse \u03b1 \U0001F600");
    Bytes bytes([&](Stream &stream) {
        QVector<float> none;
        QVector<float> values = numbers;
        QString words = text;
        QString empty;
        stream.Transfer(none);
        stream.Transfer(values);
        stream.Transfer(words);
        stream.Transfer(empty);
    });
    Stream stream(bytes.device(), Stream::Reading);
    QVector<float> none = {9.0f};
    QVector<float> values;
    QString words;
    QString empty = QStringLiteral("old");
    stream.Transfer(none);
    stream.Transfer(values);
    stream.Transfer(words);
    stream.Transfer(empty);
    EXPECT_TRUE(none.isEmpty());
    EXPECT_EQ(values, numbers);
    EXPECT_EQ(words, text);
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_TRUE(stream.IsOk());
}

TEST(Stream, givesZerosForAShortReadAndEnds)
{
    Bytes bytes = bytesOfInts({-1, -1});
    bytes.truncate(6);
    Stream stream(bytes.device(), Stream::Reading);
    EXPECT_EQ(stream.ReadInt(), -1);
    EXPECT_EQ(stream.ReadInt(), 0) << "half a number is none";
    EXPECT_FALSE(stream.IsOk());
}

TEST(Stream, touchesNothingOnceItHasEnded)
{
    Bytes bytes = bytesOfInts({-1, 5});
    Stream stream(bytes.device(), Stream::Reading);
    EXPECT_EQ(stream.ReadCount(1), 0);
    EXPECT_FALSE(stream.IsOk());
    const qint64 place = bytes.device()->pos();
    EXPECT_EQ(stream.ReadInt(), 0);
    EXPECT_EQ(stream.BytesLeft(), 0);
    EXPECT_EQ(bytes.device()->pos(), place);
}

TEST(Stream, takesACountThatTheBytesLeftCanHold)
{
    Bytes bytes = bytesOfInts({2, 10, 20});
    Stream stream(bytes.device(), Stream::Reading);
    EXPECT_EQ(stream.ReadCount(4), 2);
    EXPECT_TRUE(stream.IsOk());
}

TEST(Stream, refusesACountThatMakesNoSense)
{
    for (const int count : {-1, INT_MIN, 3, INT_MAX}) {
        Bytes bytes = bytesOfInts({count, 10, 20});
        Stream stream(bytes.device(), Stream::Reading);
        EXPECT_EQ(stream.ReadCount(4), 0) << count;
        EXPECT_FALSE(stream.IsOk()) << count;
    }
}

TEST(Stream, emptiesAVectorAndATextWhoseCountMakesNoSense)
{
    for (const int count : {-1, 1000000000}) {
        Bytes bytes = bytesOfInts({count, 10});
        Stream numbers(bytes.device(), Stream::Reading);
        QVector<double> values = {1.0};
        numbers.Transfer(values);
        EXPECT_TRUE(values.isEmpty()) << count;
        EXPECT_FALSE(numbers.IsOk()) << count;

        bytes.device()->seek(0);
        Stream texts(bytes.device(), Stream::Reading);
        QString text = QStringLiteral("old");
        texts.Transfer(text);
        EXPECT_TRUE(text.isEmpty()) << count;
        EXPECT_FALSE(texts.IsOk()) << count;
    }
}

TEST(Stream, endsWhenTheDeviceTakesNoMore)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadOnly);
    Stream stream(&buffer, Stream::Writing);
    EXPECT_TRUE(stream.IsOk());
    const int value = 1;
    stream.Write(&value, sizeof(value));
    EXPECT_FALSE(stream.IsOk());
    EXPECT_EQ(stream.BytesLeft(), 0);
}

TEST(Stream, writesTheSameToAFileAsToMemory)
{
    const auto write = [](Stream &stream) {
        QVector<int> numbers{1, -2, 3};
        QString text = QStringLiteral("Bl\u00e4tter");
        stream.Transfer(numbers);
        stream.Transfer(text);
    };
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("stream")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    Stream stream(&file, Stream::Writing);
    write(stream);
    file.close();
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), Bytes(write).data());
}

TEST(Stream, endsAtTheEndOfAFileAsInMemory)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("stream")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\x02\0\0\0\x07\0\0\0\x08\0", 10); // of two numbers the second is cut off
    file.close();
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    Stream stream(&file, Stream::Reading);
    EXPECT_EQ(stream.BytesLeft(), 10);
    QVector<int> numbers{5};
    stream.Transfer(numbers);
    EXPECT_TRUE(numbers.isEmpty()) << "the count asks for more than the file has";
    EXPECT_FALSE(stream.IsOk());
    EXPECT_EQ(stream.ReadInt(), 0);
    EXPECT_EQ(file.pos(), 4);
}

TEST_F(NodeReference, findsItsNodeAgain)
{
    auto *curve = new orvane::OrvaneCurve; // the scene's
    orvane::Kernel()->Scene()->AddCurve(curve);
    orvane::Geometry *geometry = addToScene(singleTriangle());
    Bytes bytes([&](Stream &stream) {
        stream.WriteNode(curve);
        stream.WriteNode(nullptr);
        stream.WriteNode(geometry->CurrentLevel());
    });
    Stream stream(bytes.device(), Stream::Reading);
    EXPECT_EQ(stream.ReadNode(), curve);
    EXPECT_EQ(stream.ReadNode(), nullptr);
    EXPECT_EQ(stream.ReadNode(), geometry->CurrentLevel());
    EXPECT_TRUE(stream.IsOk());
}

TEST_F(NodeReference, isNullForANodeThatNeverWasInTheScene)
{
    const orvane::Node node;
    const Bytes bytes([&node](Stream &stream) { stream.WriteNode(&node); });
    EXPECT_EQ(bytes.data(), QByteArray(4, '\0'));
}

TEST_F(NodeReference, resolvesToNullWhileItsNodeIsOutOfTheScene)
{
    orvane::Geometry *geometry = addToScene(singleTriangle());
    Bytes bytes([geometry](Stream &stream) { stream.WriteNode(geometry); });
    orvane::Kernel()->Scene()->RemoveGeometry(geometry);
    Stream before(bytes.device(), Stream::Reading);
    EXPECT_EQ(before.ReadNode(), nullptr);
    EXPECT_TRUE(before.IsOk()) << "a broken reference is no damage";

    orvane::Kernel()->Scene()->AddGeometry(geometry);
    bytes.device()->seek(0);
    Stream after(bytes.device(), Stream::Reading);
    EXPECT_EQ(after.ReadNode(), geometry);
}

TEST_F(NodeReference, isNullBeyondTheEnd)
{
    addToScene(singleTriangle());
    QBuffer empty;
    empty.open(QIODevice::ReadOnly);
    Stream stream(&empty, Stream::Reading);
    EXPECT_EQ(stream.ReadNode(), nullptr);
    EXPECT_FALSE(stream.IsOk());
}
