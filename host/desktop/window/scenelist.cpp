// SPDX-License-Identifier: MIT
#include "host/desktop/window/scenelist.h"

#include "host/desktop/window/icons.h"

#include <orvane/base/classdesc.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/addoperations.h>
#include <orvane/operations/deleteoperations.h>
#include <orvane/operations/drawonoperation.h>
#include <orvane/operations/renameoperation.h>
#include <orvane/operations/selectoperation.h>
#include <orvane/operations/showoperation.h>

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>

namespace orvane {

namespace {

const int NodeNumber = Qt::UserRole;
const int IconName = Qt::UserRole + 1;
const int EyeWidth = 30; // pixels

bool isHiddenNode(const Node &node)
{
    if (const auto *geometry = dynamic_cast<const Geometry *>(&node))
        return geometry->IsHidden();
    const auto *curve = dynamic_cast<const CurveBase *>(&node);
    return curve && curve->IsHidden();
}

bool isSelectedNode(const Node &node)
{
    if (const auto *geometry = dynamic_cast<const Geometry *>(&node))
        return geometry->Selected();
    const auto *curve = dynamic_cast<const CurveBase *>(&node);
    return curve && curve->Selected();
}

template <typename T>
QVector<T *> ofKind(const QVector<Node *> &nodes)
{
    QVector<T *> found;
    for (Node *node : nodes) {
        if (auto *typed = dynamic_cast<T *>(node))
            found.append(typed);
    }
    return found;
}

QTreeWidgetItem *newGroup(QTreeWidget *list)
{
    auto *group = new QTreeWidgetItem(list);
    group->setFlags(Qt::ItemIsEnabled);
    group->setFirstColumnSpanned(true);
    group->setExpanded(true);
    return group;
}

// An icon comes from a file and equals no other: it is set only when it is another one.
void setRowIcon(QTreeWidgetItem *row, int column, const QString &name)
{
    if (row->data(column, IconName).toString() == name)
        return;
    row->setData(column, IconName, name);
    row->setIcon(column, desktopIcon(name));
}

// A mesh of a file is no creation.
bool wasImported()
{
    const UndoQueue &undos = Kernel()->Undos();
    return undos.Position() == 0
           || undos.Steps().at(undos.Position() - 1).constFirst().className
                  == AddGeometryOperation::StaticClass()->Name();
}

} // namespace

SceneList::SceneList(QWidget *parent)
    : QTreeWidget(parent), m_geometries(newGroup(this)), m_curves(newGroup(this))
{
    setObjectName(QStringLiteral("sceneList"));
    setAccessibleName(tr("Scene list"));
    setColumnCount(3);
    setHeaderHidden(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    header()->setSectionResizeMode(MarkColumn, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(EyeColumn, QHeaderView::Fixed);
    header()->resizeSection(EyeColumn, EyeWidth);
    setIndentation(14);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &SceneList::takeSelection);
    connect(this, &QTreeWidget::itemChanged, this, &SceneList::rename);
    connect(this, &QTreeWidget::itemClicked, this, &SceneList::clickEye);
    Refresh();
}

void SceneList::Refresh()
{
    if (state() == EditingState)
        return; // closeEditor comes back to it
    const QScopedValueRollback<bool> filling(m_filling, true);
    noteCreations();
    const QVector<Node *> nodes = listed();
    bool same = nodes.size() == m_rows.size();
    for (const Node *node : nodes)
        same = same && m_rows.contains(node->ID());
    if (!same)
        rebuild(nodes);
    fillRows(nodes);
}

void SceneList::BeginAnew()
{
    m_creations.clear();
    m_creationCount = 0;
    for (const Geometry *geometry : Kernel()->Scene()->Geometries())
        m_creations.insert(geometry->ID(), 0);
}

QVector<Node *> SceneList::SelectedNodes() const
{
    QVector<Node *> nodes;
    for (Node *node : listed()) {
        const QTreeWidgetItem *row = RowOf(node);
        if (row && row->isSelected())
            nodes.append(node);
    }
    return nodes;
}

QTreeWidgetItem *SceneList::RowOf(const Node *node) const
{
    return node ? m_rows.value(node->ID()) : nullptr;
}

void SceneList::RenameCurrent()
{
    if (nodeOf(currentItem()))
        editItem(currentItem(), NameColumn);
}

void SceneList::ToggleSelected()
{
    const QVector<Node *> nodes = SelectedNodes();
    bool allHidden = true;
    for (const Node *node : nodes)
        allHidden = allHidden && isHiddenNode(*node);
    if (nodes.isEmpty())
        return;
    ShowOperation operation(nodes, allHidden);
    Kernel()->DoOperation(&operation, true, false);
}

void SceneList::DeleteSelected()
{
    const QVector<Node *> nodes = SelectedNodes();
    const QVector<OrvaneCurve *> curves = ofKind<OrvaneCurve>(nodes);
    const QVector<Geometry *> geometries = ofKind<Geometry>(nodes);
    bool merge = false;
    if (!curves.isEmpty()) {
        DeleteCurveOperation operation(curves);
        merge = Kernel()->DoOperation(&operation, true, false);
    }
    if (!geometries.isEmpty()) {
        DeleteGeometryOperation operation(geometries);
        Kernel()->DoOperation(&operation, true, merge);
    }
}

void SceneList::DrawOnCurrent()
{
    const auto *geometry = dynamic_cast<Geometry *>(nodeOf(currentItem()));
    if (!geometry || geometry == Kernel()->Scene()->DrawingSurface())
        return;
    DrawOnOperation operation(geometry);
    Kernel()->DoOperation(&operation, true, false);
}

void SceneList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        RenameCurrent();
    else if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier)
        ToggleSelected();
    else
        QTreeWidget::keyPressEvent(event);
}

