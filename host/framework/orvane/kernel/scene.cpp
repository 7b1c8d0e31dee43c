// SPDX-License-Identifier: MIT
#include <orvane/kernel/scene.h>

#include <orvane/base/nodetable.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/noderecord.h>

namespace orvane {

Scene::~Scene()
{
    Clear();
}

bool Scene::Contains(const Node *node) const
{
    return m_nodes.contains(const_cast<Node *>(node));
}

QVector<Geometry *> Scene::Geometries() const
{
    QVector<Geometry *> result;
    for (Node *node : m_nodes) {
        if (auto *geometry = dynamic_cast<Geometry *>(node))
            result.append(geometry);
    }
    return result;
}

Geometry *Scene::ActiveGeometry() const
{
    return m_activeHistory.isEmpty() ? nullptr : m_activeHistory.last();
}

Mesh *Scene::CreateMesh(Topology::FaceType type) const
{
    return new SubdivisionLevel(type);
}

Geometry *Scene::DrawingSurface() const
{
    Node *chosen = NodeTable::Instance().Find(m_chosenSurface);
    if (auto *geometry = dynamic_cast<Geometry *>(chosen))
        return geometry;
    return Geometries().value(0);
}

ScenePlace Scene::PlaceOf(const Node *node) const
{
    ScenePlace place;
    place.index = m_nodes.indexOf(const_cast<Node *>(node));
    const auto *geometry = dynamic_cast<const Geometry *>(node);
    place.activeRank = m_activeHistory.indexOf(const_cast<Geometry *>(geometry));
    return place;
}

void Scene::AddGeometry(Geometry *geometry)
{
    Restore(geometry, ScenePlace());
}

void Scene::RemoveGeometry(Geometry *geometry)
{
    Remove(geometry);
}

void Scene::AddCurve(OrvaneCurve *curve)
{
    Restore(curve, ScenePlace());
}

void Scene::RemoveCurve(OrvaneCurve *curve)
{
    Remove(curve);
}

bool Scene::Restore(Node *node, const ScenePlace &place)
{
    const QVector<Node *> parts = partsOf(node);
    if (parts.isEmpty() || Contains(node))
        return false;
    const bool inList = place.index >= 0 && place.index < m_nodes.size();
    m_nodes.insert(inList ? place.index : m_nodes.size(), node);
    for (Node *part : parts)
        NodeTable::Instance().Enter(part);
    auto *geometry = dynamic_cast<Geometry *>(node);
    if (geometry && place.activeRank >= 0)
        m_activeHistory.insert(qMin(place.activeRank, m_activeHistory.size()), geometry);
    return true;
}

void Scene::Remove(Node *node)
{
    if (!node || !m_nodes.removeOne(node))
        return;
    m_activeHistory.removeAll(dynamic_cast<Geometry *>(node));
    for (Node *part : partsOf(node))
        NodeTable::Instance().Leave(part);
}

void Scene::Clear()
{
    m_activeHistory.clear();
    qDeleteAll(m_nodes); // each leaves the node table as it goes
    m_nodes.clear();
    m_chosenSurface = 0;
}

void Scene::SetActiveGeometry(Geometry *geometry)
{
    if (!geometry || !Contains(geometry))
        return;
    m_activeHistory.removeAll(geometry);
    m_activeHistory.append(geometry);
}

void Scene::SetDrawingSurface(const Geometry *geometry)
{
    ChooseSurface(geometry ? geometry->ID() : 0);
}

} // namespace orvane
