// SPDX-License-Identifier: MIT
#pragma once

#include "cli/options.h"

#include <QString>
#include <QVector>

namespace orvane {
class Geometry;
} // namespace orvane

//! One run of `quillmesh replay`: open the scene, load the plug-ins, give each line to the tools
//! that follow the kernel's command attribute, save the scene.
class ReplayJob
{
public:
    explicit ReplayJob(const ReplayOptions &options) : m_options(options) {}

    //! Prints what each line did, or one sentence about what went wrong, and answers the exit code.
    int run();

private:
    //! A line of the command file that is neither empty nor a comment.
    struct Command
    {
        int line; // counted from 1
        QString text;
    };

    bool outputCanBeWritten(QString *error) const;
    bool readCommands(QString *error);
    bool openScene(QString *error) const;
    void loadPlugins() const;
    void replay(const Command &command);
    void report(const QVector<orvane::Geometry *> &made);

    ReplayOptions m_options;
    QVector<Command> m_commands;
    int m_meshes = 0;           // that were made
    int m_meshesWithFaults = 0; // among them
    bool m_discarded = false;   // did faults cost a mesh?
};
