// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTimer>

#include <functional>

class QDialog;
class QGridLayout;
class QLabel;

//! The list of faults in the dialog; never null, or the test stops.
QGridLayout *faultGrid(const QDialog &dialog);
//! The picture and the text of a row; null when the list has no such row.
QLabel *rowPicture(const QDialog &dialog, int row);
QLabel *rowText(const QDialog &dialog, int row);
//! The bold first words of each row, from the top.
QStringList rowTitles(const QDialog &dialog);

//! Ways to end a dialog, as a user has them.
void clickAccept(QDialog &dialog);
void clickClose(QDialog &dialog);
void pressEscape(QDialog &dialog);
void closeWindow(QDialog &dialog);

//! Hands the first modal dialog that opens during its life to visit, which must end it.
class DialogVisitor
{
public:
    explicit DialogVisitor(std::function<void(QDialog &)> visit);
    DialogVisitor(const DialogVisitor &) = delete;
    DialogVisitor &operator=(const DialogVisitor &) = delete;

    bool hasVisited() const { return m_visited; }

private:
    void look();

    QTimer m_timer;
    std::function<void(QDialog &)> m_visit;
    bool m_visited = false;
};
