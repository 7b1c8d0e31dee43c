// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/window/action.h"
#include "host/desktop/window/workbench.h"

#include <QObject>

#include <functional>

namespace orvane {

//! The commands of one menu: what its members share.
class CommandGroup : public QObject
{
    Q_OBJECT

protected:
    //! menu: its name in English.
    CommandGroup(const Workbench &bench, const QString &menu);

    const Workbench &bench() const { return m_bench; }
    const QString &menuName() const { return m_menu; }
    QAction *add(const ActionWords &words, int position, const std::function<void()> &run,
                 const QString &subMenu = QString());
    QAction *addSwitch(const ActionWords &words, int position, bool on,
                       const std::function<void(bool)> &run, const QString &subMenu = QString());
    void addSeparator(int position);

private:
    void place(QAction *action, int position, const QString &subMenu);

    Workbench m_bench;
    QString m_menu;
};

} // namespace orvane
