// SPDX-License-Identifier: MIT
#include "host/files/scenefile.h"

#include "host/files/safefile.h"
#include "host/files/scenepacking.h"
#include "host/files/scenesections.h"

#include <orvane/base/nodetable.h>
#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>

#include <QFile>
#include <QMap>

namespace orvane {

namespace {

const char *const RunningText = "an operation is still running; expected to be asked after it.";

// Collects the sections of a file, whatever is damaged in between.
class SceneReader
{
public:
    explicit SceneReader(SceneContents *contents) : m_contents(contents) {}

    // False when nothing of it is sound.
    bool read(QIODevice *device)
    {
        SceneSection section;
        while (readSection(device, &section))
            take(section);
        nameMissing();
        for (const NodeRecord &node : qAsConst(m_nodes))
            m_contents->nodes.append(node);
        if (m_contents->damage.isEmpty())
            takeSteps();
        return m_hasMeta || !m_nodes.isEmpty();
    }

private:
    void take(const SceneSection &section)
    {
        if (section.damage.isEmpty() && unpack(section))
            return;
        const QString why = section.damage.isEmpty() ? QStringLiteral("its contents make no sense")
                                                     : section.damage;
        m_contents->damage.append(QStringLiteral("The %1 at byte %2 was left out: %3.")
                                      .arg(kindInWords(section.kind))
                                      .arg(section.position)
                                      .arg(why));
    }

    bool unpack(const SceneSection &section)
    {
        switch (section.kind) {
        case MetaSection:
            m_hasMeta = unpackMeta(section.bytes, &m_meta, m_contents);
            return m_hasMeta;
        case NodeSection:
            return unpackNumbered(section.bytes, &unpackNode, &m_nodes);
        default:
            return unpackNumbered(section.bytes, &unpackStep, &m_steps);
        }
    }

    template <typename T>
    static bool unpackNumbered(const QByteArray &bytes,
                               bool (*unpackOne)(const QByteArray &, int *, T *), QMap<int, T> *all)
    {
        int number = 0;
        T one;
        if (!unpackOne(bytes, &number, &one) || all->contains(number))
            return false;
        all->insert(number, one);
        return true;
    }

    static QString kindInWords(quint32 kind)
    {
        switch (kind) {
        case MetaSection:
            return QStringLiteral("section about the scene as a whole");
        case NodeSection:
            return QStringLiteral("section of an object");
        case StepSection:
            return QStringLiteral("section of a step of the undo history");
        default:
            return QStringLiteral("section");
        }
    }

    void nameMissing()
    {
        if (!m_hasMeta) {
            m_contents->damage.append(
                QStringLiteral("What belongs to the scene as a whole is missing."));
            return;
        }
        for (int i = 0; i < m_meta.nodeNames.size(); ++i) {
            if (!m_nodes.contains(i))
                m_contents->damage.append(QStringLiteral("Object %1 of %2, \"%3\", is missing.")
                                              .arg(i + 1)
                                              .arg(m_meta.nodeNames.size())
                                              .arg(m_meta.nodeNames[i]));
        }
        if (m_steps.size() != m_meta.steps)
            m_contents->damage.append(QStringLiteral("%1 of %2 steps of the undo history are here.")
                                          .arg(m_steps.size())
                                          .arg(m_meta.steps));
    }

    void takeSteps()
    {
        for (const UndoStep &step : qAsConst(m_steps))
            m_contents->steps.append(step);
        m_contents->stepsDone = m_meta.stepsDone;
    }

    SceneContents *m_contents;
    bool m_hasMeta = false;
    SceneMeta m_meta;
    QMap<int, NodeRecord> m_nodes; // by place in the scene's list
    QMap<int, UndoStep> m_steps;   // by place in the queue
};

bool writeSections(QIODevice *device, const SceneSnapshot &snapshot)
{
    if (!writeSceneHead(device) || !writeSection(device, MetaSection, snapshot.meta))
        return false;
    for (int i = 0; i < snapshot.nodes.size(); ++i) {
        if (!writeSection(device, NodeSection, packNode(i, snapshot.nodes[i])))
            return false;
    }
    for (int i = 0; i < snapshot.steps.size(); ++i) {
        if (!writeSection(device, StepSection, packStep(i, snapshot.steps[i])))
            return false;
    }
    return true;
}

QStringList addNodes(const QVector<NodeRecord> &records)
{
    QStringList damage;
    for (int i = 0; i < records.size(); ++i) {
        if (Node *node = nodeOf(records[i]))
            Kernel()->Scene()->Restore(node, ScenePlace());
        else
            damage.append(
                QStringLiteral("Object %1 of %2 was left out: its contents make no sense.")
                    .arg(i + 1)
                    .arg(records.size()));
    }
    return damage;
}

Geometry *geometryOf(int id)
{
    return dynamic_cast<Geometry *>(NodeTable::Instance().Find(id));
}

} // namespace

bool readScene(const QString &path, SceneContents *contents, QString *error)
{
    QFile file(path);
    if (!openForReading(&file, error))
        return false;
    QString why;
    if (!readSceneHead(&file, &why)) {
        *error = aboutFile(path, why);
        return false;
    }
    *contents = SceneContents();
    if (SceneReader(contents).read(&file))
        return true;
    *error = aboutFile(path, QStringLiteral("nothing in it can be read; the file is damaged."));
    return false;
}

QStringList openScene(const SceneContents &contents)
{
    if (!Kernel()->NewScene())
        return {QString::fromUtf8(RunningText)};
    Scene *scene = Kernel()->Scene();
    const QStringList damage = addNodes(contents.nodes);
    NodeTable::Instance().Reserve(contents.lastID);
    for (int id : contents.active)
        scene->SetActiveGeometry(geometryOf(id));
    scene->ChooseSurface(contents.drawingSurface);
    Kernel()->Preferences()->renderMeshFaults.SetValue(contents.renderMeshFaults);
    if (damage.isEmpty())
        Kernel()->Undos().Restore(contents.steps, contents.stepsDone);
    return damage;
}

bool takeSnapshot(SceneSnapshot *snapshot)
{
    if (Kernel()->IsOperationRunning())
        return false;
    const Scene &scene = *Kernel()->Scene();
    snapshot->meta = packMeta();
    snapshot->nodes.clear();
    for (int i = 0; i < scene.NodeCount(); ++i)
        snapshot->nodes.append(recordOf(scene.NodeAt(i)));
    snapshot->steps = Kernel()->Undos().Steps();
    return true;
}

bool writeSnapshot(const SceneSnapshot &snapshot, const QString &path, QString *error)
{
    const auto write = [&snapshot](QIODevice *device) {
        return writeSections(device, snapshot);
    };
    return writeWhole(path, write, error);
}

bool writeScene(const QString &path, QString *error)
{
    SceneSnapshot snapshot;
    if (takeSnapshot(&snapshot))
        return writeSnapshot(snapshot, path, error);
    *error = aboutFile(path, QString::fromUtf8(RunningText));
    return false;
}

} // namespace orvane
