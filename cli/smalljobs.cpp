// SPDX-License-Identifier: MIT
#include "cli/smalljobs.h"

#include "cli/batchwords.h"
#include "cli/exitcode.h"
#include "cli/outputs.h"
#include "cli/picture.h"
#include "cli/terminal.h"
#include "host/files/curvebinding.h"
#include "host/files/curvefile.h"
#include "host/files/meshfile.h"
#include "host/meshchecker/meshchecker.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

namespace {

// The mesh is the scene's; null when it cannot be read.
orvane::Mesh *readIntoScene(const QString &path, QString *error, int *leftOut = nullptr)
{
    orvane::Geometry *geometry = orvane::readMesh(path, error, leftOut);
    orvane::Kernel()->Scene()->AddGeometry(geometry);
    return geometry ? geometry->CurrentLevel() : nullptr;
}

} // namespace

int runCheck(const QString &meshFile)
{
    QString error;
    int leftOut = 0;
    const orvane::Mesh *mesh = readIntoScene(meshFile, &error, &leftOut);
    if (!mesh)
        return fileTrouble(error);
    const orvane::MeshChecker checker;
    const QVector<orvane::MeshFault> faults = checker.Find(mesh);
    int bits = leftOut > 0 ? int(orvane::MeshChecker::TwoSidedFace) : 0;
    for (const orvane::MeshFault &fault : faults)
        bits |= fault.bit;
    printLine(stdout, QStringLiteral("%1: %2 faces, %3 vertices, fault bits 0x%4")
                          .arg(meshFile)
                          .arg(mesh->Polygons().Count())
                          .arg(mesh->VertexCount())
                          .arg(bits, 5, 16, QLatin1Char('0')));
    for (const orvane::MeshFault &fault : faults)
        printLine(stdout, QStringLiteral("  ") + faultInWords(fault));
    if (leftOut > 0)
        printLine(stdout, QStringLiteral("  ") + leftOutInWords(leftOut));
    if (bits == 0)
        printLine(stdout, QStringLiteral("  no faults"));
    return bits == 0 ? ExitDone : ExitFaults;
}

int runPicture(const PictureOptions &options)
{
    QString error;
    if (!isPictureOutput(options.output, &error))
        return fileTrouble(error);
    PictureContent content;
    const orvane::Mesh *mesh = readIntoScene(options.mesh, &error);
    if (!mesh)
        return fileTrouble(error);
    content.source = mesh;
    if (!options.curves.isEmpty()) {
        const QVector<orvane::OrvaneCurve *> curves = orvane::readCurves(options.curves, &error);
        if (curves.isEmpty())
            return fileTrouble(error);
        for (orvane::OrvaneCurve *curve : curves) {
            orvane::Kernel()->Scene()->AddCurve(curve);
            content.curves.append(curve);
        }
    }
    if (!writeImage(renderPicture(content, options.size), options.output, &error))
        return fileTrouble(error);
    printLine(stdout, QStringLiteral("wrote %1").arg(options.output));
    return ExitDone;
}
