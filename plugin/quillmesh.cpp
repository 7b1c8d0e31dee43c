// SPDX-License-Identifier: MIT
#include "plugin/quillmesh.h"

#include "graph/curvecollection.h"
#include "operation/manualretopooperation.h"
#include "plugin/commandtext.h"
#include "plugin/overlay.h"
#include "plugin/overlaylist.h"
#include "ui/manualretopodialog.h"

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/selectalloperation.h>
#include <orvane/kernel/viewport.h>

#include <QList>

using Curves = QList<orvane::OrvaneCurve *>;

namespace {

const orvane::ClassDesc ToolClass(orvane::Node::StaticClass(), orvane::Node::StaticClass(),
                                  "Quillmesh", "Quillmesh", orvane::createInstances<Quillmesh>, 0,
                                  0);

Curves selectedOf(const Curves &curves)
{
    Curves selected;
    for (orvane::OrvaneCurve *curve : curves) {
        if (curve->Selected())
            selected.append(curve);
    }
    return selected;
}

//! The selected curves of the scene, or all when none is selected; without those of no use.
Curves curvesToUse()
{
    Curves curves = collectCurves();
    const Curves selected = selectedOf(curves);
    if (!selected.isEmpty())
        curves = selected;
    for (int i = curves.size() - 1; i >= 0; --i) {
        if (!curves.at(i)->IsUsable())
            curves.removeAt(i);
    }
    return curves;
}

CommandValues valuesOf(const ManualRetopoDialog &dialog)
{
    CommandValues values;
    values.maximumEdges = dialog.maximumEdges();
    values.mergeDistance = dialog.mergeDistance();
    values.intersectionTolerance = dialog.intersectionTolerance();
    values.overrunTolerance = dialog.overrunTolerance();
    values.useSelfIntersections = dialog.useSelfIntersections();
    return values;
}

ManualRetopoOperation operationOn(const Curves &curves, const CommandValues &values)
{
    return ManualRetopoOperation(curves, values.maximumEdges, values.mergeDistance,
                                 values.intersectionTolerance, values.overrunFraction(),
                                 values.useSelfIntersections);
}

void updateMeshesOf(const ManualRetopoOperation &operation)
{
    for (const orvane::Geometry *geometry : operation.AddGeometry()) {
        if (orvane::SubdivisionLevel *mesh = geometry->CurrentLevel())
            mesh->Update(true, 0);
    }
}

} // namespace

Quillmesh::Quillmesh()
    : orvane::Node(QString(), QString()),
      m_endRender(this, QString()),
      m_nextCommand(this, QStringLiteral("nextcomand"))
{
    m_endRender.SetVisible(false);
    m_endRender.Connect(&orvane::Kernel()->ViewPort()->EndRenderEvent(), false);

    m_dialog = new ManualRetopoDialog(orvane::Kernel()->Interface()->MainWindow());
    connect(m_dialog, &ManualRetopoDialog::createMesh, this, &Quillmesh::createMesh);
    connect(m_dialog, &ManualRetopoDialog::renderIntersectionsCheckBox, this,
            &Quillmesh::renderIntersectionsCheckBox);
    connect(m_dialog, &ManualRetopoDialog::dialogClosed, this, &Quillmesh::dialogClosed);

    m_nextCommand.SetVisible(false);
    m_nextCommand.Connect(&orvane::Kernel()->CommandAttribute(), false);
}

Quillmesh::~Quillmesh()
{
    destroyPrograms(m_overlay);
}

void Quillmesh::showDialog()
{
    if (!m_dialog)
        return;
    m_dialog->show();
    m_dialog->activateWindow();
}

void Quillmesh::createMesh()
{
    // A host that lets clicks through while an operation runs would refuse another one: then
    // nothing may be recorded either.
    if (!m_dialog || orvane::Kernel()->IsOperationRunning())
        return;
    orvane::SelectAllOperation deselection(false);
    orvane::Kernel()->DoOperation(&deselection, false, false);
    const Curves curves = curvesToUse();
    const CommandValues values = valuesOf(*m_dialog);
    orvane::Kernel()->RecordCommand(commandText(values));

    ManualRetopoOperation operation = operationOn(curves, values);
    orvane::Kernel()->DoOperation(&operation, true, false);
    updateMeshesOf(operation);
    OverlayList::instance().replace(operation.Subgraphs());
}

void Quillmesh::renderIntersectionsCheckBox(int state)
{
    setRenderIntersections(state != 0);
}

void Quillmesh::dialogClosed()
{
    setRenderIntersections(false);
}

void Quillmesh::setRenderIntersections(bool on)
{
    m_renderIntersections = on;
    orvane::Kernel()->ViewPort()->Redraw(orvane::RedrawAll, 0.0f, 0.0f, 0.0f, 0.0f);
}

void Quillmesh::OnNodeEvent(const orvane::Attribute &attribute, orvane::NodeEventType type)
{
    if (type != orvane::NodeEventValueChanged || &attribute != &m_nextCommand)
        return;
    const std::optional<CommandValues> values = readCommand(m_nextCommand.Value());
    if (!values || orvane::Kernel()->IsOperationRunning())
        return;
    ManualRetopoOperation operation = operationOn(collectCurves(), *values);
    orvane::Kernel()->DoOperation(&operation, false, false);
    OverlayList::instance().replace(operation.Subgraphs());
}

void Quillmesh::OnEvent(const orvane::EventGate &gate)
{
    if (&gate != &m_endRender || !m_renderIntersections)
        return;
    for (IntersectionNode *start : OverlayList::instance().nodes()) {
        createPrograms(m_overlay, this);
        drawOverlay(m_overlay, start);
    }
}

const orvane::ClassDesc *Quillmesh::RuntimeClass() const
{
    return StaticClass();
}

const orvane::ClassDesc *Quillmesh::StaticClass()
{
    return &ToolClass;
}
