// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/geometry/topology.h>

#include <QVector>

namespace orvane {

class Geometry;
class Mesh;
class Node;
class OrvaneCurve;
class SceneCamera;

//! Where a node stands in the scene, so that one that comes back stands there again.
struct ScenePlace
{
    int index = -1;      // in the list; -1: at its end
    int activeRank = -1; // among the geometries that were made active; -1: it never was
};

//! The geometries and curves people work on, in the order they came. It owns what is in it.
class ORVANE_EXPORT Scene
{
public:
    Scene() = default;
    ~Scene();
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;

    int NodeCount() const { return m_nodes.size(); }
    //! Null when out of range.
    Node *NodeAt(int index) const { return m_nodes.value(index); }
    bool Contains(const Node *node) const;
    ScenePlace PlaceOf(const Node *node) const;
    //! The geometries among the nodes, in order.
    QVector<Geometry *> Geometries() const;
    //! The geometries that were made active and are still here, the latest last, each once.
    const QVector<Geometry *> &ActiveHistory() const { return m_activeHistory; }
    //! The geometry that curve tools draw on: the one that was chosen, while it is here, else the
    //! first; null when there is none.
    Geometry *DrawingSurface() const;
    //! The number of the geometry that was chosen, whether it is here or not; 0 for none.
    int ChosenSurface() const { return m_chosenSurface; }
    //! The geometry that was made active last of those still here; null when none was.
    Geometry *ActiveGeometry() const;
    //! The one the view is drawn with; null without a view.
    const SceneCamera *ActiveCamera() const { return m_activeCamera; }
    //! Has it changed since it was last saved?
    bool IsChanged() const { return m_changed; }

    //! A new mesh, owned by the caller until a geometry takes it as a level.
    Mesh *CreateMesh(Topology::FaceType type) const;

    //! Takes the geometry over, at the end of the list. Null, or one that is here, is ignored.
    void AddGeometry(Geometry *geometry);
    //! Gives the geometry back to the caller, not destroyed. Its nodes keep their numbers.
    void RemoveGeometry(Geometry *geometry);
    void AddCurve(OrvaneCurve *curve);
    void RemoveCurve(OrvaneCurve *curve);
    //! Takes a geometry or curve over at the place it had; any other node is refused: false.
    bool Restore(Node *node, const ScenePlace &place);
    //! Gives a geometry or curve back to the caller, as RemoveGeometry and RemoveCurve do.
    void Remove(Node *node);
    //! Destroys all that is in it.
    void Clear();

    //! A geometry that is not in the scene, or null, is ignored.
    void SetActiveGeometry(Geometry *geometry);
    //! Not owned; it is reset to null before it goes.
    void SetActiveCamera(const SceneCamera *camera) { m_activeCamera = camera; }
    void SetDrawingSurface(const Geometry *geometry);
    //! As ChosenSurface gave it.
    void ChooseSurface(int id) { m_chosenSurface = id; }
    void SetChanged(bool changed) { m_changed = changed; }

private:
    QVector<Node *> m_nodes; // owned
    QVector<Geometry *> m_activeHistory;
    const SceneCamera *m_activeCamera = nullptr;
    int m_chosenSurface = 0; // node number; 0: none
    bool m_changed = false;
};

} // namespace orvane
