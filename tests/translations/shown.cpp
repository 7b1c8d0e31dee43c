// SPDX-License-Identifier: MIT
#include "tests/translations/shown.h"

#include "ui/manualretopodialog.h"
#include "ui/retopologyhelpdialog.h"
#include "ui/validatemeshfeedbackmdialog.h"

#include <orvane/kernel/kernel.h>
#include <orvane/widgets/helpviewer.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QTextBrowser>

namespace {

const int AllFaults = 0xf0f0f;

QSet<QString> textsOf(const QWidget *widget)
{
    QSet<QString> texts{widget->windowTitle(), widget->toolTip()};
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        texts.insert(label->text());
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        texts.insert(button->text());
    if (const auto *page = qobject_cast<const QTextBrowser *>(widget))
        texts.insert(page->toPlainText());
    if (const auto *choices = qobject_cast<const QComboBox *>(widget)) {
        for (int i = 0; i < choices->count(); ++i)
            texts.insert(choices->itemText(i));
    }
    return texts;
}

// Notes which widgets there were before; those that are not shown yet have no parent to ask.
class NewWidgets
{
public:
    QSet<QString> texts() const
    {
        QSet<QString> all;
        for (const QWidget *widget : QApplication::allWidgets()) {
            if (!m_before.contains(widget))
                all += textsOf(widget);
        }
        all.remove(QString());
        return all;
    }

private:
    static QSet<const QWidget *> widgetsNow()
    {
        QSet<const QWidget *> widgets;
        for (const QWidget *widget : QApplication::allWidgets())
            widgets.insert(widget);
        return widgets;
    }

    const QSet<const QWidget *> m_before = widgetsNow();
};

} // namespace

QSet<QString> textsOfSettings()
{
    const NewWidgets widgets;
    orvane::Kernel()->SetTestMode(true);
    const ManualRetopoDialog dialog(nullptr);
    orvane::Kernel()->SetTestMode(false);
    return widgets.texts();
}

QSet<QString> textsOfHelp()
{
    const NewWidgets widgets;
    const RetopologyHelpDialog dialog(nullptr);
    return widgets.texts();
}

QSet<QString> textsOfFaults(const QString &meshName)
{
    const NewWidgets widgets;
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName, AllFaults);
    return widgets.texts();
}

QSet<QString> textsOfMissingPage(const QString &identifier)
{
    const NewWidgets widgets;
    orvane::showHelp(identifier);
    QSet<QString> texts = widgets.texts();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("HelpViewer"))
            delete window; // the next one is made in the language of its time
    }
    return texts;
}
