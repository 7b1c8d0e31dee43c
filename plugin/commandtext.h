// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

//! The five values of a command, in the order and the units in which its text carries them.
struct CommandValues
{
    //! The overrun as the operation takes it: a fraction.
    float overrunFraction() const;

    int maximumEdges = 0;               // of a face
    float mergeDistance = 0.0f;         // fraction of the average edge length
    float intersectionTolerance = 0.0f; // fraction of the average edge length
    float overrunTolerance = 0.0f;      // percent of an open curve's end segment
    bool useSelfIntersections = false;
};

//! The line that records a creation: the keyword and the values, a blank before each. A float
//! keeps six significant digits.
QString commandText(const CommandValues &values);

//! The values of a recorded line. A field that is empty takes its default, one that is no number
//! reads as zero, and fields beyond the fifth are ignored. Nothing when the keyword is another one.
std::optional<CommandValues> readCommand(const QString &text);
