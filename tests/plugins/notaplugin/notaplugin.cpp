// SPDX-License-Identifier: MIT
// A sound library that has nothing to do with plug-ins.
#include <orvane/math/export.h>

extern "C" ORVANE_EXPORT int notAPlugin()
{
    return 1;
}
