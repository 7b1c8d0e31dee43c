// SPDX-License-Identifier: MIT
#include "tests/translations/shown.h"

#include "tests/translations/widgettexts.h"
#include "ui/manualretopodialog.h"
#include "ui/retopologyhelpdialog.h"
#include "ui/validatemeshfeedbackmdialog.h"

#include <orvane/kernel/kernel.h>
#include <orvane/widgets/helpviewer.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

namespace {

const int AllFaults = 0xf0f0f;

// The fading of a search field's clear button outlives the field, and is freed by its next step.
const int StepsOfFading = 100; // ms

// Notes which widgets there were before; those that are not shown yet have no parent to ask.
class NewWidgets
{
public:
    QSet<QString> texts() const
    {
        QSet<QString> all;
        for (const QWidget *widget : QApplication::allWidgets()) {
            if (!m_before.contains(widget))
                all += textsOf(*widget);
        }
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
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (auto *search = window->findChild<QLineEdit *>(QStringLiteral("helpSearch"))) {
            search->setText(QStringLiteral("a text of no page"));
            QMetaObject::invokeMethod(search, "returnPressed");
        }
    }
    const QSet<QString> texts = widgets.texts();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("HelpViewer"))
            delete window; // the next one is made in the language of its time
    }
    QTest::qWait(StepsOfFading);
    return texts;
}
