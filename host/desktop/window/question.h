// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

class QWidget;

namespace orvane {

//! A modal question with buttons of our own words.
struct Question
{
    struct Button
    {
        const char *name; // object name, and the answer
        QString text;
    };

    const char *name; // object name
    QString text;
    QString detail;
    QVector<Button> buttons; // the first is what Enter chooses, the last what Esc does
};

//! The name of the button that was chosen.
QString ask(QWidget *parent, const Question &question);

} // namespace orvane
