// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace orvane {

//! What the words after the program's name ask for. Paths are absolute: the working directory
//! changes before they are used.
struct Options
{
    QStringList files;         // meshes, curves and scenes to open, in this order
    QStringList commands;      // recorded commands to carry out once all is open
    QStringList pluginFolders; // beside the standard ones
    QString language;          // empty: the user's preference
    QString screenshot;        // where the picture of the window goes; empty for none
    bool testMode = false;
    bool recovery = true; // is a scene that a crash left behind offered?
};

struct OptionsResult
{
    enum Kind {
        Run,      //!< the options say what to do
        ShowText, //!< the text is what was asked for
        Wrong     //!< the text says what is wrong
    };

    Kind kind = Run;
    QString text;
    Options options;
};

//! arguments: the program's name first. Relative paths count from the working directory of now.
OptionsResult readOptions(const QStringList &arguments);
//! Do they ask for a text only? Then no display is needed.
bool asksForText(const QStringList &arguments);

} // namespace orvane
