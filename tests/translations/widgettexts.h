// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>

class QAction;
class QWidget;

//! What people can read of a widget, without what is in it: titles, labels, choices, hints and what
//! is read aloud. What they type in is left out.
QSet<QString> textsOf(const QWidget &widget);
//! The same of the widget, of everything in it and of their commands, shown or not.
QSet<QString> allTextsOf(const QWidget &widget);
