// SPDX-License-Identifier: MIT
#include "host/desktop/document/document.h"

#include "host/desktop/document/filekind.h"
#include "host/desktop/document/fileplan.h"
#include "host/desktop/document/recovery.h"
#include "host/files/curvefile.h"
#include "host/files/meshfile.h"
#include "host/files/safefile.h"
#include "host/files/scenefile.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/addoperations.h>

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <functional>

namespace orvane {

namespace {

const float BindTolerance = 0.02f; // of the diagonal of the mesh

FileReport refusal(const QString &sentence)
{
    FileReport report;
    report.problems.append(sentence);
    return report;
}

QString sentenceWhileRunning(const QString &path)
{
    return aboutFile(path, Document::tr("an operation is still running; expected to be asked "
                                        "after it."));
}

QString fullPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

// Owned by the caller; null, and the report says why, when there is none.
Geometry *readReported(const QString &path, FileReport *report)
{
    if (Kernel()->IsOperationRunning()) {
        report->problems.append(sentenceWhileRunning(path));
        return nullptr;
    }
    QString error;
    int leftOut = 0;
    Geometry *geometry = readMesh(path, &error, &leftOut);
    if (!geometry)
        report->problems.append(error);
    else if (leftOut > 0)
        report->problems.append(aboutFile(
            path, Document::tr("faces with fewer than three different corners were left out: %1.")
                      .arg(leftOut)));
    report->done = geometry;
    report->meshes = geometry ? 1 : 0;
    return geometry;
}

template <typename T>
QVector<const T *> nodesOfScene(const std::function<bool(const T &)> &isWanted)
{
    QVector<const T *> result;
    const Scene &scene = *Kernel()->Scene();
    for (int i = 0; i < scene.NodeCount(); ++i) {
        const auto *node = dynamic_cast<const T *>(scene.NodeAt(i));
        if (node && isWanted(*node))
            result.append(node);
    }
    return result;
}

QVector<const Geometry *> geometriesToExport()
{
    const auto selected =
        nodesOfScene<Geometry>([](const Geometry &geometry) { return geometry.Selected(); });
    if (!selected.isEmpty())
        return selected;
    if (const Geometry *active = Kernel()->Scene()->ActiveGeometry())
        return {active};
    return nodesOfScene<Geometry>([](const Geometry &) { return true; });
}

QVector<const OrvaneCurve *> curvesToExport()
{
    const auto selected =
        nodesOfScene<OrvaneCurve>([](const OrvaneCurve &curve) { return curve.Selected(); });
    if (!selected.isEmpty())
        return selected;
    return nodesOfScene<OrvaneCurve>([](const OrvaneCurve &curve) { return !curve.IsHidden(); });
}

bool areValid(const QVector<OrvaneCurve *> &curves)
{
    return std::all_of(curves.cbegin(), curves.cend(),
                       [](const OrvaneCurve *curve) { return curve->CheckValidity(); });
}

// One step of the undo history; each curve is the scene's then.
void addAsOneStep(const QVector<OrvaneCurve *> &curves)
{
    for (int i = 0; i < curves.size(); ++i) {
        AddCurveOperation operation(curves[i]);
        Kernel()->DoOperation(&operation, false, i > 0);
    }
}

// Where people may be expected to keep work of their own.
bool isFolderForWork(const QString &folder)
{
    const QFileInfo info(folder);
    return !folder.isEmpty() && info.isDir() && info.isWritable()
           && !(fullPath(folder) + QLatin1Char('/'))
                   .startsWith(resourceFolder() + QLatin1Char('/'));
}

void addReport(const FileReport &part, FileReport *whole)
{
    whole->problems += part.problems;
    whole->notes += part.notes;
    whole->meshes += part.meshes;
    whole->curves += part.curves;
    whole->binding.points += part.binding.points;
    whole->binding.bound += part.binding.bound;
    whole->binding.greatestDistance =
        std::max(whole->binding.greatestDistance, part.binding.greatestDistance);
    whole->done |= part.done;
}

} // namespace

Document::Document(QObject *parent) : QObject(parent)
{
    Kernel()->Undos().SetSaved(true);
    m_isChanged = Kernel()->Scene()->IsChanged();
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &Document::Refresh);
}

