// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/viewport/axisgizmo.h"
#include "host/desktop/viewport/background.h"
#include "host/desktop/viewport/clientrenderer.h"
#include "host/desktop/viewport/curverenderer.h"
#include "host/desktop/viewport/faultrenderer.h"
#include "host/desktop/viewport/groundgrid.h"
#include "host/desktop/viewport/meshoncard.h"
#include "host/desktop/viewport/surfacerenderer.h"
#include "host/desktop/viewport/wirerenderer.h"

#include <map>
#include <memory>

namespace orvane {

class Geometry;

//! Draws the kernel's scene into the current context. Made and destroyed while that is current.
class SceneRenderer
{
public:
    //! scene: what the ground grid lies around. highlighted and client may be null.
    void Draw(const Frame &frame, const AxisAlignedBoundingBox &scene,
              const OrvaneCurve *highlighted, const ViewClient *client);

private:
    //! Leaves the depths of all but new meshes; false, and nothing done, where there is none.
    bool drawCoveredDepths(const Frame &frame, const QVector<ShownMesh> &meshes);
    void dropOthers(const QVector<Geometry *> &geometries);
    QVector<ShownMesh> shownMeshes(const Frame &frame);
    ShownMesh shownMesh(const Frame &frame, const Geometry &geometry, MeshRole role);

    std::map<const Geometry *, std::unique_ptr<MeshOnCard>> m_cards;
    Background m_background;
    GroundGrid m_grid;
    SurfaceRenderer m_surfaces;
    WireRenderer m_wires;
    FaultRenderer m_faults;
    CurveRenderer m_curves;
    ClientRenderer m_client;
    AxisGizmo m_gizmo;
};

} // namespace orvane
