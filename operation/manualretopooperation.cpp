// SPDX-License-Identifier: MIT
#include "operation/manualretopooperation.h"

#include "graph/curvecollection.h"
#include "graph/intersectionnode.h"
#include "graph/intersectionsearch.h"
#include "graph/nodemerge.h"
#include "graph/nodestore.h"
#include "graph/pieces.h"
#include "mesh/buildmesh.h"
#include "mesh/neighbourordering.h"
#include "operation/currentreport.h"
#include "operation/nestedpieces.h"
#include "operation/reportsummary.h"
#include "operation/stageclock.h"

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/viewport.h>

#include <QScopedPointer>

namespace {

const orvane::ClassDesc OperationClass(orvane::Operation::StaticClass(),
                                       orvane::Operation::StaticClass(), "ManualRetopoOperation",
                                       QT_TRANSLATE_NOOP("ManualRetopoOperation",
                                                         "ManualRetopoOperation"),
                                       &ManualRetopoOperation::CreateInstances, 0, 0);

// report: of what was made; empty when it was taken back.
void refreshHost(const QString &report)
{
    orvane::Kernel()->Interface()->ReportShow(report);
    orvane::Kernel()->ViewPort()->Redraw(orvane::RedrawAll, 0.0f, 0.0f, 0.0f, 0.0f);
    orvane::Kernel()->Interface()->RefreshUI();
}

orvane::Geometry *newGeometry()
{
    return dynamic_cast<orvane::Geometry *>(
        orvane::Kernel()->CreateClassInstance(orvane::Geometry::StaticClass()));
}

} // namespace

ManualRetopoOperation::ManualRetopoOperation() = default;

ManualRetopoOperation::ManualRetopoOperation(int maximumEdges, float mergeDistance,
                                             float intersectionTolerance, float overrunTolerance,
                                             bool useSelfIntersections)
    : m_maxEdges(maximumEdges),
      m_mergeDistance(mergeDistance),
      m_intersectionTolerance(intersectionTolerance),
      m_overrunTolerance(overrunTolerance),
      m_useSelfIntersections(useSelfIntersections)
{}

ManualRetopoOperation::ManualRetopoOperation(const QList<orvane::OrvaneCurve *> &curves,
                                             int maximumEdges, float mergeDistance,
                                             float intersectionTolerance, float overrunTolerance,
                                             bool useSelfIntersections)
    : ManualRetopoOperation(maximumEdges, mergeDistance, intersectionTolerance, overrunTolerance,
                            useSelfIntersections)
{
    m_curves = curves;
}

ManualRetopoOperation::ManualRetopoOperation(const ManualRetopoOperation &other)
    : orvane::Operation(other)
{
    *this = other;
}

ManualRetopoOperation &ManualRetopoOperation::operator=(const ManualRetopoOperation &other)
{
    NodeStore::instance().hold(other.m_subgraphs);
    NodeStore::instance().release(m_subgraphs);
    orvane::Operation::operator=(other);
    m_firstExecution = other.m_firstExecution;
    m_curves = other.m_curves;
    m_addGeometry = other.m_addGeometry;
    m_companionIDs = other.m_companionIDs;
    m_geometryIDs = other.m_geometryIDs;
    m_meshIDs = other.m_meshIDs;
    m_subgraphs = other.m_subgraphs;
    m_maxEdges = other.m_maxEdges;
    m_mergeDistance = other.m_mergeDistance;
    m_intersectionTolerance = other.m_intersectionTolerance;
    m_overrunTolerance = other.m_overrunTolerance;
    m_useSelfIntersections = other.m_useSelfIntersections;
    return *this;
}

ManualRetopoOperation::~ManualRetopoOperation()
{
    NodeStore::instance().release(m_subgraphs);
}

bool ManualRetopoOperation::ExecuteAndInvert()
{
    return m_firstExecution ? create() : takeBack();
}

bool ManualRetopoOperation::create()
{
    generateMeshes();
    if (m_addGeometry.isEmpty()) {
        orvane::Kernel()->ExplainFailure(lastRunReport().failure);
        return false;
    }
    refreshHost(summaryOf(lastRunReport()));
    m_firstExecution = false;
    return true;
}

