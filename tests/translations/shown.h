// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

//! What people can read in a window of the tool that is opened just for that: titles, labels,
//! buttons, choices, tool tips, and what has been built but is not shown yet. What they type in is
//! left out.
QSet<QString> textsOfSettings();
QSet<QString> textsOfHelp();
//! With a row for every fault.
QSet<QString> textsOfFaults(const QString &meshName);
//! The host's help window, for a page that there is not, or that is refused, and after a search in
//! vain.
QSet<QString> textsOfMissingPage(const QString &identifier);
