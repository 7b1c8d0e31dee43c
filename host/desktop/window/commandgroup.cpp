// SPDX-License-Identifier: MIT
#include "host/desktop/window/commandgroup.h"

#include "host/desktop/window/menus.h"

#include <QAction>
#include <QMainWindow>

namespace orvane {

CommandGroup::CommandGroup(const Workbench &bench, const QString &menu)
    : QObject(bench.window), m_bench(bench), m_menu(menu)
{}

QAction *CommandGroup::add(const ActionWords &words, int position, const std::function<void()> &run,
                           const QString &subMenu)
{
    QAction *action = newAction(this, words);
    connect(action, &QAction::triggered, this, run);
    place(action, position, subMenu);
    return action;
}

QAction *CommandGroup::addSwitch(const ActionWords &words, int position, bool on,
                                 const std::function<void(bool)> &run, const QString &subMenu)
{
    QAction *action = newAction(this, words);
    action->setCheckable(true);
    action->setChecked(on);
    connect(action, &QAction::toggled, this, run);
    place(action, position, subMenu);
    return action;
}

void CommandGroup::addSeparator(int position)
{
    m_bench.menus->AddSeparator(m_menu, position);
}

void CommandGroup::place(QAction *action, int position, const QString &subMenu)
{
    m_bench.menus->Add(m_menu, subMenu, action, position);
    m_bench.window->addAction(action);
}

} // namespace orvane
