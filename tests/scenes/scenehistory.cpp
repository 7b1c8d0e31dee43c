// SPDX-License-Identifier: MIT
#include "tests/scenes/scenehistory.h"

#include "host/files/scenefile.h"
#include "operation/manualretopooperation.h"
#include "tests/support/shapes.h"
#include "tests/support/strokes.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/addoperations.h>
#include <orvane/operations/deleteoperations.h>
#include <orvane/operations/editcurveoperation.h>
#include <orvane/operations/renameoperation.h>
#include <orvane/operations/selectoperation.h>
#include <orvane/operations/showoperation.h>
#include <orvane/operations/transformoperation.h>

#include <QFile>

using namespace orvane;

namespace {

Geometry *newGeometry()
{
    auto *geometry = new Geometry; // the operation takes it over
    geometry->AddLevel(tetrahedron());
    return geometry;
}

void run(Operation &&operation)
{
    EXPECT_TRUE(Kernel()->DoOperation(&operation, true, false));
}

} // namespace

void SceneHistory::makeHistory() const
{
    std::mt19937 random(11);
    Sheet first(8);
    first.grid(4, 4);
    Sheet second(6, randomPlacement(random), QStringLiteral("Turned"));
    second.grid(2, 3);
    const QList<OrvaneCurve *> all = first.curves() + second.curves();
    Scene *scene = Kernel()->Scene();

    run(ManualRetopoOperation(all, 5, 0.3f, 0.05f, 0.35f, false));
    run(RenameOperation(scene->ActiveGeometry(), QStringLiteral("Light mesh")));
    run(TransformOperation(second.geometry(), randomPlacement(random)));
    run(SelectOperation({first.geometry(), first.curves()[2]}));
    run(AddGeometryOperation(newGeometry()));
    run(ManualRetopoOperation(first.curves(), 4, 0.1f, 0.05f, 0.0f, true));
    run(DeleteGeometryOperation({scene->ActiveGeometry()}));
    run(ShowOperation({first.curves()[0]}, false));
    run(EditCurveOperation(first.curves()[1], first.curves()[3]->Points(), false));
    run(DeleteCurveOperation({first.curves()[5], first.curves()[2]}));
    run(ManualRetopoOperation(second.curves(), 5, 0.3f, 0.05f, 0.35f, false));
    EXPECT_TRUE(Kernel()->Undo());
    EXPECT_TRUE(Kernel()->Undo());
}

QByteArray SceneHistory::save(const QString &name) const
{
    QString error;
    EXPECT_TRUE(writeScene(path(name), &error)) << qPrintable(error);
    return bytesOf(path(name));
}

QByteArray SceneHistory::bytesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

QString SceneHistory::file(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return path(name);
}

int undoAll()
{
    int steps = 0;
    while (Kernel()->Undo())
        ++steps;
    return steps;
}

int redoAll()
{
    int steps = 0;
    while (Kernel()->Redo())
        ++steps;
    return steps;
}
