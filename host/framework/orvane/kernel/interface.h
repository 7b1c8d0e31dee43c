// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QString>
#include <QVector>

#include <functional>

class QWidget;

namespace orvane {

//! An entry that a plug-in added to a menu.
struct MenuItem
{
    QString menu;
    QString subMenu; // empty: in the menu itself
    QString label;
    std::function<void()> callback;
    QString id;
    int position = 0; // lower ones stand higher
    bool checkable = false;
    int kind = 0;
};

//! What the host shows people, as far as the framework and plug-ins ask for it. This base shows
//! nothing: a desktop shows it in its window, a command line on the terminal.
class ORVANE_EXPORT Interface
{
public:
    Interface() = default;
    virtual ~Interface();
    Interface(const Interface &) = delete;
    Interface &operator=(const Interface &) = delete;

    static const QString menuMesh;

    //! The parent of dialogs; null without a window.
    virtual QWidget *MainWindow() const;

    //! Progress from 0 to maximum begins. step: how much one unit of value is worth.
    virtual void ProgressStart(const QString &text, qint64 maximum, double step, int flags);
    virtual void ProgressSet(qint64 value);
    virtual void ProgressEnd();

    //! Shows a heads-up message. type: 0 plain, 1 warning.
    virtual void HUDMessageShow(const QString &text, int type, int milliseconds);
    //! Is a heads-up message still up?
    virtual bool IsHUDMessageUp() const;

    //! What the latest operation made, in one line. It stays until the next takes its place; empty
    //! takes it away.
    virtual void ReportShow(const QString &text);

    //! Brings lists and panels up to date with the scene.
    virtual void RefreshUI();
    //! The user waits for an operation from now on, or no longer.
    virtual void SetBusy(bool busy);

    virtual void AddCallbackMenuItem(const QString &menu, const QString &subMenu,
                                     const QString &label, std::function<void()> callback,
                                     const QString &id, int position, bool checkable, int kind);
    const QVector<MenuItem> &MenuItems() const { return m_menuItems; }

private:
    QVector<MenuItem> m_menuItems;
};

} // namespace orvane
