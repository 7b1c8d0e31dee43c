// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/node.h>
#include <orvane/geometry/placement.h>

#include <QScopedPointer>
#include <QVector>

namespace orvane {

class SubdivisionLevel;

//! An object of the scene: its levels of mesh and where it stands.
class ORVANE_EXPORT Geometry : public Node
{
public:
    Geometry();
    ~Geometry() override;
    Geometry(const Geometry &) = delete;
    Geometry &operator=(const Geometry &) = delete;

    int LevelCount() const { return m_levels.size(); }
    //! Null when out of range.
    SubdivisionLevel *Level(int index) const { return m_levels.value(index); }
    //! The level that is shown and drawn on; null while there is none.
    SubdivisionLevel *CurrentLevel() const { return m_levels.value(m_currentLevel); }
    //! Itself, its placement, its levels: every node that has a number of its own.
    QVector<Node *> Nodes();
    //! The companion node, owned; never null.
    orvane::Placement *Placement() const { return m_placement.data(); }
    bool IsHidden() const { return m_hidden; }
    bool Selected() const { return m_selected; }

    //! Takes the level over, and makes it the current one.
    void AddLevel(SubdivisionLevel *level);
    void SetCurrentLevel(int index);
    void SetHidden(bool hidden) { m_hidden = hidden; }
    void SetSelected(bool selected) { m_selected = selected; }
    //! Stands where the other does from now on. Vertices stay where they are in the world.
    void TakePlacementOf(const Geometry &other);

    void Serialize(Stream &stream) override;
    bool CheckValidity() const override;
    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();

private:
    QScopedPointer<orvane::Placement> m_placement;
    QVector<SubdivisionLevel *> m_levels; // owned
    int m_currentLevel = -1;
    bool m_hidden = false;
    bool m_selected = false;
};

} // namespace orvane
