// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/attribute.h>
#include <orvane/base/node.h>

class QSettings;

namespace orvane {

//! What the user set for good. Kept in memory; a desktop loads and saves it.
class ORVANE_EXPORT Preferences : public Node
{
public:
    Preferences();

    //! Takes over what the settings have; the rest stays as it is.
    void Load(const QSettings &settings);
    void Save(QSettings &settings) const;

    AttributeInstance<bool> renderMeshFaults; // "Render Mesh Faults"
};

} // namespace orvane
