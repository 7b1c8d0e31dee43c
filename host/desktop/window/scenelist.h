// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QTreeWidget>

namespace orvane {

class Node;

//! The geometries and curves of the scene, to select, show, hide, rename and delete; all of it
//! through operations. Bold: the active geometry. A pencil: the one that is drawn on. A number: the
//! creation that a mesh came from. The selection is the scene's own, both ways.
class SceneList : public QTreeWidget
{
    Q_OBJECT

public:
    enum Column { NameColumn, MarkColumn, EyeColumn };

    explicit SceneList(QWidget *parent = nullptr);

    //! Brings it up to date with the scene. While a name is being typed, once that is done.
    void Refresh();
    //! Another scene is open: the meshes that are here now are no creations of this session.
    void BeginAnew();
    //! The rows that are selected, as nodes of the scene.
    QVector<Node *> SelectedNodes() const;
    //! Null for a node that has no row.
    QTreeWidgetItem *RowOf(const Node *node) const;

    void RenameCurrent();
    //! Shows the selected rows when all of them are hidden, and hides them otherwise.
    void ToggleSelected();
    //! One step for all of them.
    void DeleteSelected();
    //! Curve tools draw on the geometry of the current row from now on.
    void DrawOnCurrent();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    QVector<Node *> listed() const;
    void rebuild(const QVector<Node *> &nodes);
    void placeRow(int number, QTreeWidgetItem *group, int place);
    void fillRows(const QVector<Node *> &nodes);
    void fillRow(QTreeWidgetItem *row, Node &node);
    void noteCreations();
    Node *nodeOf(const QTreeWidgetItem *row) const;
    void takeSelection();
    void rename(QTreeWidgetItem *row, int column);
    void clickEye(QTreeWidgetItem *row, int column);

    QTreeWidgetItem *m_geometries;
    QTreeWidgetItem *m_curves;
    QHash<int, QTreeWidgetItem *> m_rows; // by node number
    QHash<int, int> m_creations; // node number of a geometry, and the creation it came from
    int m_creationCount = 0;
    bool m_filling = false;
};

} // namespace orvane
