// SPDX-License-Identifier: MIT
#include "tests/ui/faultdialog.h"

#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QtTest>

#include <utility>

namespace {

QLabel *labelAt(const QDialog &dialog, int row, int column)
{
    QLayoutItem *item = faultGrid(dialog)->itemAtPosition(row, column);
    return item ? qobject_cast<QLabel *>(item->widget()) : nullptr;
}

void click(QDialog &dialog, const QString &button)
{
    QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton);
}

} // namespace

QGridLayout *faultGrid(const QDialog &dialog)
{
    const auto *list = dialog.findChild<QScrollArea *>();
    auto *grid = list ? qobject_cast<QGridLayout *>(list->widget()->layout()) : nullptr;
    if (!grid)
        qFatal("the dialog has no list of faults");
    return grid;
}

QLabel *rowPicture(const QDialog &dialog, int row)
{
    return labelAt(dialog, row, 0);
}

QLabel *rowText(const QDialog &dialog, int row)
{
    return labelAt(dialog, row, 1);
}

QStringList rowTitles(const QDialog &dialog)
{
    const QRegularExpression title(QStringLiteral("^<strong>(.*)</strong>"));
    QStringList titles;
    for (int row = 0; rowText(dialog, row); ++row)
        titles.append(title.match(rowText(dialog, row)->text()).captured(1));
    return titles;
}

void clickAccept(QDialog &dialog)
{
    click(dialog, QStringLiteral("accept"));
}

void clickClose(QDialog &dialog)
{
    click(dialog, QStringLiteral("close"));
}

void pressEscape(QDialog &dialog)
{
    QTest::keyClick(&dialog, Qt::Key_Escape);
}

void closeWindow(QDialog &dialog)
{
    dialog.close();
}

DialogVisitor::DialogVisitor(std::function<void(QDialog &)> visit) : m_visit(std::move(visit))
{
    QObject::connect(&m_timer, &QTimer::timeout, [this]() { look(); });
    m_timer.start(0);
}

void DialogVisitor::look()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog)
        return;
    m_timer.stop();
    m_visited = true;
    m_visit(*dialog);
}
