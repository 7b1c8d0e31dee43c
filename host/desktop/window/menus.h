// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QAction;
class QMenu;
class QMenuBar;

namespace orvane {

//! The menus of a window. Entries stand by their positions, those of plug-ins among the host's own,
//! whenever they come; at the same position in the order they came.
class Menus : public QObject
{
    Q_OBJECT

public:
    explicit Menus(QMenuBar *bar);

    //! A new menu at the end of the bar. name: by which entries find it, in English.
    QMenu *AddMenu(const QString &name, const QString &title);
    //! The menu of that name; one that is not there is made, before the last menu of the bar.
    QMenu *Menu(const QString &name);
    //! subMenu: empty for none; one that is not there is made. It stands where the lowest of its
    //! entries would.
    void Add(const QString &menu, const QString &subMenu, QAction *action, int position);
    void AddSeparator(const QString &menu, int position);

private:
    QMenu *subMenuOf(QMenu *menu, const QString &title, int position);

    QMenuBar *m_bar;
};

} // namespace orvane
