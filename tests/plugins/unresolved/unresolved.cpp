// SPDX-License-Identifier: MIT
// Its initialiser calls a function that no library has.
#include <orvane/kernel/plugin.h>

extern "C" void nobodyWroteThis();

namespace {

void initialise()
{
    nobodyWroteThis();
}

const orvane::Plugin Record("Unresolved", "Calls nobody", "", "", "", initialise);

} // namespace
