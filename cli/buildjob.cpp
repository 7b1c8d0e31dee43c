// SPDX-License-Identifier: MIT
#include "cli/buildjob.h"

#include "cli/batchwords.h"
#include "cli/dump.h"
#include "cli/exitcode.h"
#include "cli/outputs.h"
#include "cli/parameters.h"
#include "cli/picture.h"
#include "cli/terminal.h"
#include "graph/graphwalk.h"
#include "host/files/curvefile.h"
#include "host/files/meshfile.h"
#include "host/files/safefile.h"
#include "host/files/scenefile.h"
#include "host/meshchecker/meshchecker.h"
#include "operation/manualretopooperation.h"
#include "operation/stageclock.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

int BuildJob::run()
{
    QString error;
    if (!outputsCanBeWritten(&error) || !read(&error))
        return fileTrouble(error);
    return m_report.binding.bound == 0 ? refuseUnbound() : build();
}

int BuildJob::refuseUnbound()
{
    m_report.run.failure =
        QStringLiteral("%1: none of its %2 lies within %3 % of the diagonal of %4; expected curves "
                       "drawn on that mesh.")
            .arg(m_options.curves, counted(m_report.binding.points, "point"))
            .arg(double(m_options.bindPercent))
            .arg(m_options.mesh);
    printLine(stderr, m_report.run.failure);
    if (m_options.json)
        print(stdout, QString::fromUtf8(reportJson(m_report)));
    return ExitNothingMade;
}

// Before the work, so that nobody waits for a result that has nowhere to go.
bool BuildJob::outputsCanBeWritten(QString *error) const
{
    if (!isMeshOutput(m_options.output, error))
        return false;
    if (!m_options.picture.isEmpty() && !isPictureOutput(m_options.picture, error))
        return false;
    if (!m_options.dump.isEmpty() && !orvane::isPlaceForFile(m_options.dump, error))
        return false;
    if (!m_options.scene.isEmpty() && !isSceneOutput(m_options.scene, error))
        return false;
    return areOutputsApart({m_options.mesh, m_options.curves},
                           {m_options.output, m_options.dump, m_options.picture, m_options.scene},
                           error);
}

bool BuildJob::read(QString *error)
{
    StageClock clock;
    orvane::Scene *scene = orvane::Kernel()->Scene();
    orvane::Geometry *source = orvane::readMesh(m_options.mesh, error, &m_report.facesLeftOut);
    if (!source)
        return false;
    scene->AddGeometry(source);
    m_source = source->CurrentLevel();
    m_report.meshFile = m_options.mesh;
    m_report.sourceFaces = m_source->Polygons().Count();
    m_report.sourceVertices = m_source->VertexCount();
    noteTime("read mesh", clock.lap());

    m_curves = orvane::readCurves(m_options.curves, error);
    if (m_curves.isEmpty())
        return false;
    for (orvane::OrvaneCurve *curve : qAsConst(m_curves)) {
        scene->AddCurve(curve);
        m_report.curveNames.append(curve->Name());
    }
    m_report.curvesFile = m_options.curves;
    noteTime("read curves", clock.lap());

    const float reach = m_source->Bounds().Diagonal() * m_options.bindPercent / 100.0f;
    m_report.binding = orvane::bindCurves(m_curves, *m_source, reach);
    noteTime("bind", clock.lap());
    return true;
}

int BuildJob::build()
{
    const Parameters p(m_options);
    ManualRetopoOperation operation(m_curves.toList(), p.maximumEdges, p.mergeDistance,
                                    p.intersectionTolerance, p.overrunTolerance,
                                    p.useSelfIntersections);
    orvane::Kernel()->DoOperation(&operation, true, false);
    m_report.run = lastRunReport();
    if (m_report.run.crossings == 0 && !m_options.useSelfIntersections)
        m_report.run.failure += QStringLiteral(" (a curve crosses itself only with "
                                               "--self-intersections)");
    noteMeshes(operation);
    warnOfFaults();

    QString error;
    if (!write(operation, &error))
        return fileTrouble(error);
    if (m_options.json)
        print(stdout, QString::fromUtf8(reportJson(m_report)));
    else
        print(stdout, reportText(m_report));
    if (!m_report.meshes.isEmpty())
        return ExitDone;
    for (const PieceReport &piece : qAsConst(m_report.run.pieces)) {
        if (piece.outcome == PieceReport::Discarded)
            return ExitFaults;
    }
    return ExitNothingMade;
}

void BuildJob::noteMeshes(const ManualRetopoOperation &operation)
{
    int piece = 0;
    for (const orvane::Geometry *geometry : operation.AddGeometry()) {
        while (m_report.run.pieces[piece].outcome != PieceReport::Built)
            ++piece;
        MadeMesh made;
        made.name = geometry->Name();
        made.piece = piece++;
        const orvane::MeshChecker checker;
        for (const orvane::MeshFault &fault : checker.Find(geometry->CurrentLevel())) {
            made.faultBits |= fault.bit;
            made.faults += faultInWords(fault);
        }
        m_report.meshes.append(made);
    }
}

// On the error stream as well: the report may go where nobody looks.
void BuildJob::warnOfFaults() const
{
    int count = 0;
    for (const MadeMesh &mesh : m_report.meshes)
        count += mesh.faultBits != 0;
    if (count > 0)
        printLine(stderr, acceptedFaultsInWords(count));
}

bool BuildJob::write(const ManualRetopoOperation &operation, QString *error)
{
    StageClock clock;
    QVector<const orvane::Geometry *> geometries;
    for (const orvane::Geometry *geometry : operation.AddGeometry())
        geometries.append(geometry);
    if (!geometries.isEmpty()) {
        if (!orvane::writeMeshes(geometries, m_options.output, error))
            return false;
        m_report.written += m_options.output;
    }
    // The others also show why a run made nothing.
    if (!m_options.scene.isEmpty()) {
        if (!orvane::writeScene(m_options.scene, error))
            return false;
        m_report.written += m_options.scene;
    }
    if (!m_options.dump.isEmpty()) {
        if (!orvane::writeWhole(m_options.dump, dumpRun(m_options, m_curves, operation), error))
            return false;
        m_report.written += m_options.dump;
    }
    noteTime("write", clock.lap());
    if (!m_options.picture.isEmpty()) {
        if (!writePicture(operation, error))
            return false;
        m_report.written += m_options.picture;
        noteTime("picture", clock.lap());
    }
    return true;
}

bool BuildJob::writePicture(const ManualRetopoOperation &operation, QString *error) const
{
    PictureContent content;
    content.source = m_source;
    for (const orvane::Geometry *geometry : operation.AddGeometry())
        content.meshes.append(geometry->CurrentLevel());
    for (const orvane::OrvaneCurve *curve : m_curves)
        content.curves.append(curve);
    for (IntersectionNode *seed : operation.Subgraphs()) {
        walkGraph(seed, [&content](const IntersectionNode *node) {
            content.crossings.append(node->position());
        });
    }
    return writeImage(renderPicture(content, m_options.pictureSize), m_options.picture, error);
}

void BuildJob::noteTime(const char *what, double seconds)
{
    m_report.otherTimes.append({QString::fromUtf8(what), seconds});
}
