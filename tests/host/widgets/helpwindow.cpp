// SPDX-License-Identifier: MIT
#include "tests/host/widgets/helpwindow.h"

#include <QApplication>
#include <QTextBrowser>

QList<QWidget *> helpWindows()
{
    QList<QWidget *> windows;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget *window : all) {
        if (window->objectName() == QLatin1String("HelpViewer"))
            windows.append(window);
    }
    return windows;
}

QTextBrowser *helpBrowser()
{
    const QList<QWidget *> windows = helpWindows();
    if (windows.size() != 1)
        qFatal("there are %d help windows", windows.size());
    return windows.first()->findChild<QTextBrowser *>();
}

QString helpText()
{
    return helpBrowser()->toPlainText();
}
