// SPDX-License-Identifier: MIT
#include "tests/scenes/scenehistory.h"

#include "host/files/scenefile.h"
#include "host/files/scenesections.h"
#include "tests/support/repetitions.h"
#include "tests/support/shapes.h"
#include "tests/support/timelimit.h"

#include <orvane/base/log.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>

#include <array>
#include <cstring>
#include <limits>

#include <sys/resource.h>

using namespace orvane;

namespace {

const int Damages = 200;            // in a short run
const qint64 LongestTime = 3000;    // milliseconds, for opening, undoing and redoing one file
const rlim_t FileSizes = 4;         // most memory for a file, in its own sizes, beyond a constant
const rlim_t Allowance = 48u << 20; // bytes: stacks of threads, heaps that grow in large steps

// For its life the process gets no more address space than now and so many bytes.
class MemoryLimit
{
public:
    explicit MemoryLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_AS, &m_before);
#if !defined(__SANITIZE_ADDRESS__) // which takes address space by the terabyte
        rlimit limit = m_before;
        limit.rlim_cur = addressSpace() + bytes;
        setrlimit(RLIMIT_AS, &limit);
#else
        Q_UNUSED(bytes);
#endif
    }
    ~MemoryLimit()
    {
        setrlimit(RLIMIT_AS, &m_before);
    }
    MemoryLimit(const MemoryLimit &) = delete;
    MemoryLimit &operator=(const MemoryLimit &) = delete;

private:
    static rlim_t addressSpace()
    {
        QFile file(QStringLiteral("/proc/self/statm"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().split(' ').first().toULongLong() * 4096;
    }

    rlimit m_before;
};

class SceneDamage : public SceneHistory
{
protected:
    SceneDamage() : m_random(testSeed()) {}

    int below(int limit) { return int(m_random() % unsigned(limit)); }

    QByteArray cut(const QByteArray &bytes) { return bytes.left(below(bytes.size())); }

    QByteArray withFlippedBits(QByteArray bytes)
    {
        for (int i = 1 + below(8); i > 0; --i) {
            const int place = below(bytes.size());
            bytes[place] = char(bytes[place] ^ (1 << below(8)));
        }
        return bytes;
    }

    // Writes a number that a count or a reference may have come to, where one may stand.
    QByteArray withOddNumber(QByteArray bytes)
    {
        const std::array<int, 6> numbers{-1, 0,       std::numeric_limits<int>::max(),
                                         1,  1 << 20, 1 + below(60)};
        if (bytes.size() >= 4) {
            const int number = numbers[size_t(below(int(numbers.size())))];
            std::memcpy(bytes.data() + below(bytes.size() - 3), &number, sizeof(number));
        }
        return bytes;
    }

    QByteArray withOtherClass(QByteArray bytes)
    {
        const QVector<QByteArray> names{
            "Geometry",          "OrvaneCurve",           "Placement",
            "SubdivisionLevel",  "ManualRetopoOperation", "RenameOperation",
            "TransformOperation"};
        const QByteArray other = names[below(names.size())];
        for (const QByteArray &name : names) {
            const int place = bytes.indexOf(name);
            if (place < 4)
                continue;
            bytes.replace(place, name.size(), other);
            bytes[place - 1] = char(other.size()); // lengths end on their highest byte or lowest
            return bytes;
        }
        return bytes;
    }

    QByteArray damaged(const QByteArray &bytes)
    {
        switch (below(3)) {
        case 0:
            return withFlippedBits(bytes);
        case 1:
            return withOddNumber(bytes);
        default:
            return withOtherClass(bytes);
        }
    }

    // The damage is inside a section, and the checksums are right all the same.
    QByteArray withDamagedSection(QByteArray bytes)
    {
        QBuffer in(&bytes);
        in.open(QIODevice::ReadOnly);
        QString error;
        EXPECT_TRUE(readSceneHead(&in, &error));
        QVector<SceneSection> sections;
        SceneSection section;
        while (readSection(&in, &section))
            sections.append(section);
        const int chosen = below(sections.size());
        sections[chosen].bytes = damaged(sections[chosen].bytes);
        QByteArray result;
        QBuffer out(&result);
        out.open(QIODevice::WriteOnly);
        writeSceneHead(&out);
        for (const SceneSection &each : qAsConst(sections))
            writeSection(&out, each.kind, each.bytes);
        return result;
    }

    QByteArray someDamage(const QByteArray &bytes)
    {
        switch (below(4)) {
        case 0:
            return cut(bytes);
        case 1:
            return withFlippedBits(bytes);
        default:
            return withDamagedSection(bytes);
        }
    }

    // Opens the file, and uses what came of it: history, and saving.
    void use(const QString &path)
    {
        SceneContents contents;
        QString error;
        if (!readScene(path, &contents, &error)) {
            EXPECT_TRUE(error.startsWith(path)) << qPrintable(error);
            EXPECT_GT(error.size(), path.size() + 10) << qPrintable(error);
            ++refused;
            return;
        }
        contents.damage += openScene(contents);
        (contents.damage.isEmpty() ? unnoticed : partly) += 1;
        undoAll();
        redoAll();
        EXPECT_TRUE(writeScene(path + QStringLiteral(".again"), &error)) << qPrintable(error);
    }

    std::mt19937 m_random;
    int refused = 0;   // nothing could be read
    int partly = 0;    // some of it was, the rest was named
    int unnoticed = 0; // the damage makes another scene that is as good, or history steps that fail
};

} // namespace

TEST_F(SceneDamage, endsInAMessageOrAPartialSceneAndNeverInACrash)
{
    makeHistory();
    const QByteArray good = save(QStringLiteral("good.orvane"));
    undoAll(); // what is allocated once, is allocated now
    redoAll();
    const int damages = repetitions("QUILLMESH_DAMAGES", Damages);
    qint64 slowest = 0;
    for (int i = 0; i < damages; ++i) {
        const QByteArray bytes = someDamage(good);
        if (bytes == good)
            continue;
        const QString path = file(QStringLiteral("bad.orvane"), bytes);
        QElapsedTimer timer;
        timer.start();
        {
            const MemoryLimit limit(Allowance + FileSizes * rlim_t(bytes.size()));
            ASSERT_NO_THROW(use(path)) << "damage " << i;
        }
        slowest = qMax(slowest, timer.elapsed());
        ASSERT_LT(timer.elapsed(), timeLimit(LongestTime)) << "damage " << i;
        ASSERT_EQ(bytesOf(path), bytes) << "damage " << i << " changed the file";
    }
    std::printf(
        "%d damages of %d bytes: %d refused, %d read in part, %d not noticed; slowest %d ms\n",
        damages, good.size(), refused, partly, unnoticed, int(slowest));
}
