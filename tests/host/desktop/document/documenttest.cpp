// SPDX-License-Identifier: MIT
#include "tests/host/desktop/document/documenttest.h"

#include "tests/support/numberoperation.h"
#include "tests/support/shapes.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

using namespace orvane;

void DocumentTest::step(bool merge)
{
    NumberOperation operation(1);
    EXPECT_TRUE(Kernel()->DoOperation(&operation, false, merge));
}

QString DocumentTest::meshFile(const QString &name, SubdivisionLevel *mesh)
{
    Geometry geometry;
    geometry.SetName(QStringLiteral("Shape"));
    geometry.AddLevel(mesh);
    write({&geometry}, name);
    return name;
}

QString DocumentTest::ballFile()
{
    return meshFile(QStringLiteral("ball.obj"), sphere(24, 32));
}

QString DocumentTest::curveFile()
{
    return file(QStringLiteral("strokes.json"),
                "{\"curves\": ["
                "{\"name\": \"loop\", \"closed\": true, "
                "\"points\": [[1, 0, 0.1], [0, 1, 0.1], [-1, 0, 0.1], [0, -1, 0.1]]},"
                "{\"name\": \"line\", \"points\": [[1, 0, 0], [9, 9, 9], [0, 0, 1]]}]}");
}

QString DocumentTest::sceneFile()
{
    open({ballFile(), curveFile()});
    save(QStringLiteral("saved.orvane"));
    return QStringLiteral("saved.orvane");
}

void DocumentTest::open(const QStringList &paths)
{
    const FileReport report = document.Open(paths);
    EXPECT_TRUE(report.done);
    EXPECT_TRUE(report.problems.isEmpty()) << qPrintable(report.problems.join(QLatin1Char('\n')));
}

void DocumentTest::save(const QString &name)
{
    EXPECT_TRUE(document.SaveAs(name, &error)) << qPrintable(error);
}

QVector<OrvaneCurve *> DocumentTest::sceneCurves() const
{
    QVector<OrvaneCurve *> result;
    const Scene &scene = *Kernel()->Scene();
    for (int i = 0; i < scene.NodeCount(); ++i) {
        if (auto *curve = dynamic_cast<OrvaneCurve *>(scene.NodeAt(i)))
            result.append(curve);
    }
    return result;
}
