// SPDX-License-Identifier: MIT
#include "host/desktop/window/action.h"

#include "host/desktop/window/icons.h"

#include <QAction>

namespace orvane {

QAction *newAction(QObject *owner, const ActionWords &words)
{
    auto *action = new QAction(words.text, owner);
    action->setObjectName(QLatin1String(words.name));
    action->setShortcut(words.shortcut);
    action->setStatusTip(words.tip);
    const QString keys = words.shortcut.toString(QKeySequence::NativeText);
    const QString name = QString(words.text).remove(QLatin1Char('&')).remove(QChar(0x2026));
    action->setToolTip(keys.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, keys));
    if (words.icon)
        action->setIcon(desktopIcon(QLatin1String(words.icon)));
    return action;
}

} // namespace orvane
