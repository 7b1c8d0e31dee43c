// SPDX-License-Identifier: MIT
#include <orvane/geometry/geometry.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/nodetable.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <algorithm>

namespace orvane {

Geometry::Geometry() : m_placement(new orvane::Placement) {}

Geometry::~Geometry()
{
    qDeleteAll(m_levels);
}

QVector<Node *> Geometry::Nodes()
{
    QVector<Node *> nodes{this, m_placement.data()};
    for (SubdivisionLevel *level : qAsConst(m_levels))
        nodes.append(level);
    return nodes;
}

void Geometry::AddLevel(SubdivisionLevel *level)
{
    if (!level || level->m_holder)
        return;
    level->m_holder = this;
    m_levels.append(level);
    m_currentLevel = m_levels.size() - 1;
    if (IsInScene())
        NodeTable::Instance().Enter(level);
}

void Geometry::SetCurrentLevel(int index)
{
    if (index >= 0 && index < m_levels.size())
        m_currentLevel = index;
}

void Geometry::TakePlacementOf(const Geometry &other)
{
    const orvane::Placement &target = *other.m_placement;
    if (m_placement->WorldMatrix() == target.WorldMatrix())
        return;
    for (SubdivisionLevel *level : qAsConst(m_levels)) {
        for (int v = 0; v < level->VertexCount(); ++v) {
            const Vector normal = level->WorldVertexNormal(v);
            level->SetVertexPosition(v, target.ToLocal(level->WorldVertexPosition(v)));
            level->SetVertexNormal(v, target.NormalToLocal(normal));
        }
        level->RecomputeNormals(true);
        level->Update(false, 0);
    }
    m_placement->SetWorldMatrix(target.WorldMatrix());
}

void Geometry::Serialize(Stream &stream)
{
    Node::Serialize(stream);
    m_placement->Serialize(stream);
    char flags = char((m_hidden ? 1 : 0) | (m_selected ? 2 : 0));
    stream.Transfer(flags);
    m_hidden = flags & 1;
    m_selected = flags & 2;
    int current = m_currentLevel;
    int count = m_levels.size();
    stream.Transfer(current);
    stream.Transfer(count);
    if (stream.IsWriting()) {
        for (SubdivisionLevel *level : qAsConst(m_levels))
            level->Serialize(stream);
        return;
    }
    qDeleteAll(m_levels);
    m_levels.clear();
    m_currentLevel = -1;
    for (int i = 0; i < count && stream.IsOk(); ++i) {
        AddLevel(new SubdivisionLevel);
        m_levels.last()->Serialize(stream);
    }
    SetCurrentLevel(current);
}

bool Geometry::CheckValidity() const
{
    return std::all_of(m_levels.cbegin(), m_levels.cend(),
                       [](const SubdivisionLevel *level) { return level->CheckValidity(); });
}

const ClassDesc *Geometry::RuntimeClass() const
{
    return StaticClass();
}

const ClassDesc *Geometry::StaticClass()
{
    static const ClassDesc desc(Node::StaticClass(), Node::StaticClass(), "Geometry", "Geometry",
                                createInstances<Geometry>, 0, 0);
    return &desc;
}

namespace {
const ClassDesc *const Registered = Geometry::StaticClass();
} // namespace

} // namespace orvane
