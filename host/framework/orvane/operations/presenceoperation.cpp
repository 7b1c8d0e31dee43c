// SPDX-License-Identifier: MIT
#include <orvane/operations/presenceoperation.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/log.h>
#include <orvane/base/nodetable.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/operations/refreshhost.h>
#include <orvane/operations/scenenodes.h>

#include <QSet>

#include <algorithm>
#include <memory>
#include <vector>

namespace orvane {

namespace {

const int SmallestEntry = 4; // bytes: a node number

bool isValid(const Node &node)
{
    if (node.CheckValidity())
        return true;
    log(QStringLiteral(
            "\"%1\" is damaged, so that it could not be brought back; it stays as it is.")
            .arg(node.Name()));
    return false;
}

// Numbers that come from damaged bytes must not use up those still to be given.
bool wereGiven(const QVector<int> &ids)
{
    const int last = NodeTable::Instance().LastID();
    return std::all_of(ids.cbegin(), ids.cend(), [last](int id) { return id <= last; });
}

bool addAll(const QVector<int> &ids, QSet<int> &taken)
{
    for (int id : ids) {
        if (taken.contains(id))
            return false;
        taken.insert(id);
    }
    return true;
}

} // namespace

PresenceOperation::PresenceOperation(const ClassDesc *kind) : m_kind(kind) {}

PresenceOperation::~PresenceOperation() = default;

void PresenceOperation::BringInFirst(Node *newNode)
{
    if (newNode && !newNode->IsInScene())
        m_newNode.reset(newNode);
}

void PresenceOperation::TakeOutFirst(const Node *node)
{
    m_present = true;
    const int id = node ? node->ID() : 0;
    const bool isNamed = std::any_of(m_entries.cbegin(), m_entries.cend(),
                                     [id](const Entry &entry) { return entry.id == id; });
    if (!node || isNamed)
        return;
    m_entries.append(Entry());
    m_entries.last().id = id;
}

bool PresenceOperation::ExecuteAndInvert()
{
    if (!m_newNode && m_entries.isEmpty()) {
        log(QStringLiteral("There is nothing to add or to delete."));
        return false;
    }
    const bool done = m_newNode ? bringInNew() : m_present ? takeOut() : bringIn();
    if (!done)
        return false;
    m_present = !m_present;
    refreshHost();
    return true;
}

bool PresenceOperation::bringInNew()
{
    if (!isValid(*m_newNode) || !Kernel()->Scene()->Restore(m_newNode.data(), ScenePlace()))
        return false;
    Node *node = m_newNode.take(); // the scene's
    Kernel()->Scene()->SetActiveGeometry(dynamic_cast<Geometry *>(node));
    m_entries = {Entry()};
    m_entries.first().id = node->ID();
    return true;
}

bool PresenceOperation::bringIn()
{
    std::vector<std::unique_ptr<Node>> nodes;
    QSet<int> taken;
    for (const Entry &entry : qAsConst(m_entries)) {
        nodes.emplace_back(wereGiven(entry.record.ids) ? nodeOf(entry.record) : nullptr);
        const Node *node = nodes.back().get();
        if (!node || !node->RuntimeClass()->IsA(m_kind) || !addAll(entry.record.ids, taken)) {
            log(QStringLiteral("What was kept of a deleted node is damaged: it cannot come back."));
            return false;
        }
    }
    // The last one out is the first one in, so that each finds the places as it left them.
    for (int i = m_entries.size() - 1; i >= 0; --i) {
        Node *node = nodes[size_t(i)].release(); // the scene's
        Kernel()->Scene()->Restore(node, m_entries[i].place);
        m_entries[i] = Entry();
        m_entries[i].id = node->ID();
    }
    return true;
}

bool PresenceOperation::takeOut()
{
    QVector<Node *> nodes;
    for (const Entry &entry : qAsConst(m_entries)) {
        Node *node = sceneNode(entry.id, m_kind);
        if (!node || nodes.contains(node) || !isValid(*node))
            return false;
        nodes.append(node);
    }
    Scene *scene = Kernel()->Scene();
    for (int i = 0; i < nodes.size(); ++i) {
        m_entries[i].id = 0;
        m_entries[i].place = scene->PlaceOf(nodes[i]);
        m_entries[i].record = recordOf(nodes[i]);
        scene->Remove(nodes[i]);
        delete nodes[i];
    }
    return true;
}

void PresenceOperation::Serialize(Stream &stream)
{
    stream.Transfer(m_present);
    int count = m_entries.size();
    if (stream.IsWriting()) {
        stream.Transfer(count);
        for (Entry &entry : m_entries)
            serializeEntry(stream, entry);
        return;
    }
    m_newNode.reset();
    m_entries.clear();
    count = stream.ReadCount(SmallestEntry);
    for (int i = 0; i < count && stream.IsOk(); ++i) {
        m_entries.append(Entry());
        serializeEntry(stream, m_entries.last());
    }
}

void PresenceOperation::serializeEntry(Stream &stream, Entry &entry)
{
    if (m_present) {
        stream.Transfer(entry.id);
        return;
    }
    stream.Transfer(entry.place);
    entry.record.Serialize(stream);
}

} // namespace orvane
