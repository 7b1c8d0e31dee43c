// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <array>

//! What a test program has in place of OpenGL: functions of the same names that note each call and
//! what is drawn, so that no display is needed. They are those that the overlay calls; a program
//! that links the overlay without OpenGL and calls one more does not link.
class RecordingGl
{
public:
    using Color = std::array<float, 4>; // red, green, blue, alpha

    //! What drawing depends on; at first as a new context has it.
    struct State
    {
        Color color = {1.0f, 1.0f, 1.0f, 1.0f};
        float lineWidth = 1.0f;
        float pointSize = 1.0f;
        bool isBlending = false;
        bool isSmoothingPoints = false;
        bool isWritingDepth = true;
        unsigned blendSource = 1;          // GL_ONE
        unsigned blendDestination = 0;     // GL_ZERO
        unsigned pointSmoothHint = 0x1100; // GL_DONT_CARE
    };

    //! One pair of begin and end, with the state it was drawn in.
    struct Primitive
    {
        unsigned mode = 0; // GL_LINES, GL_POINTS...
        QList<orvane::Vector> vertices;
        State state;
    };

    static RecordingGl &instance();

    //! Forgets what was drawn; the state is a new context's again.
    void reset();

    QList<Primitive> primitivesOf(unsigned mode) const;
    QList<Primitive> strokes() const; // lines
    QList<Primitive> dots() const;    // points
    bool isIdle() const { return calls.isEmpty(); }

    State state;
    QList<Primitive> primitives;
    QStringList calls; // in order, with their arguments as numbers
    bool isBetweenBeginAndEnd = false;
    int mistakes = 0; // calls that OpenGL forbids where they were made, or values it refuses
};
