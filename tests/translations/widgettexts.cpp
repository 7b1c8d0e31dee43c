// SPDX-License-Identifier: MIT
#include "tests/translations/widgettexts.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QCommandLinkButton>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTreeWidget>

namespace {

QSet<QString> textsOf(const QAction &action)
{
    return {action.text(), action.toolTip(), action.statusTip()};
}

QSet<QString> textsOf(const QTreeWidget &list)
{
    QSet<QString> texts;
    for (QTreeWidgetItemIterator row(const_cast<QTreeWidget *>(&list)); *row; ++row) {
        for (int column = 0; column < list.columnCount(); ++column) {
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole})
                texts.insert((*row)->data(column, role).toString());
        }
    }
    return texts;
}

QSet<QString> textsOf(const QHeaderView &header)
{
    QSet<QString> texts;
    for (int section = 0; header.model() && section < header.count(); ++section)
        texts.insert(header.model()->headerData(section, header.orientation()).toString());
    return texts;
}

QSet<QString> choicesOf(const QComboBox &box)
{
    QSet<QString> texts;
    for (int i = 0; i < box.count(); ++i)
        texts.insert(box.itemText(i));
    return texts;
}

} // namespace

QSet<QString> textsOf(const QWidget &widget)
{
    QSet<QString> texts{widget.windowTitle(), widget.toolTip(), widget.statusTip(),
                        widget.accessibleName(), widget.accessibleDescription()};
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        texts.insert(label->text());
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        texts.insert(button->text());
    if (const auto *link = qobject_cast<const QCommandLinkButton *>(&widget))
        texts.insert(link->description());
    if (const auto *page = qobject_cast<const QTextBrowser *>(&widget))
        texts.insert(page->toPlainText());
    if (const auto *choices = qobject_cast<const QComboBox *>(&widget))
        texts += choicesOf(*choices);
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        texts.insert(edit->placeholderText());
    if (const auto *number = qobject_cast<const QSpinBox *>(&widget))
        texts += {number->prefix(), number->suffix()};
    if (const auto *menu = qobject_cast<const QMenu *>(&widget))
        texts.insert(menu->title());
    if (const auto *bar = qobject_cast<const QStatusBar *>(&widget))
        texts.insert(bar->currentMessage());
    if (const auto *list = qobject_cast<const QTreeWidget *>(&widget))
        texts += textsOf(*list);
    if (const auto *header = qobject_cast<const QHeaderView *>(&widget))
        texts += textsOf(*header);
    texts.remove(QString());
    return texts;
}

QSet<QString> allTextsOf(const QWidget &widget)
{
    QSet<QString> texts = textsOf(widget);
    const QList<QWidget *> inside = widget.findChildren<QWidget *>();
    for (const QWidget *child : inside)
        texts += textsOf(*child);
    const QList<QAction *> actions = widget.findChildren<QAction *>();
    for (const QAction *action : actions)
        texts += textsOf(*action);
    texts.remove(QString());
    return texts;
}
