// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/meshdrawdata.h"
#include "host/desktop/viewport/cardarray.h"

namespace orvane {

class Geometry;

//! What of a geometry's shown level lies on the graphics card. Only what changed is uploaded.
class MeshOnCard
{
public:
    //! Needs a current context, and a geometry with a level.
    void Update(const Geometry &geometry, bool flat, bool faults);

    //! Of the polygons' edges, in the frame of the geometry; 0 without edges.
    float MeanEdge() const { return m_meanEdge; }
    float LongestEdge() const { return m_longestEdge; }

    CardArray positions;
    CardArray normals;
    CardArray triangles{QOpenGLBuffer::IndexBuffer};
    CardArray wireframe{QOpenGLBuffer::IndexBuffer};
    CardArray flatPositions; // these two as of the last Update for flat shading
    CardArray flatNormals;
    CardArray faultPoints; // these three as of the last Update with faults
    CardArray faultLines;
    CardArray faultTriangles;

private:
    void uploadFlat(const Mesh &mesh);
    void uploadFaults(const Mesh &mesh);
    void measureEdges();

    MeshDrawData m_data;
    QVector<int> m_uvCorners; // as of the faults, shared with the mesh
    float m_meanEdge = 0.0f;
    float m_longestEdge = 0.0f;
    bool m_isFlatCurrent = false;
    bool m_areFaultsCurrent = false;
};

} // namespace orvane
