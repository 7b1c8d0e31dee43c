// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace orvane {
class Matrix;
}

class QObject;

// As Cg declares them: only who calls Cg needs its headers.
typedef struct _CGparameter *CGparameter;
typedef struct _CGprogram *CGprogram;

using OverlayColor = std::array<float, 4>; // red, green, blue, alpha

//! The shader programs of the overlay and their parameters, all null until the first draw.
struct OverlayPrograms
{
    CGprogram lines = nullptr;
    CGprogram points = nullptr; // made and kept; the dots too are drawn with the lines program
    CGparameter linesMatrix = nullptr;
    CGparameter pointsMatrix = nullptr;
    CGparameter linesColor = nullptr;
    CGparameter pointsColor = nullptr;
};

// A build without Cg has these functions too; there they do nothing.

//! Makes both programs while either is missing; what cannot be made stays null. They are destroyed
//! when the current OpenGL context goes, if the owner still lives then.
void createPrograms(OverlayPrograms &programs, QObject *owner);
//! All are null afterwards.
void destroyPrograms(OverlayPrograms &programs);
//! Enables the profiles and binds the lines program, if there is one.
void beginPrograms(const OverlayPrograms &programs);
void endPrograms();
//! Of the lines program, which there must be. The matrix takes the world to clip space.
void setMatrix(const OverlayPrograms &programs, const orvane::Matrix &matrix);
void setColor(const OverlayPrograms &programs, const OverlayColor &color);
