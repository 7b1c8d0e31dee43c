// SPDX-License-Identifier: MIT
// Every text as it is painted can be read: in both themes and over whatever the view shows. Text of
// what is disabled need not be.
#include "tests/host/desktop/window/windowtest.h"

#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/filecommands.h"
#include "host/desktop/window/hudmessage.h"
#include "host/desktop/window/theme.h"

#include "tests/host/widgets/helpwindow.h"

#include <QAction>
#include <QApplication>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolTip>
#include <QTreeWidget>
#include <QtTest>

#include <gtest/gtest.h>

#include <iostream>

using orvane::contrast;
using orvane::Theme;

namespace {

const double Readable = 4.5;

QColor commonest(const QImage &image)
{
    QHash<QRgb, int> counts;
    QRgb most = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (++counts[pixel] > counts[most])
                most = pixel;
        }
    }
    return most;
}

// Of the letters, whose inner pixels are those that differ most from what is around them.
double contrastIn(const QImage &image)
{
    const QColor ground = commonest(image);
    double most = 1.0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            most = std::max(most, contrast(image.pixelColor(x, y), ground));
    }
    return most;
}

// The widget over a ground of one colour, without its frame.
QImage painted(QWidget &widget, const QColor &behind, int frame = 0)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(behind);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image.copy(image.rect().adjusted(frame, frame, -frame, -frame));
}

class Contrast : public WindowTest
{
protected:
    // Everything that may be behind a text that lies over the view.
    QVector<QColor> grounds()
    {
        const QImage view = m_window->Viewport().grabFramebuffer();
        return {Qt::white, Qt::black, view.pixelColor(view.width() - 3, 2),
                view.pixelColor(2, view.height() - 3), view.pixelColor(view.rect().center())};
    }
};

} // namespace

TEST_F(Contrast, ofTheHeadsUpLineOverWhateverIsSeen)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    settle();
    auto *line = m_window->findChild<QLabel *>(QStringLiteral("viewHud"));
    ASSERT_TRUE(line && line->isVisible());
    for (const QColor &ground : grounds()) {
        const double found = contrastIn(painted(*line, ground, 4));
        std::cout << "heads-up line over " << qPrintable(ground.name()) << ": " << found << "\n";
        EXPECT_GE(found, Readable);
        EXPECT_LT(found, 21.0);
    }
}

TEST_F(Contrast, ofMessagesAndWarningsOverWhateverIsSeen)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    settle();
    auto *message = m_window->findChild<orvane::HudMessage *>(QStringLiteral("hudMessage"));
    ASSERT_NE(message, nullptr);
    for (const bool isWarning : {false, true}) {
        message->Show(QStringLiteral("Nothing was made: no curves cross."), isWarning, 60000);
        for (const QColor &ground : grounds()) {
            const double found = contrastIn(painted(*message, ground, 6));
            std::cout << (isWarning ? "warning" : "message") << " over "
                      << qPrintable(ground.name()) << ": " << found << "\n";
            EXPECT_GE(found, Readable);
        }
    }
}

TEST_F(Contrast, ofTipsPlaceholdersButtonsAndRowsAsTheyArePainted)
{
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        orvane::applyTheme(theme);
        settle();
        QToolTip::showText(m_window->geometry().center(), QStringLiteral("What this does"));
        settle();
        QWidget *tip = nullptr;
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->inherits("QTipLabel") && window->isVisible())
                tip = window;
        }
        ASSERT_NE(tip, nullptr);
        EXPECT_GE(contrastIn(tip->grab().toImage().copy(tip->rect().adjusted(3, 3, -3, -3))),
                  Readable)
            << "tip, theme " << int(theme);
        QToolTip::hideText();

        QLineEdit empty;
        empty.setPlaceholderText(QStringLiteral("Type a command"));
        empty.resize(240, 30);
        EXPECT_GE(contrastIn(empty.grab().toImage().copy(8, 6, 200, 18)), Readable)
            << "placeholder, theme " << int(theme);

        QPushButton button(QStringLiteral("Create Mesh"));
        button.resize(160, 32);
        EXPECT_GE(contrastIn(button.grab().toImage().copy(20, 8, 120, 16)), Readable)
            << "button, theme " << int(theme);

        QTreeWidget list;
        list.setHeaderHidden(true);
        auto *row = new QTreeWidgetItem(&list, {QStringLiteral("curve 1")});
        list.resize(240, 60);
        for (const bool isSelected : {false, true}) {
            row->setSelected(isSelected);
            const QRect place = list.visualItemRect(row);
            EXPECT_GE(contrastIn(list.viewport()->grab(place).toImage()), Readable)
                << "row, theme " << int(theme) << ", selected " << isSelected;
        }
    }
}

TEST_F(Contrast, ofTheLinksOfAPageThatIsOpenWhileTheThemeChanges)
{
    orvane::applyTheme(Theme::Light);
    press(Qt::Key_F1);
    for (const Theme theme : {Theme::Light, Theme::Dark, Theme::Light}) {
        orvane::applyTheme(theme);
        settle();
        const QColor ground = helpBrowser()->palette().color(QPalette::Base);
        int links = 0;
        const QTextDocument *page = helpBrowser()->document();
        for (QTextBlock block = page->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                if (!format.isAnchor())
                    continue;
                ++links;
                EXPECT_GE(contrast(format.foreground().color(), ground), Readable)
                    << "theme " << int(theme) << ": " << qPrintable(part.fragment().text());
            }
        }
        EXPECT_GT(links, 0);
    }
}
