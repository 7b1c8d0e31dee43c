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

    //! Of the selected geometry, or else the active one. Measures only what is neither the mesh
    //! shown last nor the one before: undo and redo go back and forth.
    void Refresh();
    QString Text() const;

private:
    // What was measured; the vectors are shared with the mesh.
    struct Measured
    {
        bool IsOf(const Mesh &mesh) const;

        QVector<Vector> positions;
        QVector<int> corners;
        QString figures; // as rich text
    };

    const QString &figuresFor(const Mesh &mesh);

    QLabel *m_text;
    QVector<Measured> m_measured; // the latest last
};

} // namespace orvane
