// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QString>
#include <QStringList>

#include <functional>

namespace orvane {

using LogSink = std::function<void(const QString &)>;

//! Adds a text to the host log and hands it to the sink, if there is one. Never fails.
ORVANE_EXPORT void log(const QString &text);

//! Where each text goes from now on, a log window or a terminal; an empty function for nowhere.
ORVANE_EXPORT void setLogSink(LogSink sink);

//! The latest texts, oldest first; at most 5,000 are kept.
ORVANE_EXPORT QStringList recentLog();

} // namespace orvane
