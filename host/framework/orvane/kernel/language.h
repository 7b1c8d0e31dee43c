// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QString>

namespace orvane {

//! Where pictures, help pages and translations lie: beside the program's folder, share/orvane.
ORVANE_EXPORT QString resourceFolder();

//! Shows all texts in a language from now on, of host and plug-ins alike: of each translation
//! NAME_LANGUAGE.qm in the folder, the one that fits best. English names what has no text of its
//! own, so it is always there beneath. language: a code such as "de" or "de_AT", which numbers and
//! help pages follow too; empty for the languages the user gave the system, in their order.
//! Takes the place of the language before. Plug-ins make their menu entries when they are
//! initialised, so choose before. False when nothing in the folder fits; all is English then.
ORVANE_EXPORT bool setLanguage(const QString &folder, const QString &language);

} // namespace orvane