void SceneList::contextMenuEvent(QContextMenuEvent *event)
{
    const Node *node = nodeOf(currentItem());
    if (!node)
        return;
    QMenu menu(this);
    menu.addAction(tr("Rename"), this, &SceneList::RenameCurrent);
    menu.addAction(tr("Show or Hide"), this, &SceneList::ToggleSelected);
    if (dynamic_cast<const Geometry *>(node))
        menu.addAction(tr("Draw on This Mesh"), this, &SceneList::DrawOnCurrent);
    menu.addSeparator();
    menu.addAction(tr("Delete"), this, &SceneList::DeleteSelected);
    menu.exec(event->globalPos());
}

void SceneList::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTreeWidget::closeEditor(editor, hint);
    Refresh();
}

QVector<Node *> SceneList::listed() const
{
    const Scene *scene = Kernel()->Scene();
    QVector<Node *> nodes;
    for (int i = 0; i < scene->NodeCount(); ++i)
        nodes.append(scene->NodeAt(i));
    return nodes;
}

// Rows that stay are kept: making hundreds anew is felt.
void SceneList::rebuild(const QVector<Node *> &nodes)
{
    const int current = currentItem() ? currentItem()->data(NameColumn, NodeNumber).toInt() : 0;
    QHash<int, QTreeWidgetItem *> left;
    left.swap(m_rows);
    for (const Node *node : nodes)
        m_rows.insert(node->ID(), left.take(node->ID()));
    qDeleteAll(left);
    int geometries = 0;
    int curves = 0;
    for (const Node *node : nodes) {
        const bool isGeometry = dynamic_cast<const Geometry *>(node) != nullptr;
        placeRow(node->ID(), isGeometry ? m_geometries : m_curves,
                 isGeometry ? geometries++ : curves++);
    }
    if (QTreeWidgetItem *row = m_rows.value(current))
        setCurrentItem(row, NameColumn, QItemSelectionModel::NoUpdate);
}

void SceneList::placeRow(int number, QTreeWidgetItem *group, int place)
{
    QTreeWidgetItem *&row = m_rows[number];
    if (row && group->child(place) == row)
        return;
    if (row) {
        group->removeChild(row);
    } else {
        row = new QTreeWidgetItem; // owned by the group
        row->setData(NameColumn, NodeNumber, number);
        row->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable);
    }
    group->insertChild(place, row);
}

