// SPDX-License-Identifier: MIT
#include "host/desktop/window/menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace orvane {

namespace {

const char PositionProperty[] = "position";

int positionOf(const QAction *action)
{
    return action->property(PositionProperty).toInt();
}

void insert(QMenu *menu, QAction *action, int position)
{
    menu->removeAction(action);
    action->setProperty(PositionProperty, position);
    const QList<QAction *> actions = menu->actions();
    for (QAction *other : actions) {
        if (positionOf(other) > position) {
            menu->insertAction(other, action);
            return;
        }
    }
    menu->addAction(action);
}

QString objectNameOf(const QString &menu)
{
    return QStringLiteral("menu") + menu;
}

QString withoutMnemonic(const QString &text)
{
    return QString(text).remove(QLatin1Char('&'));
}

} // namespace

Menus::Menus(QMenuBar *bar) : QObject(bar), m_bar(bar) {}

QMenu *Menus::AddMenu(const QString &name, const QString &title)
{
    QMenu *menu = m_bar->addMenu(title);
    menu->setObjectName(objectNameOf(name));
    menu->setToolTipsVisible(true);
    return menu;
}

QMenu *Menus::Menu(const QString &name)
{
    const QList<QAction *> actions = m_bar->actions();
    for (const QAction *action : actions) {
        QMenu *menu = action->menu();
        if (menu
            && (menu->objectName() == objectNameOf(name) || withoutMnemonic(menu->title()) == name))
            return menu;
    }
    auto *menu = new QMenu(name, m_bar);
    menu->setObjectName(objectNameOf(name));
    m_bar->insertMenu(actions.isEmpty() ? nullptr : actions.constLast(), menu);
    return menu;
}

void Menus::Add(const QString &menu, const QString &subMenu, QAction *action, int position)
{
    QMenu *target = Menu(menu);
    if (!subMenu.isEmpty())
        target = subMenuOf(target, subMenu, position);
    insert(target, action, position);
}

void Menus::AddSeparator(const QString &menu, int position)
{
    QMenu *target = Menu(menu);
    auto *separator = new QAction(target);
    separator->setSeparator(true);
    insert(target, separator, position);
}

QMenu *Menus::subMenuOf(QMenu *menu, const QString &title, int position)
{
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (!action->menu() || withoutMnemonic(action->text()) != withoutMnemonic(title))
            continue;
        if (position < positionOf(action))
            insert(menu, action, position);
        return action->menu();
    }
    auto *made = new QMenu(title, menu);
    made->setObjectName(menu->objectName() + withoutMnemonic(title));
    insert(menu, made->menuAction(), position);
    return made;
}

} // namespace orvane
