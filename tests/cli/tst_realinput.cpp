// SPDX-License-Identifier: MIT
#include "tests/cli/batchrun.h"
#include "tests/support/models.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

struct Pair
{
    const char *mesh;
    const char *curves;
    int leastFaces; // far below what is there, far above what a broken search leaves
};

void PrintTo(const Pair &pair, std::ostream *stream)
{
    *stream << pair.mesh << " with " << pair.curves;
}

class RealInput : public BatchTest, public testing::WithParamInterface<Pair>
{};

QString key(const char *name)
{
    return QString::fromUtf8(name);
}

} // namespace

TEST_P(RealInput, makesOneMeshOfManyFaces)
{
    const QString mesh = modelFile(QString::fromUtf8(GetParam().mesh));
    const QString curves = modelFile(QString::fromUtf8(GetParam().curves));
    if (mesh.isEmpty() || curves.isEmpty())
        GTEST_SKIP() << "the folder of real models is not at hand (QUILLMESH_MODELS)";
    const BatchResult result = run({QStringLiteral("build"), mesh, curves, QStringLiteral("-o"),
                                    QStringLiteral("out.obj"), QStringLiteral("--json")});
    ASSERT_EQ(result.exitCode, 0) << qPrintable(result.errors);
    const QJsonObject json = QJsonDocument::fromJson(result.output.toUtf8()).object();
    EXPECT_EQ(json[key("pointsBound")], json[key("points")]);
    int faces = 0;
    for (const QJsonValue &count : json[key("faces")].toObject())
        faces += count.toInt();
    EXPECT_GE(faces, GetParam().leastFaces);
    EXPECT_EQ(read(QStringLiteral("out.obj")).count("\nf "), faces);
    EXPECT_EQ(json[key("meshes")].toArray().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Batch, RealInput,
                         testing::Values(Pair{"spot_triangles.obj", "spot_net.json", 200},
                                         Pair{"spot_triangles.obj", "spot_strokes.json", 140},
                                         Pair{"spot_quads.obj", "spot_net.json", 200},
                                         Pair{"spot_quads.obj", "spot_strokes.json", 140},
                                         Pair{"bunny.obj", "bunny_net.json", 450},
                                         Pair{"fandisk.obj", "fandisk_net.json", 220}));
