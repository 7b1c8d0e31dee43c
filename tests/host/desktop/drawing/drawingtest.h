// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/scenecleaner.h"

#include "host/desktop/drawing/curveshape.h"

#include <orvane/geometry/surfacelocator.h>
#include <orvane/math/axisalignedboundingbox.h>
#include <orvane/math/matrix.h>

#include <QScopedPointer>

#include <random>

namespace orvane {
class Mesh;
class SubdivisionLevel;
struct Plane;
struct SectionLine;
} // namespace orvane

//! Quads about the z axis: a tube of radius small round a circle of radius large.
orvane::SubdivisionLevel *torus(float large, float small, int segments, int rings);
//! A floor z = 0 and a wall x = 0 that meet along the y axis, each side by side.
orvane::SubdivisionLevel *floorAndWall(int side);

//! Above the plane, times the length of its normal.
double heightOf(const orvane::Vector &place, const orvane::Plane &plane);
//! How long the cut of the mesh is: the sum over its triangles, each on its own.
double lengthByEveryFace(const orvane::Mesh &mesh, const orvane::Plane &plane);
double lengthOfAll(const QVector<orvane::SectionLine> &lines);

//! Tests of curves on one mesh, which the scene owns.
class DrawingTest : public SceneCleaner
{
protected:
    //! From now on the tests draw on this.
    void drawOn(orvane::SubdivisionLevel *shape, const orvane::Matrix &placement = {});
    void drawOn(const orvane::Mesh &mesh);
    const orvane::Mesh &mesh() const { return *m_mesh; }
    const orvane::SurfaceLocator &surface() const { return *m_surface; }
    const orvane::AxisAlignedBoundingBox &box() const { return m_box; }
    float diagonal() const { return m_box.Diagonal(); }

    orvane::SurfacePoint hit(const orvane::Vector &near) const;
    //! An open curve of the points of the surface nearest to the places.
    orvane::CurveShape line(const QVector<orvane::Vector> &near) const;
    orvane::CurveShape line(const orvane::Vector &from, const orvane::Vector &to, int points) const;
    //! Closed, about the z axis.
    orvane::CurveShape ring(float radius, float height, int points) const;

    //! Every point bound to a face, within its corners, where its face and local position say.
    void expectOnSurface(const orvane::CurveShape &shape) const;
    void expectEven(const orvane::CurveShape &shape, float tolerance = 0.1f) const;
    //! A closing point short of the first one when it is closed, none when not.
    void expectWellClosed(const orvane::CurveShape &shape) const;

private:
    const orvane::Mesh *m_mesh = nullptr;
    QScopedPointer<orvane::SurfaceLocator> m_surface;
    orvane::AxisAlignedBoundingBox m_box; // of the mesh, world space
};