bool ManualRetopoOperation::takeBack()
{
    m_geometryIDs.clear();
    m_companionIDs.clear();
    m_meshIDs.clear();
    for (orvane::Geometry *geometry : qAsConst(m_addGeometry)) {
        const orvane::SubdivisionLevel *level = geometry ? geometry->CurrentLevel() : nullptr;
        m_geometryIDs.append(geometry ? geometry->ID() : 0);
        m_companionIDs.append(geometry ? geometry->Placement()->ID() : 0);
        m_meshIDs.append(level ? level->ID() : 0);
        orvane::Kernel()->Scene()->RemoveGeometry(geometry);
        delete geometry;
    }
    m_addGeometry.clear();
    refreshHost(QString());
    m_firstExecution = true;
    return true;
}

void ManualRetopoOperation::generateMeshes()
{
    RunReport &report = startReport(m_curves, m_maxEdges);
    NodeStore::instance().beginRun();
    StageClock clock;

    const float length = float(averageEdgeLength(m_curves.toVector()));
    report.averageEdgeLength = double(length);
    report.seconds.measure = clock.lap();

    QList<IntersectionNode *> nodes;
    SearchNotes notes;
    findIntersections(m_curves, nodes, length * m_intersectionTolerance, m_overrunTolerance,
                      m_useSelfIntersections, &notes);
    noteSearch(report, notes, nodes, m_curves);
    clock.lap();

    mergeCloseNodes(nodes, length * m_mergeDistance);
    report.merged = report.crossings - nodes.size();
    report.seconds.merge = clock.lap();

    replaceSubgraphs(nodes);
    report.seconds.pieces = clock.lap();

    const int firstNew = m_addGeometry.size();
    for (int i = 0; i < m_subgraphs.size(); ++i) {
        sortGraph(m_subgraphs[i]);
        report.seconds.order += clock.lap();
        generateMeshFromGraph(m_subgraphs[i]);
        report.seconds.build += clock.lap();
    }
    noteNestedPieces(report, m_subgraphs, m_addGeometry.mid(firstNew));
    finishReport(report);
}

void ManualRetopoOperation::replaceSubgraphs(const QList<IntersectionNode *> &nodes)
{
    NodeStore::instance().release(m_subgraphs);
    findPieces(nodes, m_subgraphs);
    NodeStore::instance().setSeeds(m_subgraphs);
    NodeStore::instance().hold(m_subgraphs);
}

void ManualRetopoOperation::sortGraph(IntersectionNode *start)
{
    orderNeighbours(start);
}

void ManualRetopoOperation::generateMeshFromGraph(IntersectionNode *start)
{
    if (!start)
        return;
    const BuiltPiece piece = buildMeshFromGraph(start, m_maxEdges);
    PieceReport &report = notePiece(piece, *start);
    QScopedPointer<orvane::Mesh> mesh(piece.mesh);
    auto *level = dynamic_cast<orvane::SubdivisionLevel *>(piece.mesh);
    QScopedPointer<orvane::Geometry> geometry(level ? newGeometry() : nullptr);
    if (!geometry)
        return;
    mesh.take();
    geometry->AddLevel(level);

    const orvane::OrvaneCurve *curve = start->curve(0);
    if (const orvane::Geometry *source = curve ? curve->Geometry() : nullptr) {
        geometry->TakePlacementOf(*source);
        geometry->SetName(QStringLiteral("%1-Retopo").arg(source->Name()));
    } else {
        geometry->SetName(QStringLiteral("manual-Retopo"));
    }
    report.outcome = PieceReport::Built;
    addToScene(geometry.take());
}

void ManualRetopoOperation::addToScene(orvane::Geometry *geometry)
{
    orvane::Scene *scene = orvane::Kernel()->Scene();
    scene->AddGeometry(geometry);
    scene->SetActiveGeometry(geometry);
    applySavedIDs(geometry);
    m_addGeometry.append(geometry);
}

// Later steps of the undo history find the new objects by the numbers of the old.
void ManualRetopoOperation::applySavedIDs(orvane::Geometry *geometry) const
{
    const int index = m_addGeometry.size();
    if (m_geometryIDs.size() > index)
        geometry->SetID(m_geometryIDs[index]);
    if (m_companionIDs.size() > index)
        geometry->Placement()->SetID(m_companionIDs[index]);
    if (m_meshIDs.size() > index)
        geometry->CurrentLevel()->SetID(m_meshIDs[index]);
}

const orvane::ClassDesc *ManualRetopoOperation::RuntimeClass() const
{
    return StaticClass();
}

const orvane::ClassDesc *ManualRetopoOperation::StaticClass()
{
    return &OperationClass;
}

orvane::Node *ManualRetopoOperation::CreateInstances(unsigned count)
{
    return orvane::createInstances<ManualRetopoOperation>(count);
}