void SceneList::fillRows(const QVector<Node *> &nodes)
{
    for (Node *node : nodes)
        fillRow(RowOf(node), *node);
    m_geometries->setText(NameColumn, tr("Meshes (%1)").arg(m_geometries->childCount()));
    m_curves->setText(NameColumn, tr("Curves (%1)").arg(m_curves->childCount()));
}

void SceneList::fillRow(QTreeWidgetItem *row, Node &node)
{
    const Scene *scene = Kernel()->Scene();
    const bool hidden = isHiddenNode(node);
    const bool surface = &node == scene->DrawingSurface();
    const bool isGeometry = dynamic_cast<Geometry *>(&node) != nullptr;
    row->setText(NameColumn, node.Name());
    setRowIcon(row, NameColumn,
               surface      ? QStringLiteral("surface")
               : isGeometry ? QStringLiteral("mesh")
                            : QStringLiteral("curve"));
    QFont bold = font();
    bold.setBold(&node == scene->ActiveGeometry());
    row->setFont(NameColumn, bold);
    row->setToolTip(NameColumn, surface ? tr("%1: curve tools draw on this mesh.").arg(node.Name())
                                        : node.Name());
    const int creation = m_creations.value(node.ID());
    row->setText(MarkColumn, creation > 0 ? QStringLiteral("#%1").arg(creation) : QString());
    row->setToolTip(MarkColumn, creation > 0 ? tr("From creation %1").arg(creation) : QString());
    setRowIcon(row, EyeColumn, hidden ? QStringLiteral("hidden") : QStringLiteral("shown"));
    const QString eye = hidden ? tr("Hidden. Click to show.") : tr("Shown. Click to hide.");
    row->setToolTip(EyeColumn, eye);
    row->setData(EyeColumn, Qt::AccessibleTextRole, eye);
    row->setSelected(isSelectedNode(node));
}

// A geometry that is new since the last look and was not imported was made by the latest step;
// those of one step are one creation. Redo brings them back under the same numbers.
void SceneList::noteCreations()
{
    bool counted = false;
    for (const Geometry *geometry : Kernel()->Scene()->Geometries()) {
        if (m_creations.contains(geometry->ID()))
            continue;
        const bool opened = wasImported();
        if (!opened && !counted)
            ++m_creationCount;
        counted = counted || !opened;
        m_creations.insert(geometry->ID(), opened ? 0 : m_creationCount);
    }
}

Node *SceneList::nodeOf(const QTreeWidgetItem *row) const
{
    const int number = row ? row->data(NameColumn, NodeNumber).toInt() : 0;
    for (Node *node : listed()) {
        if (number > 0 && node->ID() == number)
            return node;
    }
    return nullptr;
}

void SceneList::takeSelection()
{
    if (m_filling)
        return;
    const QVector<Node *> selected = SelectedNodes();
    QVector<Node *> before;
    for (Node *node : listed()) {
        if (isSelectedNode(*node))
            before.append(node);
    }
    if (selected == before)
        return;
    SelectOperation operation(selected);
    if (!Kernel()->DoOperation(&operation, true, false))
        Refresh();
}

void SceneList::rename(QTreeWidgetItem *row, int column)
{
    if (m_filling || column != NameColumn)
        return;
    const Node *node = nodeOf(row);
    const QString name = row->text(NameColumn).trimmed();
    if (!node || name.isEmpty() || name == node->Name())
        return; // closeEditor puts the old name back
    RenameOperation operation(node, name);
    Kernel()->DoOperation(&operation, true, false);
}

void SceneList::clickEye(QTreeWidgetItem *row, int column)
{
    Node *node = nodeOf(row);
    if (column != EyeColumn || !node)
        return;
    ShowOperation operation({node}, isHiddenNode(*node));
    Kernel()->DoOperation(&operation, true, false);
}

} // namespace orvane
