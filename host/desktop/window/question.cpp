// SPDX-License-Identifier: MIT
#include "host/desktop/window/question.h"

#include <QMessageBox>
#include <QPushButton>

namespace orvane {

QString ask(QWidget *parent, const Question &question)
{
    QMessageBox box(parent);
    box.setObjectName(QLatin1String(question.name));
    box.setIcon(question.buttons.size() > 1 ? QMessageBox::Question : QMessageBox::Warning);
    box.setWindowTitle(QStringLiteral("Orvane"));
    box.setText(question.text);
    box.setInformativeText(question.detail);
    QPushButton *last = nullptr;
    for (const Question::Button &button : question.buttons) {
        // One role for all: the order is ours, not the platform's.
        last = box.addButton(button.text, QMessageBox::ActionRole);
        last->setObjectName(QLatin1String(button.name));
        if (!box.defaultButton())
            box.setDefaultButton(last);
    }
    box.setEscapeButton(last);
    box.exec();
    return box.clickedButton() ? box.clickedButton()->objectName() : last->objectName();
}

} // namespace orvane
