// SPDX-License-Identifier: MIT
#include "graph/intersectionnode.h"
#include "plugin/quillmesh.h"
#include "tests/plugin/overlayview.h"
#include "tests/support/logcatcher.h"
#include "tests/support/shapes.h"

#include <QFile>
#include <QSet>

using orvane::Vector;

namespace {

const QColor Blue(0, 0, 255);

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(bytes), bytes.size());
}

// One byte changed, a stretch changed, an end cut off, or an end put on; never the same bytes
// twice, for a damage is told once.
QByteArray damaged(const QByteArray &whole, std::mt19937 &random, QSet<QByteArray> &earlier)
{
    QByteArray bytes = whole;
    while (bytes == whole || earlier.contains(bytes)) {
        bytes = whole;
        const int place = int(random() % unsigned(bytes.size()));
        switch (random() % 4) {
        case 0:
            bytes[place] = char(random());
            break;
        case 1:
            for (int i = place; i < bytes.size() && i < place + 40; ++i)
                bytes[i] = char(random());
            break;
        case 2:
            bytes.truncate(place);
            break;
        default:
            bytes.append(QByteArray(1 + place, char(random())));
        }
    }
    earlier.insert(bytes);
    return bytes;
}

class OverlayFiles : public OverlayView
{
protected:
    OverlayFiles()
    {
        graph.add({0, 0, 0});
        graph.add({4, 1, 0});
        graph.link(0, 1);
        lookAt(graph);
        before = without();
    }

    void expectDrawn()
    {
        const QImage after = with();
        for (const IntersectionNode *node : graph.nodes())
            EXPECT_LE(difference(colourAt(after, node->position()), Blue), 1);
        const QPoint pixel = pixelOf({1.2f, 0.3f, 0.0f});
        EXPECT_LE(difference(after.pixelColor(pixel), strokeOver(before.pixelColor(pixel), 0, 1)),
                  4);
    }

    TestGraph graph;
    QImage before;
};

} // namespace

TEST_F(OverlayFiles, withoutThemTheGraphIsDrawnInItsColours)
{
    removePrograms();
    LogCatcher log;
    for (int i = 0; i < 3; ++i)
        expectDrawn();
    if (hasCg()) {
        ASSERT_EQ(log.count(), 2) << "one line for each file, and not again at every frame";
        EXPECT_TRUE(log.texts()[0].contains(QLatin1String("CurvesFragment.bin")));
        EXPECT_TRUE(log.texts()[1].contains(QLatin1String("CurvesVertex.bin")));
    } else {
        EXPECT_EQ(log.count(), 0);
    }
}

TEST_F(OverlayFiles, withProgramsThePictureIsTheSameAsWithout)
{
    if (!hasCg())
        GTEST_SKIP() << "Cg is not installed";
    const QImage programmed = with();
    removePrograms();
    makeTool();
    EXPECT_EQ(differentPixels(with(), programmed), 0);
}

TEST_F(OverlayFiles, aProgramThatComesLaterIsTaken)
{
    if (!hasCg())
        GTEST_SKIP() << "Cg is not installed";
    LogCatcher log;
    write(programFile("CurvesVertex"), "none of it");
    expectDrawn();
    EXPECT_EQ(log.count(), 1);
    restorePrograms();
    expectDrawn();
    removePrograms();
    expectDrawn();
    EXPECT_EQ(log.count(), 1) << "what was made is kept, and no file is read again";
}

TEST_F(OverlayFiles, aDamagedFileCostsItsProgramAndOneLine)
{
    if (!hasCg())
        GTEST_SKIP() << "Cg is not installed";
    std::mt19937 random(testSeed());
    const QByteArray vertex = contentOf(programFile("CurvesVertex"));
    const QByteArray fragment = contentOf(programFile("CurvesFragment"));
    QSet<QByteArray> earlier;
    for (int round = 0; round < 200; ++round) {
        const bool inVertex = random() % 2 == 0;
        const char *name = inVertex ? "CurvesVertex" : "CurvesFragment";
        write(programFile(name), damaged(inVertex ? vertex : fragment, random, earlier));
        makeTool();
        LogCatcher log;
        expectDrawn();
        picture();
        ASSERT_EQ(log.count(), 1) << round << ": " << log.text().toStdString();
        ASSERT_TRUE(log.text().contains(QLatin1String(name)));
        write(programFile(name), inVertex ? vertex : fragment);
    }
}
