// SPDX-License-Identifier: MIT
#include "host/desktop/viewport/meshoncard.h"

#include "host/meshchecker/meshchecker.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <algorithm>

namespace orvane {

void MeshOnCard::Update(const Geometry &geometry, bool flat, bool faults)
{
    const Mesh &mesh = *geometry.CurrentLevel();
    const int parts = m_data.Update(mesh);
    if (parts & MeshDrawData::PositionsPart)
        positions.Upload(m_data.Positions());
    if (parts & MeshDrawData::NormalsPart)
        normals.Upload(m_data.Normals());
    if (parts & MeshDrawData::FacesPart) {
        triangles.Upload(m_data.Triangles());
        wireframe.Upload(m_data.Wireframe());
    }
    if (parts & (MeshDrawData::PositionsPart | MeshDrawData::FacesPart)) {
        m_isFlatCurrent = false;
        m_areFaultsCurrent = false;
        measureEdges();
    }
    if (flat && !m_isFlatCurrent)
        uploadFlat(mesh);
    if (faults)
        uploadFaults(mesh);
}

void MeshOnCard::uploadFlat(const Mesh &mesh)
{
    const FlatDrawData data = flatDrawData(mesh);
    flatPositions.Upload(data.positions);
    flatNormals.Upload(data.normals);
    m_isFlatCurrent = true;
}

void MeshOnCard::uploadFaults(const Mesh &mesh)
{
    const QVector<int> &uvCorners = mesh.Polygons().uvCorners;
    if (m_areFaultsCurrent && uvCorners.constData() == m_uvCorners.constData())
        return;
    const FaultDrawData data = faultDrawData(mesh, MeshChecker().Find(&mesh));
    faultPoints.Upload(data.points);
    faultLines.Upload(data.lines);
    faultTriangles.Upload(data.triangles);
    m_uvCorners = uvCorners;
    m_areFaultsCurrent = true;
}

void MeshOnCard::measureEdges()
{
    const QVector<int> &edges = m_data.Wireframe();
    const QVector<Vector> &places = m_data.Positions();
    double sum = 0.0;
    m_longestEdge = 0.0f;
    for (int i = 0; i < edges.size(); i += 2) {
        const float length = (places.at(edges.at(i + 1)) - places.at(edges.at(i))).Length();
        m_longestEdge = std::max(m_longestEdge, length);
        sum += double(length);
    }
    m_meanEdge = edges.isEmpty() ? 0.0f : float(2.0 * sum / edges.size());
}

} // namespace orvane