QString Document::Title() const
{
    return m_title.isEmpty() ? tr("Untitled") : m_title;
}

QString Document::ProposedPath() const
{
    if (!m_path.isEmpty())
        return m_path;
    const QString folder =
        isFolderForWork(m_folder)
            ? m_folder
            : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(folder).filePath(Title() + QStringLiteral(".orvane"));
}

bool Document::IsChanged()
{
    Refresh();
    return m_isChanged;
}

int Document::Revision()
{
    Refresh();
    return m_revision;
}

void Document::Refresh()
{
    if (Kernel()->IsOperationRunning())
        return;
    Scene *scene = Kernel()->Scene();
    const UndoQueue &queue = Kernel()->Undos();
    const bool moved = queue.Revision() != m_queueRevision;
    m_queueRevision = queue.Revision();
    if (moved && queue.IsAtSaved())
        scene->SetChanged(false);
    // Something marked it that undo cannot take back.
    if (!moved && scene->IsChanged() && !m_isChanged)
        Kernel()->Undos().SetSaved(false);
    const bool isOtherMark = scene->IsChanged() != m_isChanged;
    if (moved || isOtherMark)
        ++m_revision;
    m_isChanged = scene->IsChanged();
    if (isOtherMark)
        emit changed();
}

bool Document::NewScene()
{
    if (!Kernel()->NewScene())
        return false;
    noteOpened(QString(), QString(), QString(), true);
    return true;
}

FileReport Document::OpenScene(const QString &path)
{
    return openContents(path, fullPath(path), QFileInfo(path).completeBaseName(), true);
}

FileReport Document::OpenRecovered(const Recovery &recovery)
{
    return openContents(recovery.scenePath, recovery.path, recovery.title, false);
}

FileReport Document::openContents(const QString &file, const QString &path, const QString &title,
                                  bool isSaved)
{
    if (Kernel()->IsOperationRunning())
        return refusal(sentenceWhileRunning(file));
    SceneContents contents;
    QString error;
    if (!readScene(file, &contents, &error))
        return refusal(error);
    if (contents.nodes.isEmpty() && !contents.damage.isEmpty())
        return refusal(aboutFile(file, tr("no object in it can be read; the file is damaged.")));
    FileReport report;
    report.done = true;
    for (const QString &sentence : contents.damage + openScene(contents))
        report.problems.append(aboutFile(file, sentence));
    const bool isWhole = report.problems.isEmpty();
    report.meshes = Kernel()->Scene()->Geometries().size();
    report.curves = Kernel()->Scene()->NodeCount() - report.meshes;
    noteOpened(isWhole ? path : QString(), title, path.isEmpty() ? path : QFileInfo(path).path(),
               isSaved && isWhole);
    return report;
}

FileReport Document::OpenMesh(const QString &path)
{
    FileReport report;
    Geometry *geometry = readReported(path, &report);
    if (!geometry)
        return report;
    Kernel()->NewScene();
    Scene *scene = Kernel()->Scene();
    scene->AddGeometry(geometry);
    scene->SetActiveGeometry(geometry);
    scene->SetDrawingSurface(geometry);
    noteOpened(QString(), geometry->Name(), QFileInfo(path).absolutePath(), true);
    return report;
}

FileReport Document::ImportMesh(const QString &path)
{
    FileReport report;
    AddGeometryOperation operation(readReported(path, &report));
    if (!report.done || Kernel()->DoOperation(&operation, false, false))
        return report;
    return refusal(aboutFile(path, tr("its vertices are at no finite places.")));
}

