// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QString>

class QAction;
class QObject;

namespace orvane {

//! What an action is to be: its object name, its text and one sentence about it.
struct ActionWords
{
    const char *name;
    QString text;
    QString tip;
    QKeySequence shortcut = {};
    const char *icon = nullptr; // of Icons/desktop, without extension
};

//! A new action of the owner. Its tip tells the shortcut, too.
QAction *newAction(QObject *owner, const ActionWords &words);

} // namespace orvane
