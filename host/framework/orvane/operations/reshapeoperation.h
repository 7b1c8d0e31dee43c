// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/operations/nodeoperation.h>
#include <orvane/operations/sourcesurface.h>

#include <QCoreApplication>
#include <QVector>

namespace orvane {

class Geometry;

//! What moves the vertices of a geometry's current level along another geometry, its source.
//! Only the first execution asks the source. Undo and redo exchange the positions and normals that
//! are kept, 24 bytes a vertex: exact to the bit, whatever became of the source, on any processor.
class ORVANE_EXPORT ReshapeOperation : public NodeOperation
{
    Q_DECLARE_TR_FUNCTIONS(ReshapeOperation)

public:
    void Serialize(Stream &stream) override;

protected:
    //! Two geometries of the scene. The first execution answers false when the source is gone,
    //! hidden, without faces or the geometry itself, and when no vertex would move.
    ReshapeOperation(const Geometry *geometry, const Geometry *source);

    bool Exchange(Node &node, bool first) override;
    //! Where the vertices of the mesh are to be, each of them.
    virtual std::vector<SurfacePlace> NewPlaces(const Mesh &mesh,
                                                const SourceSurface &surface) const = 0;

private:
    static QString whyNot(const Geometry &geometry, const Geometry *source);
    bool reshape(Geometry &geometry);
    bool exchange(const Geometry &geometry);

    int m_sourceID;
    int m_level = -1;            // of the geometry; known after the first execution
    QVector<Vector> m_positions; // what the level is to have, or had; empty at first
    QVector<Vector> m_normals;   // parallel to m_positions
};

} // namespace orvane
