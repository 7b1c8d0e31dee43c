// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTextBrowser;
class QWidget;

//! The host's help windows; empty before the first help.
QList<QWidget *> helpWindows();
//! What the one help window shows; the test stops when there are none or several.
QTextBrowser *helpBrowser();
QString helpText();
