// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/vector.h>

#include <QString>

#include <string_view>
#include <vector>

namespace orvane {

using Words = std::vector<std::string_view>;

//! Three coordinates after the keyword; what follows them (weight, colour) does not matter here.
//! False, and in *error what was expected, when they are no finite numbers.
bool readObjPlace(const Words &words, Vector *place, QString *error);

//! A reference of OBJ, counted from 1, or backwards from the latest when it is negative: an index
//! from 0. One beyond the count so far is let through, because what it names may come later.
//! -1, and in *error what is wrong with it, else. what: what it refers to, such as "vertex".
int readObjReference(std::string_view word, int countSoFar, QLatin1String what, QString *error);

//! The words after the keyword as a name.
QString objName(const Words &words);

QString textOf(std::string_view word);

} // namespace orvane
