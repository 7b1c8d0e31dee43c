// SPDX-License-Identifier: MIT
#include "tests/host/desktop/whole/randomanswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

namespace {

const int LookAgain = 20; // milliseconds
const int Patience = 6;   // tries

void pressKey(QWidget *window, Qt::Key key)
{
    if (window->windowHandle())
        QTest::keyClick(window->windowHandle(), key);
}

} // namespace

RandomAnswer::RandomAnswer(unsigned seed, const QStringList &paths)
    : m_seed(seed), m_random(seed), m_paths(paths)
{
    QTimer::singleShot(LookAgain, this, &RandomAnswer::answer);
}

void RandomAnswer::answer()
{
    // What follows may open the next dialog and come back only after that.
    QTimer::singleShot(LookAgain, this, &RandomAnswer::answer);
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *holder = popup ? popup : QApplication::activeModalWidget();
    if (!holder)
        return;
    if (holder != m_last) {
        m_last = holder;
        m_tries = 0;
        m_count += popup ? 0 : 1;
    }
    ++m_tries;
    if (popup)
        answerMenu(popup);
    else
        answerDialog(holder);
}

void RandomAnswer::answerMenu(QWidget *menu)
{
    // A menu of the bar holds nothing up: it is given time.
    if (m_tries < Patience)
        return;
    if (m_tries > 3 * Patience) {
        menu->close();
        return;
    }
    const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Escape};
    pressKey(menu, keys[upTo(5)]);
}

void RandomAnswer::answerDialog(QWidget *dialog)
{
    auto *asking = qobject_cast<QDialog *>(dialog);
    if (m_tries > Patience) {
        dialog->close();
        return;
    }
    if (qobject_cast<QFileDialog *>(dialog)) {
        giveFile(asking);
        return;
    }
    if (dialog->objectName() == QLatin1String("ValidateMeshFeedbackmDialog")) {
        answerFaults(dialog);
        return;
    }
    QList<QAbstractButton *> buttons;
    for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->isEnabled())
            buttons.append(button);
    }
    if (buttons.isEmpty() || upTo(8) == 0)
        pressKey(dialog, Qt::Key_Escape);
    else
        QTest::mouseClick(buttons[upTo(buttons.size())], Qt::LeftButton);
}

void RandomAnswer::answerFaults(QWidget *dialog)
{
    QString text;
    for (const QLabel *label : dialog->findChildren<QLabel *>())
        text += label->text();
    const bool accepts = qHash(text, m_seed) % 4 != 0;
    auto *button =
        dialog->findChild<QAbstractButton *>(QLatin1String(accepts ? "accept" : "close"));
    QTest::mouseClick(button, Qt::LeftButton);
}

void RandomAnswer::giveFile(QDialog *dialog)
{
    auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (!edit || upTo(4) == 0) {
        dialog->reject();
        return;
    }
    edit->setText(m_paths[upTo(m_paths.size())]);
    QTest::keyClick(edit, Qt::Key_Return);
}
