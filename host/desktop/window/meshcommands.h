// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/window/commandgroup.h"

namespace orvane {

//! The host's own part of the Mesh menu: what is drawn on, and what can be done to a new mesh.
class MeshCommands : public CommandGroup
{
    Q_OBJECT

public:
    explicit MeshCommands(const Workbench &bench);

private:
    void relax();
    void project();
};

} // namespace orvane
