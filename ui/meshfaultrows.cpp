// SPDX-License-Identifier: MIT
#include "ui/meshfaultrows.h"

#include "host/meshchecker/meshchecker.h"

#include <QtGlobal>

namespace {

using orvane::MeshChecker;

constexpr std::array<MeshFaultRow, 12> Rows{{
    {MeshChecker::HighValence, "Icons/mesh_highvalence.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>High-valence vertex</strong><p></p>At least one vertex has "
                       "more than 16 adjacent edges. You can use this mesh, but if you use it "
                       "for a map extraction with Mesh Smoothing turned on, there will be "
                       "artifacts in the resulting map. ")},
    {MeshChecker::NonManifoldEdge, "Icons/mesh_nonmanifold.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Non-manifold (T-shape)</strong><p></p>At least one edge in "
                       "this mesh is shared by more than two faces. This must be corrected "
                       "before the mesh can be used in Orvane.")},
    {MeshChecker::VertexSplice, "Icons/mesh_nonmanifold2.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Non-manifold (vertex splice)</strong><p></p>At least one "
                       "vertex in this mesh is shared by faces that are not a part of the "
                       "same fan. This must be corrected before the mesh can be used in "
                       "Orvane.")},
    {MeshChecker::TwoSidedFace, "Icons/mesh_twosided.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Two-sided faces</strong><p></p>There is at least one face in "
                       "this mesh whose boundary is made up of only two edges. Using this "
                       "mesh in Orvane will cause errors when sculpting and painting.")},
    {MeshChecker::TooManySides, "Icons/mesh_toomany.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Too many sides in a face</strong><p></p>The boundary of at "
                       "least one face in the mesh comprises more than 16 edges. This mesh "
                       "will not subdivide properly, and will show visible artifacts near "
                       "this face if painted.")},
    {MeshChecker::BoundaryValence, "Icons/mesh_boundaryvalence.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Boundary Vertex has Too Many Edges</strong><p></p>A vertex "
                       "is shared by more than two boundary edges. This must be corrected "
                       "before the mesh can be used in Orvane.")},
    {MeshChecker::InteriorValenceTwo, "Icons/mesh_interior2valence.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Interior Vertex has Valence Two</strong><p></p>A vertex on "
                       "the interior of the mesh has exactly two edges connecting it. This "
                       "mesh cannot be subdivided, and will cause problems when sculpting.")},
    {MeshChecker::ZeroLengthEdge, "Icons/mesh_zerolength.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Zero-length edges</strong><p></p>At least one edge in this "
                       "mesh is zero-length. If painted, this mesh will show visible "
                       "artifacts. This can be corrected by subdividing the mesh once with "
                       "Smooth Positions turned on.")},
    {MeshChecker::LaminaFaces, "Icons/mesh_laminafaces.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Lamina Faces</strong><p></p>Some faces in this mesh lie "
                       "exactly on top of other faces. This mesh will not subdivide "
                       "properly, and will have visible artifacts if painted.")},
    {MeshChecker::UVCrossing, "Icons/mesh_UVcrossing.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>UV Faces Crossing Tile Boundaries</strong><p></p>The UV "
                       "coordinates of some faces on this mesh cross tile boundaries. (In "
                       "Orvane, UV tiles are bounded by integer UV values, such as 0-1, 1-2, "
                       "2-3, etc.) This mesh cannot be painted properly. To see the problem, "
                       "go to the UV View tab.")},
    {MeshChecker::MissingUVs, "Icons/mesh_missingUVs.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Incomplete UV Set</strong><p></p>This mesh has an incomplete "
                       "set of UVs. You must fix this problem before you can subdivide or "
                       "paint the mesh properly. To replace the UVs, use \"Create UVs...\" "
                       "in the \"UVs and Maps\" menu.")},
    // The picture of the zero-length edge fits a degenerate face just as well.
    {MeshChecker::DegenerateFace, "Icons/mesh_zerolength.png",
     QT_TRANSLATE_NOOP("ValidateMeshFeedbackmDialog",
                       "<strong>Degenerated Face</strong><p></p>This mesh has some triangles "
                       "where three corners lie on the same line, the normal of this kind of "
                       "face may not be calculated properly.")},
}};

} // namespace

const std::array<MeshFaultRow, 12> &meshFaultRows()
{
    return Rows;
}
