// SPDX-License-Identifier: MIT
#pragma once

#include "graph/export.h"

#include <orvane/base/operation.h>

#include <QCoreApplication>
#include <QList>
#include <QVector>

class IntersectionNode;

namespace orvane {
class Geometry;
class OrvaneCurve;
} // namespace orvane

//! Builds new meshes from curves: the one undoable action of the tool. It owns the geometry it
//! creates from creation until undo; a redo generates anew from the same curves and parameters and
//! gives the new objects the node numbers of the old.
class QUILLMESH_EXPORT ManualRetopoOperation : public orvane::Operation
{
    Q_DECLARE_TR_FUNCTIONS(ManualRetopoOperation)

public:
    //! To be filled by Serialize or assignment before it runs.
    ManualRetopoOperation();
    //! maximumEdges: of a face. mergeDistance, intersectionTolerance: fractions of the average edge
    //! length. overrunTolerance: fraction of an open curve's end segment.
    ManualRetopoOperation(int maximumEdges, float mergeDistance, float intersectionTolerance,
                          float overrunTolerance, bool useSelfIntersections);
    //! The curves stay the scene's.
    ManualRetopoOperation(const QList<orvane::OrvaneCurve *> &curves, int maximumEdges,
                          float mergeDistance, float intersectionTolerance, float overrunTolerance,
                          bool useSelfIntersections);
    //! A copy carries the state too: a copy of a done operation undoes when it runs.
    ManualRetopoOperation(const ManualRetopoOperation &other);
    ManualRetopoOperation &operator=(const ManualRetopoOperation &other);
    //! Destroys neither curves nor geometry nor intersection nodes.
    ~ManualRetopoOperation() override;

    //! One seed node per connected piece of the latest generation. Good until the next generation
    //! in this process starts, or longer while an operation that lists them lives.
    const QList<IntersectionNode *> &Subgraphs() const { return m_subgraphs; }
    //! What was created and is in the scene, in order of creation.
    const QVector<orvane::Geometry *> &AddGeometry() const { return m_addGeometry; }

    //! Creates, or takes back, by turns. False when nothing was created; the next call then tries
    //! again.
    bool ExecuteAndInvert() override;
    void Serialize(orvane::Stream &stream) override;

    const orvane::ClassDesc *RuntimeClass() const override;
    static const orvane::ClassDesc *StaticClass();
    //! One object for a count of 0 or 1, else an array that delete[] frees.
    static orvane::Node *CreateInstances(unsigned count);

private:
    bool create();
    bool takeBack();
    void generateMeshes();
    void replaceSubgraphs(const QList<IntersectionNode *> &nodes);
    void sortGraph(IntersectionNode *start);
    void generateMeshFromGraph(IntersectionNode *start);
    void addToScene(orvane::Geometry *geometry);
    void applySavedIDs(orvane::Geometry *geometry) const;

    bool m_firstExecution = true; // the next run creates; false: it takes back
    QList<orvane::OrvaneCurve *> m_curves;
    QVector<orvane::Geometry *> m_addGeometry;
    QVector<int> m_companionIDs; // node numbers of the placements, filled by undo, read by redo
    QVector<int> m_geometryIDs;
    QVector<int> m_meshIDs;
    QList<IntersectionNode *> m_subgraphs;
    int m_maxEdges = 5;
    float m_mergeDistance = 30.0f;
    float m_intersectionTolerance = 0.8f;
    float m_overrunTolerance = 0.0f;
    bool m_useSelfIntersections = true;
};
