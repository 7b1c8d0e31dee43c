// SPDX-License-Identifier: MIT
#include "host/desktop/window/shortcutsheet.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane {

namespace {

const QSize UsualSize(1060, 640);
const int Columns = 3;

struct Section
{
    QString title;
    QStringList rows;
};

QString row(const QString &keys, const QString &what)
{
    return QStringLiteral("<tr><td align=\"right\"><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>")
        .arg(keys.toHtmlEscaped(), what.toHtmlEscaped());
}

QString plain(const QString &text)
{
    return QString(text).remove(QLatin1Char('&')).remove(QStringLiteral("..."));
}

QString keysOf(const QAction &action)
{
    return QKeySequence::listToString(action.shortcuts(), QKeySequence::NativeText);
}

// Commands without a key are reached through the menu and are not listed.
void addRows(const QMenu &menu, QStringList *rows)
{
    for (const QAction *action : menu.actions()) {
        if (action->menu())
            addRows(*action->menu(), rows);
        else if (!action->shortcut().isEmpty())
            rows->append(row(keysOf(*action), plain(action->text())));
    }
}

QString nameOf(CameraMove move)
{
    switch (move) {
    case CameraMove::Orbit:
        return ShortcutSheet::tr("Orbit");
    case CameraMove::Pan:
        return ShortcutSheet::tr("Pan");
    case CameraMove::Zoom:
        break;
    }
    return ShortcutSheet::tr("Zoom");
}

QString nameOf(const NavigationBinding &binding)
{
    const QString button = binding.button == Qt::LeftButton     ? ShortcutSheet::tr("left drag")
                           : binding.button == Qt::MiddleButton ? ShortcutSheet::tr("middle drag")
                                                                : ShortcutSheet::tr("right drag");
    const QString keys = QKeySequence(int(binding.modifiers)).toString(QKeySequence::NativeText);
    return keys + button;
}

Section navigationSection(NavigationPreset preset)
{
    Section section{ShortcutSheet::tr("Navigation"), {}};
    for (const NavigationBinding &binding : navigationBindings(preset))
        section.rows.append(row(nameOf(binding), nameOf(binding.move)));
    section.rows.append(row(ShortcutSheet::tr("wheel"), ShortcutSheet::tr("Zoom to the pointer")));
    section.rows.append(row(ShortcutSheet::tr("left drag"), ShortcutSheet::tr("Use the tool")));
    section.rows.append(
        row(ShortcutSheet::tr("right click"), ShortcutSheet::tr("Give up the stroke in hand")));
    return section;
}

QString htmlOf(const Section &section)
{
    return QStringLiteral("<h3>%1</h3><table cellspacing=\"1\">%2</table>")
        .arg(section.title.toHtmlEscaped(), section.rows.join(QString()));
}

// The sections in order, broken into columns of about the same height.
QString inColumns(const QVector<Section> &sections)
{
    int all = 0;
    for (const Section &section : sections)
        all += section.rows.size() + 2;
    QString html;
    int height = 0;
    int column = 0;
    for (const Section &section : sections) {
        const int size = section.rows.size() + 2;
        if (column + 1 < Columns && height + size / 2 > all * (column + 1) / Columns) {
            html += QStringLiteral("</td><td width=\"%1%\">").arg(100 / Columns);
            ++column;
        }
        html += htmlOf(section);
        height += size;
    }
    return QStringLiteral("<table width=\"100%\"><tr><td width=\"%1%\">%2</td></tr></table>")
        .arg(100 / Columns)
        .arg(html);
}

} // namespace

ShortcutSheet::ShortcutSheet(QMainWindow *window, NavigationPreset navigation) : QDialog(window)
{
    setObjectName(QStringLiteral("shortcutSheet"));
    setWindowTitle(tr("Shortcuts"));
    resize(UsualSize);
    QVector<Section> sections{navigationSection(navigation)};
    for (const QAction *action : window->menuBar()->actions()) {
        Section section{plain(action->text()), {}};
        if (action->menu())
            addRows(*action->menu(), &section.rows);
        if (!section.rows.isEmpty())
            sections.append(section);
    }
    auto *text = new QTextBrowser(this);
    text->setObjectName(QStringLiteral("shortcutText"));
    text->setFrameShape(QFrame::NoFrame);
    text->setHtml(inColumns(sections));
    auto *box = new QDialogButtonBox(QDialogButtonBox::Close, this);
    box->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("close"));
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(box);
}

} // namespace orvane
