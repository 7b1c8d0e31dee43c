// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/scenerenderer.h"

#include "host/desktop/viewport/frame.h"
#include "host/desktop/viewport/meshroles.h"
#include "host/desktop/viewport/scenebounds.h"
#include "host/desktop/viewport/viewoptions.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>

#include <QOpenGLContext>

#include <algorithm>

namespace orvane {

namespace {

// Between its corners a face of a new mesh runs below a round source. At the rim of a ball, where
// the edge runs along the view, its middle lies half its length behind what is seen of the ball.
const double SagOfEdge = 0.5;    // fraction of its longest edge
const double LeastSinking = 2.0; // pixels
const double MostSinking = 0.06; // fraction of the depth: or the far side would show through
const double NearestEdge = 0.1;  // fraction of the pivot's depth, for what reaches behind the eye

bool showsFaults()
{
    return Kernel()->Preferences()->renderMeshFaults.Value();
}

QVector<const OrvaneCurve *> sceneCurves()
{
    QVector<const OrvaneCurve *> curves;
    const Scene &scene = *Kernel()->Scene();
    for (int i = 0; i < scene.NodeCount(); ++i) {
        if (const auto *curve = dynamic_cast<const OrvaneCurve *>(scene.NodeAt(i)))
            curves.append(curve);
    }
    return curves;
}

// Pixels that a source is drawn farther away than it is, for a new mesh of such edges.
double sinking(const Camera &camera, double edge)
{
    const double pixel = camera.PixelSize(camera.PivotDepth());
    return std::min(std::max(LeastSinking, SagOfEdge * edge / pixel),
                    MostSinking * camera.PivotDepth() / pixel);
}

double pixelSizeAt(const Camera &camera, const Vector &place)
{
    const double depth = std::max(camera.DepthOf(place), NearestEdge * camera.PivotDepth());
    return camera.PixelSize(depth);
}

bool isMirrored(const Matrix &matrix)
{
    return Dot(matrix.Row(0) & matrix.Row(1), matrix.Row(2)) < 0.0f;
}

void beginFrame(QOpenGLFunctions_2_1 &gl)
{
    gl.glDisable(GL_CULL_FACE);
    gl.glDisable(GL_BLEND);
    gl.glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    gl.glEnable(GL_POINT_SPRITE);
    // The clipping planes fit the scene; grids, tools and plug-ins reach out of it.
    if (QOpenGLContext::currentContext()->hasExtension("GL_ARB_depth_clamp"))
        gl.glEnable(GL_DEPTH_CLAMP);
    gl.glEnable(GL_DEPTH_TEST);
    gl.glDepthFunc(GL_LEQUAL);
    gl.glDepthMask(GL_TRUE);
    gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl.glClearColor(0.0f, 0.0f, 0.0f, 1.0f);
    gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    // What blends must leave the picture opaque.
    gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE);
}

} // namespace

void SceneRenderer::Draw(const Frame &frame, const AxisAlignedBoundingBox &scene,
                         const OrvaneCurve *highlighted, const ViewClient *client)
{
    QOpenGLFunctions_2_1 &gl = frame.gl;
    dropOthers(Kernel()->Scene()->Geometries());
    const QVector<ShownMesh> meshes = shownMeshes(frame);
    beginFrame(gl);
    m_background.Draw(frame);
    if (frame.options.showGrid) {
        gl.glEnable(GL_BLEND);
        m_grid.Draw(frame, scene);
        gl.glDisable(GL_BLEND);
    }
    m_surfaces.Draw(frame, meshes);
    // Lines lie on surfaces by their lift and on one another by their order.
    gl.glEnable(GL_BLEND);
    gl.glDepthMask(GL_FALSE);
    m_wires.Draw(frame, meshes);
    const bool hasNewMesh = drawCoveredDepths(frame, meshes);
    m_curves.Draw(frame, sceneCurves(), highlighted, hasNewMesh);
    if (showsFaults())
        m_faults.Draw(frame, meshes);
    m_client.DrawLines(frame, client ? client->Lines() : QVector<ViewLine>());
    if (frame.options.showGizmo)
        m_gizmo.Draw(frame);
    m_client.DrawShapes(frame, client ? client->Shapes() : QVector<ViewShape>());
    gl.glDepthMask(GL_TRUE);
    gl.glDisable(GL_BLEND);
    gl.glDisable(GL_POINT_SPRITE);
}

// Curves lie on the source: a new mesh, now before it and now behind, must not break them.
bool SceneRenderer::drawCoveredDepths(const Frame &frame, const QVector<ShownMesh> &meshes)
{
    QVector<ShownMesh> covered;
    for (const ShownMesh &mesh : meshes) {
        if (mesh.role == MeshRole::Over)
            continue;
        covered.append(mesh);
        covered.last().lift = 0.0;
    }
    if (covered.size() == meshes.size())
        return false;
    frame.gl.glDepthMask(GL_TRUE);
    frame.gl.glClear(GL_DEPTH_BUFFER_BIT);
    m_surfaces.DrawDepths(frame, covered);
    frame.gl.glDepthMask(GL_FALSE);
    return true;
}

void SceneRenderer::dropOthers(const QVector<Geometry *> &geometries)
{
    for (auto card = m_cards.begin(); card != m_cards.end();) {
        const bool isHere =
            std::find(geometries.begin(), geometries.end(), card->first) != geometries.end();
        card = isHere ? std::next(card) : m_cards.erase(card);
    }
}

QVector<ShownMesh> SceneRenderer::shownMeshes(const Frame &frame)
{
    QVector<ShownMesh> meshes;
    double longestNewEdge = 0.0;
    const QVector<Geometry *> geometries = Kernel()->Scene()->Geometries();
    for (const Geometry *geometry : geometries) {
        if (geometry->IsHidden() || !geometry->CurrentLevel())
            continue;
        const MeshRole role = frame.options.dimSource ? meshRole(*geometry) : MeshRole::Plain;
        meshes.append(shownMesh(frame, *geometry, role));
        if (role == MeshRole::Over)
            longestNewEdge = std::max(longestNewEdge, meshes.last().longestEdge);
    }
    for (ShownMesh &mesh : meshes) {
        if (mesh.role == MeshRole::Source)
            mesh.lift = -sinking(frame.camera, longestNewEdge);
    }
    return meshes;
}

ShownMesh SceneRenderer::shownMesh(const Frame &frame, const Geometry &geometry, MeshRole role)
{
    std::unique_ptr<MeshOnCard> &card = m_cards[&geometry];
    if (!card)
        card = std::make_unique<MeshOnCard>();
    card->Update(geometry, frame.options.shading == Shading::Flat, showsFaults());
    ShownMesh mesh;
    mesh.card = card.get();
    mesh.toWorld = geometry.Placement()->WorldMatrix();
    mesh.mirrored = isMirrored(mesh.toWorld);
    mesh.selected = geometry.Selected();
    mesh.role = role;
    const double scale = double(mesh.toWorld.Row(0).Length());
    mesh.longestEdge = scale * double(card->LongestEdge());
    const Vector middle = boundsOf(geometry).IsEmpty() ? Vector() : boundsOf(geometry).Center();
    mesh.edgePixels = scale * double(card->MeanEdge()) / pixelSizeAt(frame.camera, middle);
    return mesh;
}

} // namespace orvane
