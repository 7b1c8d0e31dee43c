// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct RunReport;

//! What a run made, in one line of the user's language.
QString summaryOf(const RunReport &report);
