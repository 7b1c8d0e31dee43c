// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

//! How often a random test repeats: what the environment variable asks for, else the usual number.
inline int repetitions(const char *variable, int usual)
{
    const int asked = qEnvironmentVariableIntValue(variable);
    return asked > 0 ? asked : usual;
}
