// SPDX-License-Identifier: MIT
#pragma once

#include "cli/commandfile.h"
#include "cli/options.h"

//! One run of `quillmesh replay`: open the scene, load the plug-ins, give each line to the tools
//! that follow the kernel's command attribute, save the scene.
class ReplayJob
{
public:
    explicit ReplayJob(const ReplayOptions &options) : m_options(options) {}

    //! Prints what each line did, or one sentence about what went wrong, and answers the exit code.
    int run();

private:
    bool outputCanBeWritten(QString *error) const;
    bool openScene(QString *error) const;
    void loadPlugins() const;
    void replay(const CommandLine &command);
    void warn(const CommandLine &command, const QString &what, const QString &hint = {}) const;
    //! What the command made: the geometries of the scene from this node on.
    void report(int firstNode);

    ReplayOptions m_options;
    int m_meshes = 0;           // that were made
    int m_meshesWithFaults = 0; // among them
    bool m_discarded = false;   // did faults cost a mesh?
};
