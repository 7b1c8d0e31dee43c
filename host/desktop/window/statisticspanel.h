// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QVector>
#include <QWidget>

class QLabel;

namespace orvane {

class Geometry;
class Mesh;

//! What there is to know about a mesh: its faces by corners, open edges, faults.
class StatisticsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit StatisticsPanel(QWidget *parent = nullptr);

    //! Of the selected geometry, or else the active one. Measures again only when that is another
    //! mesh, or it has changed.
    void Refresh();
    QString Text() const;

private:
    bool isCurrent(const QString &name, const Mesh &mesh) const;
    void show(const QString &name, const Mesh &mesh);

    QLabel *m_text;
    // What the text was made of; the vectors are shared with the mesh.
    QString m_name;
    QVector<Vector> m_positions;
    QVector<int> m_corners;
};

} // namespace orvane
