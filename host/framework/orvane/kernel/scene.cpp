// SPDX-License-Identifier: MIT
#include <orvane/kernel/scene.h>

#include <orvane/base/nodetable.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>

namespace orvane {

namespace {

template <typename Visit>
void forEachPart(Geometry *geometry, Visit visit)
{
    visit(geometry);
    visit(geometry->Placement());
    for (int i = 0; i < geometry->LevelCount(); ++i)
        visit(geometry->Level(i));
}

} // namespace

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

void Scene::AddGeometry(Geometry *geometry)
{
    if (!geometry || Contains(geometry))
        return;
    m_nodes.append(geometry);
    forEachPart(geometry, [](Node *node) { NodeTable::Instance().Enter(node); });
}

void Scene::RemoveGeometry(Geometry *geometry)
{
    if (!geometry || !m_nodes.removeOne(geometry))
        return;
    m_activeHistory.removeAll(geometry);
    forEachPart(geometry, [](Node *node) { NodeTable::Instance().Leave(node); });
}

void Scene::AddCurve(OrvaneCurve *curve)
{
    if (!curve || Contains(curve))
        return;
    m_nodes.append(curve);
    NodeTable::Instance().Enter(curve);
}

void Scene::RemoveCurve(OrvaneCurve *curve)
{
    if (curve && m_nodes.removeOne(curve))
        NodeTable::Instance().Leave(curve);
}

void Scene::Clear()
{
    m_activeHistory.clear();
    qDeleteAll(m_nodes); // each leaves the node table as it goes
    m_nodes.clear();
}

void Scene::SetActiveGeometry(Geometry *geometry)
{
    if (!geometry || !Contains(geometry))
        return;
    m_activeHistory.removeAll(geometry);
    m_activeHistory.append(geometry);
}

} // namespace orvane
