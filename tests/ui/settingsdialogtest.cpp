// SPDX-License-Identifier: MIT
#include "tests/ui/settingsdialogtest.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

SettingsDialogTest::SettingsDialogTest() : dialog(nullptr) {}

QWidget *SettingsDialogTest::widget(const char *name) const
{
    auto *found = dialog.findChild<QWidget *>(QLatin1String(name));
    if (!found)
        qFatal("the dialog has no %s", name);
    return found;
}

QLineEdit *SettingsDialogTest::edit(const char *name) const
{
    auto *found = qobject_cast<QLineEdit *>(widget(name));
    if (!found)
        qFatal("%s is no line edit", name);
    return found;
}

QCheckBox *SettingsDialogTest::box(const char *name) const
{
    auto *found = qobject_cast<QCheckBox *>(widget(name));
    if (!found)
        qFatal("%s is no check box", name);
    return found;
}

void SettingsDialogTest::show()
{
    dialog.show();
    dialog.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
}

void SettingsDialogTest::type(const char *name, const QString &text)
{
    clear(name);
    QTest::keyClicks(edit(name), text);
}

void SettingsDialogTest::clear(const char *name)
{
    edit(name)->selectAll();
    QTest::keyClick(edit(name), Qt::Key_Delete);
}

void SettingsDialogTest::click(const char *name)
{
    QWidget *target = widget(name);
    // A check box is wider than what can be pressed.
    const QPoint place(qMin(10, target->width() / 2), target->height() / 2);
    QTest::mouseClick(target, Qt::LeftButton, Qt::NoModifier, place);
}
