// SPDX-License-Identifier: MIT
#include "plugin/quillmesh.h"

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/plugin.h>

namespace {

const int MenuPosition = 800;
const int MenuKind = 1;

Quillmesh *toolNode = nullptr; // made by the initialiser, lives until the process goes

void showDialog()
{
    if (toolNode)
        toolNode->showDialog();
}

void initialise()
{
    orvane::Node *node = orvane::Kernel()->CreateClassInstance(Quillmesh::StaticClass());
    toolNode = dynamic_cast<Quillmesh *>(node);
    orvane::Kernel()->Interface()->AddCallbackMenuItem(
        orvane::Interface::menuMesh, QString(), Quillmesh::tr("Create Mesh from Curves..."),
        showDialog, QStringLiteral("manualRetopo"), MenuPosition, false, MenuKind);
}

const orvane::Plugin Record("Quillmesh", "Quill Mesh", "The Quillmesh developers",
                            "https://quillmesh.example", __DATE__ " " __TIME__, initialise);

} // namespace
