// SPDX-License-Identifier: MIT
// Files with random damage: each is either refused with a sentence or gives something whole.
#include "tests/host/files/filetest.h"
#include "tests/support/shapes.h"

#include "host/files/curvefile.h"
#include "host/files/meshfile.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <QScopedPointer>

#include <random>

using namespace orvane;

namespace {

const int Rounds = 400;

class Damage : public FileTest
{
protected:
    Damage() : m_random(testSeed()) {}

    int below(int limit) { return int(m_random() % unsigned(limit)); }

    //! Some bytes changed, lost, or copied to another place; sometimes the end is cut off.
    QByteArray damaged(QByteArray bytes)
    {
        static const char Likely[] = "0123456789-+.eE/\\ \n\r\t[]{}\",:#nanif\0\xff";
        for (int times = 1 + below(4); times > 0 && !bytes.isEmpty(); --times) {
            const int at = below(bytes.size());
            const int length = 1 + below(12);
            switch (below(5)) {
            case 0:
                bytes[at] = Likely[below(int(sizeof(Likely)) - 1)];
                break;
            case 1:
                bytes[at] = char(below(256));
                break;
            case 2:
                bytes.remove(at, length);
                break;
            case 3:
                bytes.insert(at, bytes.mid(below(bytes.size()), length));
                break;
            default:
                if (below(4) == 0)
                    bytes.truncate(at);
            }
        }
        return bytes;
    }

    void expectSentence(const QString &error, const QString &name)
    {
        EXPECT_TRUE(error.startsWith(name + QStringLiteral(": "))) << qPrintable(error);
        EXPECT_TRUE(error.endsWith(QLatin1Char('.'))) << qPrintable(error);
        EXPECT_FALSE(error.contains(QLatin1Char('\n'))) << qPrintable(error);
    }

    void checkMesh(const QString &name, const QByteArray &bytes)
    {
        QString error;
        const QScopedPointer<Geometry> read(readMesh(file(name, bytes), &error));
        EXPECT_EQ(read.isNull(), !error.isEmpty());
        m_refused += read.isNull();
        if (read.isNull())
            return expectSentence(error, name);
        const Mesh &level = *read->CurrentLevel();
        EXPECT_GT(level.FaceCount(), 0);
        for (const Vector &position : level.Positions())
            EXPECT_TRUE(position.IsFinite());
        for (int vertex : level.Corners())
            EXPECT_TRUE(vertex >= 0 && vertex < level.VertexCount());
    }

    void checkCurves(const QString &name, const QByteArray &bytes)
    {
        QString error;
        const QVector<OrvaneCurve *> read = readCurves(file(name, bytes), &error);
        EXPECT_EQ(read.isEmpty(), !error.isEmpty());
        m_refused += read.isEmpty();
        if (read.isEmpty())
            expectSentence(error, name);
        for (const OrvaneCurve *curve : read) {
            for (const CurvePoint &point : curve->Points())
                EXPECT_TRUE(point.position.IsFinite());
        }
        qDeleteAll(read);
    }

    //! Damage that is never noticed, or always, would show that it is of no use.
    void expectBothOutcomes()
    {
        EXPECT_GT(m_refused, Rounds / 20);
        EXPECT_LT(m_refused, Rounds);
    }

    QByteArray writtenSphere(const QString &name)
    {
        Geometry shape;
        shape.AddLevel(sphere(4, 5));
        write({&shape}, path(name));
        return bytesOf(path(name));
    }

    QByteArray writtenCurves(const QString &name)
    {
        OrvaneCurve open;
        OrvaneCurve closed;
        closed.SetClosed(true);
        for (int i = 0; i < 8; ++i) {
            open.AppendPoint(CurvePoint(randomVector(m_random)));
            closed.AppendPoint(CurvePoint(randomVector(m_random)));
        }
        QString error;
        EXPECT_TRUE(writeCurves({&open, &closed}, path(name), &error));
        return bytesOf(path(name));
    }

private:
    std::mt19937 m_random;
    int m_refused = 0;
};

} // namespace

TEST_F(Damage, objMesh)
{
    const QByteArray whole = writtenSphere(QStringLiteral("whole.obj"));
    for (int round = 0; round < Rounds; ++round)
        checkMesh(QStringLiteral("a.obj"), damaged(whole));
    expectBothOutcomes();
}

TEST_F(Damage, plyMesh)
{
    const QByteArray whole = writtenSphere(QStringLiteral("whole.ply"));
    for (int round = 0; round < Rounds; ++round)
        checkMesh(QStringLiteral("a.ply"), damaged(whole));
    expectBothOutcomes();
}

TEST_F(Damage, stlMesh)
{
    const QByteArray whole = writtenSphere(QStringLiteral("whole.stl"));
    for (int round = 0; round < Rounds; ++round)
        checkMesh(QStringLiteral("a.stl"), damaged(whole));
    expectBothOutcomes();
}

TEST_F(Damage, gltfMesh)
{
    const QByteArray whole = writtenSphere(QStringLiteral("whole.glb"));
    for (int round = 0; round < Rounds; ++round)
        checkMesh(QStringLiteral("a.glb"), damaged(whole));
    expectBothOutcomes();
}

TEST_F(Damage, jsonCurves)
{
    const QByteArray whole = writtenCurves(QStringLiteral("whole.json"));
    for (int round = 0; round < Rounds; ++round)
        checkCurves(QStringLiteral("a.json"), damaged(whole));
    expectBothOutcomes();
}

TEST_F(Damage, objCurves)
{
    const QByteArray whole = writtenCurves(QStringLiteral("whole.obj"));
    for (int round = 0; round < Rounds; ++round)
        checkCurves(QStringLiteral("a.obj"), damaged(whole));
    expectBothOutcomes();
}
