// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/window/busycursor.h"

#include <orvane/kernel/interface.h>

#include <QObject>
#include <QTimer>

class QLabel;
class QMainWindow;

namespace orvane {

class HudMessage;
class Menus;
class ProgressDisplay;

//! The host's interface in the main window, and the kernel's for its life. What the user does next
//! takes a heads-up message down: it is no answer to what comes then.
class DesktopInterface : public QObject, public Interface
{
    Q_OBJECT

public:
    struct Parts
    {
        QMainWindow *window = nullptr;
        Menus *menus = nullptr;
        ProgressDisplay *progress = nullptr;
        HudMessage *message = nullptr;
        QLabel *report = nullptr;
    };

    //! The parts outlive it.
    explicit DesktopInterface(const Parts &parts);
    ~DesktopInterface() override;

    QWidget *MainWindow() const override;

    void ProgressStart(const QString &text, qint64 maximum, double step, int flags) override;
    void ProgressSet(qint64 value) override;
    void ProgressEnd() override;
    void HUDMessageShow(const QString &text, int type, int milliseconds) override;
    bool IsHUDMessageUp() const override;
    void ReportShow(const QString &text) override;
    //! Soon: once for any number of calls, and not before a running operation is through.
    void RefreshUI() override;
    void SetBusy(bool busy) override;
    void AddCallbackMenuItem(const QString &menu, const QString &subMenu, const QString &label,
                             std::function<void()> callback, const QString &id, int position,
                             bool checkable, int kind) override;

signals:
    //! The scene may have changed.
    void refreshed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refreshNow();

    Parts m_parts;
    BusyCursor m_cursor;
    QTimer m_refreshing;
};

} // namespace orvane
