// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QList>
#include <QString>

#include <vector>

struct Drawing;

namespace orvane {
class Mesh;
class OrvaneCurve;
} // namespace orvane

//! The kernel's scene with one input in it: curves, and the mesh that they lie on.
//! There is one at a time: a new one empties the scene.
class BenchScene
{
public:
    //! Names of the real nets of the models folder, whether it is at hand or not.
    static QStringList modelNets();

    //! The drawing on a flat mesh of quads.
    explicit BenchScene(const Drawing &drawing);
    //! A net of the models folder on its mesh. Without curves when the folder is not at hand.
    explicit BenchScene(const QString &modelNet);

    const QList<orvane::OrvaneCurve *> &curves() const { return m_curves; }
    const orvane::Mesh *mesh() const { return m_mesh; }
    int segmentCount() const;
    //! What the search sees: positions of the samples, curve by curve.
    std::vector<std::vector<orvane::Vector>> polylines() const;

private:
    QList<orvane::OrvaneCurve *> m_curves; // the scene's
    orvane::Mesh *m_mesh = nullptr;        // the scene's
};
