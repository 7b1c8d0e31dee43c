// SPDX-License-Identifier: MIT
// Takes the place of overlayprograms.cpp in a build without Cg.
#include "plugin/overlayprograms.h"

void createPrograms(OverlayPrograms &, QObject *) {}

void destroyPrograms(OverlayPrograms &) {}

void beginPrograms(const OverlayPrograms &) {}

void endPrograms() {}

void setMatrix(const OverlayPrograms &, const orvane::Matrix &) {}

void setColor(const OverlayPrograms &, const OverlayColor &) {}
