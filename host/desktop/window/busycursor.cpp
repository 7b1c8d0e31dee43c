// SPDX-License-Identifier: MIT
#include "host/desktop/window/busycursor.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace orvane {

BusyCursor::BusyCursor(QObject *parent) : QObject(parent) {}

BusyCursor::~BusyCursor()
{
    m_busy = 0;
    showOrHide();
}

void BusyCursor::SetBusy(bool busy)
{
    if (!busy && m_busy == 0)
        return;
    m_busy += busy ? 1 : -1;
    if (busy && m_busy == 1)
        qApp->installEventFilter(this);
    if (m_busy == 0) {
        qApp->removeEventFilter(this);
        m_dialogs.clear();
    }
    showOrHide();
}

bool BusyCursor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show && event->type() != QEvent::Hide)
        return false;
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (!widget || !widget->isWindow() || !widget->isModal())
        return false;
    if (event->type() == QEvent::Hide) {
        forget(watched);
    } else {
        m_dialogs.insert(watched);
        connect(watched, &QObject::destroyed, this, &BusyCursor::forget, Qt::UniqueConnection);
        showOrHide();
    }
    return false;
}

void BusyCursor::showOrHide()
{
    const bool shown = m_busy > 0 && m_dialogs.isEmpty();
    if (shown == m_shown)
        return;
    m_shown = shown;
    if (shown)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void BusyCursor::forget(QObject *dialog)
{
    m_dialogs.remove(dialog);
    showOrHide();
}

} // namespace orvane