FileReport Document::ImportCurves(const QString &path)
{
    if (Kernel()->IsOperationRunning())
        return refusal(sentenceWhileRunning(path));
    const Geometry *surface = Kernel()->Scene()->DrawingSurface();
    if (!surface || !surface->CurrentLevel())
        return refusal(aboutFile(path, tr("there is no mesh to put the curves on; expected one to "
                                          "be opened before.")));
    QString error;
    const QVector<OrvaneCurve *> curves = readCurves(path, &error);
    if (curves.isEmpty())
        return refusal(error);
    const Mesh &mesh = *surface->CurrentLevel();
    FileReport report;
    report.binding = bindCurves(curves, mesh, mesh.Bounds().Diagonal() * BindTolerance);
    if (!areValid(curves)) {
        qDeleteAll(curves);
        return refusal(aboutFile(path, tr("the curves are too large; expected places that numbers "
                                          "can hold.")));
    }
    addAsOneStep(curves);
    report.done = true;
    report.curves = curves.size();
    report.notes.append(tr("Curves imported: %1. Points on \"%2\": %3 of %4.")
                            .arg(curves.size())
                            .arg(surface->Name())
                            .arg(report.binding.bound)
                            .arg(report.binding.points));
    return report;
}

FileReport Document::Open(const QStringList &paths)
{
    const FilePlan plan = planFor(paths);
    FileReport report;
    for (const QString &path : plan.furtherScenes)
        report.problems.append(
            aboutFile(path, tr("it was left alone; expected one scene at a time.")));
    if (!plan.scene.isEmpty())
        addReport(OpenScene(plan.scene), &report);
    else if (!plan.firstMesh.isEmpty())
        addReport(OpenMesh(plan.firstMesh), &report);
    // What came along was meant for that scene, not for the one before it.
    if (plan.ReplacesScene() && !report.done)
        return report;
    for (const QString &path : plan.furtherMeshes)
        addReport(ImportMesh(path), &report);
    for (const QString &path : plan.curves)
        addReport(ImportCurves(path), &report);
    if (!plan.firstMesh.isEmpty())
        noteSaved();
    return report;
}

bool Document::WouldReplaceScene(const QStringList &paths)
{
    return planFor(paths).ReplacesScene();
}

bool Document::Save(QString *error)
{
    if (!m_path.isEmpty())
        return SaveAs(m_path, error);
    *error = tr("The scene has no file yet; expected a name to save it under.");
    return false;
}

bool Document::SaveAs(const QString &path, QString *error)
{
    if (QFileInfo(path).suffix().compare(QLatin1String("orvane"), Qt::CaseInsensitive) != 0) {
        *error = aboutFile(path, tr("scenes are not saved under this name; expected one that ends "
                                    "in .orvane."));
        return false;
    }
    if (!writeScene(path, error))
        return false;
    noteSaved();
    if (fullPath(path) != m_path)
        setFile(fullPath(path), QFileInfo(path).completeBaseName(), QFileInfo(path).absolutePath());
    emit saved();
    return true;
}

bool Document::ExportMeshes(const QString &path, QString *error) const
{
    if (!Kernel()->IsOperationRunning())
        return writeMeshes(geometriesToExport(), path, error);
    *error = sentenceWhileRunning(path);
    return false;
}

bool Document::ExportCurves(const QString &path, QString *error) const
{
    if (!Kernel()->IsOperationRunning())
        return writeCurves(curvesToExport(), path, error);
    *error = sentenceWhileRunning(path);
    return false;
}

void Document::noteOpened(const QString &path, const QString &title, const QString &folder,
                          bool isSaved)
{
    ++m_revision;
    if (isSaved)
        Kernel()->Undos().SetSaved(true);
    else
        Kernel()->Undos().SetSaved(false);
    Kernel()->Scene()->SetChanged(!isSaved);
    Refresh();
    setFile(path, title, folder);
}

void Document::setFile(const QString &path, const QString &title, const QString &folder)
{
    m_path = path;
    m_title = title;
    m_folder = folder;
    emit pathChanged();
}

void Document::noteSaved()
{
    Kernel()->Undos().SetSaved(true);
    Kernel()->Scene()->SetChanged(false);
    Refresh();
}

} // namespace orvane
