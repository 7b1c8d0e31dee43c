// SPDX-License-Identifier: MIT
#include <orvane/operations/reshapeoperation.h>

#include <orvane/base/log.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/operations/scenenodes.h>

#include <algorithm>

namespace orvane {

namespace {

// What the places are in the frame of the mesh. A vertex that stays keeps its position to the bit.
QVector<Vector> localPositions(const Mesh &mesh, const std::vector<SurfacePlace> &places)
{
    const Placement &placement = *mesh.Holder()->Placement();
    QVector<Vector> positions = mesh.Positions();
    for (int v = 0; v < positions.size(); ++v) {
        const Vector local = placement.ToLocal(places[size_t(v)].position);
        if (local.IsFinite() && places[size_t(v)].position != mesh.WorldVertexPosition(v))
            positions[v] = local;
    }
    return positions;
}

QVector<Vector> normalsOf(const Mesh &mesh)
{
    QVector<Vector> normals;
    for (int v = 0; v < mesh.VertexCount(); ++v)
        normals.append(mesh.VertexNormal(v));
    return normals;
}

// As a mesh made from curves has them: those of the surface. A mesh whose faces look the other
// way keeps its side; where there is no surface the faces alone say where it looks.
QVector<Vector> normalsAlong(Mesh &mesh, const std::vector<SurfacePlace> &places)
{
    const Placement &placement = *mesh.Holder()->Placement();
    mesh.RecomputeNormals(false);
    QVector<Vector> normals = normalsOf(mesh);
    for (int v = 0; v < normals.size(); ++v) {
        const Vector surface = placement.NormalToLocal(places[size_t(v)].normal);
        if (surface != Vector())
            normals[v] = Dot(surface, normals[v]) < 0.0f ? -surface : surface;
        if (!normals[v].IsFinite())
            normals[v] = Vector();
    }
    return normals;
}

void setPositions(Mesh &mesh, const QVector<Vector> &positions)
{
    for (int v = 0; v < positions.size(); ++v)
        mesh.SetVertexPosition(v, positions[v]);
}

void finishWith(Mesh &mesh, const QVector<Vector> &normals)
{
    for (int v = 0; v < normals.size(); ++v)
        mesh.SetVertexNormal(v, normals[v]);
    mesh.RecomputeNormals(true);
    mesh.Update(true, 0);
    mesh.SetChanged(true);
}

bool suit(const QVector<Vector> &values, const Mesh &mesh)
{
    return values.size() == mesh.VertexCount()
           && std::all_of(values.cbegin(), values.cend(),
                          [](const Vector &value) { return value.IsFinite(); });
}

} // namespace

ReshapeOperation::ReshapeOperation(const Geometry *geometry, const Geometry *source)
    : NodeOperation(geometry, Geometry::StaticClass()), m_sourceID(source ? source->ID() : 0)
{}

bool ReshapeOperation::Exchange(Node &node, bool first)
{
    auto &geometry = static_cast<Geometry &>(node);
    return first ? reshape(geometry) : exchange(geometry);
}

QString ReshapeOperation::whyNot(const Geometry &geometry, const Geometry *source)
{
    if (!source)
        return tr("the source is no longer in the scene");
    if (source == &geometry)
        return tr("a mesh cannot be its own source");
    if (source->IsHidden())
        return tr("the source is hidden");
    if (!source->CurrentLevel() || source->CurrentLevel()->FaceCount() == 0)
        return tr("the source has no faces");
    const Mesh *mesh = geometry.CurrentLevel();
    if (!mesh || mesh->VertexCount() == 0)
        return tr("the mesh has no vertices");
    // What undo could not bring back must not be changed.
    if (!mesh->CheckValidity())
        return tr("the mesh is damaged");
    return QString();
}

bool ReshapeOperation::reshape(Geometry &geometry)
{
    const auto *source = static_cast<Geometry *>(sceneNode(m_sourceID, Geometry::StaticClass()));
    const QString reason = whyNot(geometry, source);
    if (!reason.isEmpty()) {
        Kernel()->ExplainFailure(reason);
        return false;
    }
    Mesh &mesh = *geometry.CurrentLevel();
    const std::vector<SurfacePlace> places =
        NewPlaces(mesh, SourceSurface(*source->CurrentLevel()));
    const QVector<Vector> positions = localPositions(mesh, places);
    if (positions == mesh.Positions()) {
        Kernel()->ExplainFailure(tr("every vertex is in its place already"));
        return false;
    }
    m_level = 0;
    while (geometry.Level(m_level) != &mesh)
        ++m_level;
    m_positions = mesh.Positions();
    m_normals = normalsOf(mesh);
    setPositions(mesh, positions);
    finishWith(mesh, normalsAlong(mesh, places));
    return true;
}

bool ReshapeOperation::exchange(const Geometry &geometry)
{
    Mesh *mesh = geometry.Level(m_level);
    if (!mesh || !suit(m_positions, *mesh) || !suit(m_normals, *mesh) || !mesh->CheckValidity()) {
        log(QStringLiteral("What was kept of the vertices of \"%1\" does not suit its mesh.")
                .arg(geometry.Name()));
        return false;
    }
    const QVector<Vector> positions = mesh->Positions();
    const QVector<Vector> normals = normalsOf(*mesh);
    setPositions(*mesh, m_positions);
    finishWith(*mesh, m_normals);
    m_positions = positions;
    m_normals = normals;
    return true;
}

void ReshapeOperation::Serialize(Stream &stream)
{
    NodeOperation::Serialize(stream);
    stream.Transfer(m_sourceID);
    stream.Transfer(m_level);
    stream.Transfer(m_positions);
    stream.Transfer(m_normals);
}

} // namespace orvane
