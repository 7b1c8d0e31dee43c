// SPDX-License-Identifier: MIT
#include <orvane/kernel/noderecord.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/nodetable.h>
#include <orvane/base/stream.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>

#include <QBuffer>
#include <QScopedPointer>
#include <QSet>

namespace orvane {

namespace {

bool areFree(const QVector<int> &ids)
{
    QSet<int> seen;
    for (int id : ids) {
        if (id < 1 || seen.contains(id) || NodeTable::Instance().Find(id))
            return false;
        seen.insert(id);
    }
    return true;
}

bool readInto(Node *node, QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    Stream stream(&buffer, Stream::Reading);
    node->Serialize(stream);
    return stream.IsOk() && stream.BytesLeft() == 0 && node->CheckValidity();
}

} // namespace

void NodeRecord::Serialize(Stream &stream)
{
    stream.Transfer(className);
    stream.Transfer(ids);
    stream.Transfer(bytes);
}

NodeRecord recordOf(Node *node)
{
    NodeRecord record;
    record.className = node->RuntimeClass()->Name();
    for (const Node *part : partsOf(node))
        record.ids.append(part->ID());
    QBuffer buffer(&record.bytes);
    buffer.open(QIODevice::WriteOnly);
    Stream stream(&buffer, Stream::Writing);
    node->Serialize(stream);
    return record;
}

Node *nodeOf(const NodeRecord &record)
{
    const ClassDesc *desc = ClassDesc::ByName(record.className);
    const bool belongs =
        desc && (desc->IsA(Geometry::StaticClass()) || desc->IsA(OrvaneCurve::StaticClass()));
    QScopedPointer<Node> node(belongs ? desc->Create() : nullptr);
    if (!node || !readInto(node.data(), record.bytes))
        return nullptr;
    const QVector<Node *> parts = partsOf(node.data());
    if (parts.size() != record.ids.size() || !areFree(record.ids))
        return nullptr;
    for (int i = 0; i < parts.size(); ++i)
        parts[i]->SetID(record.ids[i]);
    return node.take();
}

QVector<Node *> partsOf(Node *node)
{
    if (auto *geometry = dynamic_cast<Geometry *>(node))
        return geometry->Nodes();
    return dynamic_cast<OrvaneCurve *>(node) ? QVector<Node *>{node} : QVector<Node *>();
}

} // namespace orvane
