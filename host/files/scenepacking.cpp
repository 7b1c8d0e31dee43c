// SPDX-License-Identifier: MIT
#include "host/files/scenepacking.h"

#include <orvane/base/nodetable.h>
#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>

#include <QDataStream>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <limits>

namespace orvane {

namespace {

const QString NodesKey = QStringLiteral("nodes");
const QString StepsKey = QStringLiteral("steps");
const QString StepsDoneKey = QStringLiteral("stepsDone");
const QString LastIDKey = QStringLiteral("lastNumber");
const QString ActiveKey = QStringLiteral("active");
const QString DrawingSurfaceKey = QStringLiteral("drawingSurface");
const QString PreferencesKey = QStringLiteral("preferences");

// Numbers that a scene must have left to give, or it could not be worked on.
const int SpareIDs = 1 << 20;

void prepare(QDataStream *stream)
{
    stream->setVersion(QDataStream::Qt_5_15);
    stream->setByteOrder(QDataStream::LittleEndian);
}

// Each item takes at least four bytes, so a count beyond them is damage.
bool readCount(QDataStream *stream, int *count)
{
    qint32 value = 0;
    *stream >> value;
    *count = value;
    return stream->status() == QDataStream::Ok && value >= 0
           && qint64(value) * 4 <= stream->device()->bytesAvailable();
}

bool isReadToEnd(const QDataStream &stream)
{
    return stream.status() == QDataStream::Ok && stream.atEnd();
}

QString readName(QDataStream *stream)
{
    QByteArray name;
    *stream >> name;
    return QString::fromUtf8(name);
}

QJsonArray nodeNames(const Scene &scene)
{
    QJsonArray names;
    for (int i = 0; i < scene.NodeCount(); ++i)
        names.append(scene.NodeAt(i)->Name());
    return names;
}

QJsonArray activeIDs(const Scene &scene)
{
    QJsonArray ids;
    for (const Geometry *geometry : scene.ActiveHistory())
        ids.append(geometry->ID());
    return ids;
}

} // namespace

QByteArray packMeta()
{
    const Scene &scene = *Kernel()->Scene();
    for (int i = 0; i < scene.NodeCount(); ++i) {
        for (const Node *part : partsOf(scene.NodeAt(i)))
            part->ID(); // given at the first asking, and the highest is noted below
    }
    const AttributeInstance<bool> &faults = Kernel()->Preferences()->renderMeshFaults;
    const QJsonObject meta{
        {NodesKey, nodeNames(scene)},
        {StepsKey, Kernel()->Undos().StepCount()},
        {StepsDoneKey, Kernel()->Undos().Position()},
        {LastIDKey, NodeTable::Instance().LastID()},
        {ActiveKey, activeIDs(scene)},
        {DrawingSurfaceKey, scene.ChosenSurface()},
        {PreferencesKey, QJsonObject{{faults.ID(), faults.Value()}}},
    };
    return QJsonDocument(meta).toJson(QJsonDocument::Compact);
}

bool unpackMeta(const QByteArray &bytes, SceneMeta *meta, SceneContents *contents)
{
    const QJsonObject object = QJsonDocument::fromJson(bytes).object();
    const int lastID = object[LastIDKey].toInt(-1);
    if (!object[NodesKey].isArray() || lastID < 0
        || lastID > std::numeric_limits<int>::max() - SpareIDs)
        return false;
    for (const QJsonValue &name : object[NodesKey].toArray())
        meta->nodeNames.append(name.toString());
    meta->steps = object[StepsKey].toInt();
    meta->stepsDone = object[StepsDoneKey].toInt();
    contents->lastID = lastID;
    for (const QJsonValue &id : object[ActiveKey].toArray())
        contents->active.append(id.toInt());
    contents->drawingSurface = object[DrawingSurfaceKey].toInt();
    const QString faults = Kernel()->Preferences()->renderMeshFaults.ID();
    contents->renderMeshFaults = object[PreferencesKey].toObject()[faults].toBool();
    return true;
}

QByteArray packNode(int place, const NodeRecord &node)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    prepare(&stream);
    stream << qint32(place) << node.className.toUtf8() << qint32(node.ids.size());
    for (int id : node.ids)
        stream << qint32(id);
    stream << node.bytes;
    return bytes;
}

bool unpackNode(const QByteArray &bytes, int *place, NodeRecord *node)
{
    QDataStream stream(bytes);
    prepare(&stream);
    stream >> *place;
    node->className = readName(&stream);
    int count = 0;
    if (!readCount(&stream, &count))
        return false;
    node->ids.resize(count);
    for (int &id : node->ids)
        stream >> id;
    stream >> node->bytes;
    return isReadToEnd(stream);
}

QByteArray packStep(int place, const UndoStep &step)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    prepare(&stream);
    stream << qint32(place) << qint32(step.size());
    for (const OperationRecord &operation : step)
        stream << operation.className.toUtf8() << operation.bytes;
    if (!step.first().title.isEmpty())
        stream << step.first().title.toUtf8();
    return bytes;
}

bool unpackStep(const QByteArray &bytes, int *place, UndoStep *step)
{
    QDataStream stream(bytes);
    prepare(&stream);
    stream >> *place;
    int count = 0;
    if (!readCount(&stream, &count) || count == 0)
        return false;
    for (int i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        OperationRecord operation;
        operation.className = readName(&stream);
        stream >> operation.bytes;
        step->append(operation);
    }
    if (stream.status() == QDataStream::Ok && !stream.atEnd())
        step->first().title = readName(&stream);
    return isReadToEnd(stream);
}

} // namespace orvane
