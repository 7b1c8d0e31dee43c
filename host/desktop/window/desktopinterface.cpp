// SPDX-License-Identifier: MIT
#include "host/desktop/window/desktopinterface.h"

#include "host/desktop/window/hudmessage.h"
#include "host/desktop/window/menus.h"
#include "host/desktop/window/progressdisplay.h"

#include <orvane/kernel/kernel.h>

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>

#include <utility>

namespace orvane {

namespace {

const int WarningType = 1; // of a heads-up message
const int AskAgain = 50;   // milliseconds, while an operation runs

bool isModifier(const QEvent &event)
{
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock;
}

} // namespace

DesktopInterface::DesktopInterface(const Parts &parts) : m_parts(parts), m_cursor(this)
{
    m_refreshing.setSingleShot(true);
    connect(&m_refreshing, &QTimer::timeout, this, &DesktopInterface::refreshNow);
    qApp->installEventFilter(this);
    Kernel()->SetInterface(this);
}

DesktopInterface::~DesktopInterface()
{
    Kernel()->SetInterface(nullptr);
}

QWidget *DesktopInterface::MainWindow() const
{
    return m_parts.window;
}

void DesktopInterface::ProgressStart(const QString &text, qint64 maximum, double, int)
{
    m_parts.progress->Start(text, maximum);
}

void DesktopInterface::ProgressSet(qint64 value)
{
    m_parts.progress->Set(value);
}

void DesktopInterface::ProgressEnd()
{
    m_parts.progress->End();
}

void DesktopInterface::HUDMessageShow(const QString &text, int type, int milliseconds)
{
    m_parts.message->Show(text, type == WarningType, milliseconds);
}

bool DesktopInterface::IsHUDMessageUp() const
{
    return m_parts.message->IsUp();
}

void DesktopInterface::ReportShow(const QString &text)
{
    m_parts.report->setText(text);
}

void DesktopInterface::RefreshUI()
{
    if (!m_refreshing.isActive())
        m_refreshing.start(0);
}

void DesktopInterface::SetBusy(bool busy)
{
    m_cursor.SetBusy(busy);
    RefreshUI();
}

void DesktopInterface::AddCallbackMenuItem(const QString &menu, const QString &subMenu,
                                           const QString &label, std::function<void()> callback,
                                           const QString &id, int position, bool checkable,
                                           int kind)
{
    Interface::AddCallbackMenuItem(menu, subMenu, label, callback, id, position, checkable, kind);
    auto *action = new QAction(label, m_parts.menus);
    action->setObjectName(id);
    action->setCheckable(checkable);
    connect(action, &QAction::triggered, this, [run = std::move(callback)] {
        if (run)
            run();
    });
    m_parts.menus->Add(menu, subMenu, action, position);
    m_parts.window->addAction(action);
}

bool DesktopInterface::eventFilter(QObject *watched, QEvent *event)
{
    // A key that a shortcut takes is seen as an override only.
    if (event->type() == QEvent::MouseButtonPress
        || (event->type() == QEvent::ShortcutOverride && !isModifier(*event)))
        m_parts.message->TakeDown();
    return QObject::eventFilter(watched, event);
}

void DesktopInterface::refreshNow()
{
    if (Kernel()->IsOperationRunning())
        m_refreshing.start(AskAgain);
    else
        emit refreshed();
}

} // namespace orvane
