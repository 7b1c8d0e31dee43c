// SPDX-License-Identifier: MIT
#include "tests/support/hostwindow.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/workingfolder.h"
#include "tests/ui/bracketing.h"
#include "ui/retopologyhelpdialog.h"

#include <orvane/widgets/helpbutton.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <QtTest>

namespace {

const char *const Captions[] = {
    "<font size=+1>Use the Curve Tools to draw a<br>new mesh on an existing one.</font>",
    "<font size=+1>Select the Curves or the Mesh.</font>",
    "<font size=+1>Choose <b>Create Mesh from<br>Curves</b> to make your new mesh.</font>"};

const char *const Badges[] = {"PTone", "PTtwo", "PTthree"};

class HelpDialog : public SceneCleaner
{
protected:
    // Opened as the settings dialog opens it.
    static QPointer<RetopologyHelpDialog> open()
    {
        QPointer<RetopologyHelpDialog> dialog(new RetopologyHelpDialog(nullptr));
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
        dialog->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        return dialog;
    }
    static void click(const RetopologyHelpDialog *dialog, const char *button)
    {
        QTest::mouseClick(dialog->findChild<QPushButton *>(QLatin1String(button)), Qt::LeftButton);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    static QHBoxLayout *steps(const RetopologyHelpDialog &dialog)
    {
        return qobject_cast<QHBoxLayout *>(dialog.layout()->itemAt(1)->layout());
    }
    static QLabel *label(QLayoutItem *item) { return qobject_cast<QLabel *>(item->widget()); }

    WorkingFolder m_folder;
};

QImage square(int size, const QColor &colour)
{
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

QColor colourOf(const QLabel *label)
{
    return label->pixmap(Qt::ReturnByValue).toImage().pixelColor(1, 1);
}

QWidget *helpWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("HelpViewer"))
            return window;
    }
    return nullptr;
}

} // namespace

TEST_F(HelpDialog, hasNoFrameAndNoTitleBar)
{
    const RetopologyHelpDialog dialog(nullptr);
    EXPECT_TRUE(dialog.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_TRUE(dialog.testAttribute(Qt::WA_TranslucentBackground));
    EXPECT_EQ(dialog.windowTitle(), QString());
}

TEST_F(HelpDialog, thePanelIsADarkRoundedRectangleWithAGreyOutlineAndTransparentOutside)
{
    RetopologyHelpDialog dialog(nullptr);
    dialog.show();
    const QImage panel = dialog.grab().toImage().convertToFormat(QImage::Format_ARGB32);
    const int right = panel.width() - 1;
    const int bottom = panel.height() - 1;
    for (const QPoint &corner :
         {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)})
        EXPECT_EQ(panel.pixelColor(corner).alpha(), 0) << corner.x() << ' ' << corner.y();
    const QColor outline(140, 140, 140, 255);
    for (const QPoint &edge : {QPoint(right / 2, 0), QPoint(right / 2, bottom),
                               QPoint(0, bottom / 2), QPoint(right, bottom / 2)})
        EXPECT_EQ(panel.pixelColor(edge), outline) << edge.x() << ' ' << edge.y();
    const QColor inside(0, 0, 0, 217);
    for (const QPoint &point : {QPoint(1, bottom / 2), QPoint(15, 15),
                                QPoint(right - 1, bottom / 2), QPoint(right / 2, bottom - 1)})
        EXPECT_EQ(panel.pixelColor(point), inside) << point.x() << ' ' << point.y();
}

TEST_F(HelpDialog, thePanelsCornersAreRoundedByThreePixels)
{
    const int magnification = 8;
    RetopologyHelpDialog dialog(nullptr);
    dialog.show();
    QImage panel(dialog.size() * magnification, QImage::Format_ARGB32_Premultiplied);
    panel.setDevicePixelRatio(magnification);
    panel.fill(Qt::transparent);
    dialog.render(&panel, QPoint(), QRegion(), QWidget::DrawChildren);
    // Along the diagonal the outline of radius 3 begins between these two, that of 2 before and
    // that of 4 after them.
    EXPECT_EQ(panel.pixelColor(3, 3).alpha(), 0);
    EXPECT_EQ(panel.pixelColor(5, 5), QColor(140, 140, 140));
}

TEST_F(HelpDialog, okClosesAndDestroysTheDialog)
{
    const QPointer<RetopologyHelpDialog> dialog = open();
    click(dialog, "ok");
    EXPECT_TRUE(dialog.isNull());
}

TEST_F(HelpDialog, openingTheHelpTwiceGivesTwoIndependentDialogs)
{
    const QPointer<RetopologyHelpDialog> first = open();
    const QPointer<RetopologyHelpDialog> second = open();
    click(first, "ok");
    EXPECT_TRUE(first.isNull());
    ASSERT_FALSE(second.isNull());
    EXPECT_TRUE(second->isVisible());
    click(second, "ok");
    EXPECT_TRUE(second.isNull());
}

TEST_F(HelpDialog, tellMeMoreLeavesItOpenAndShowsTheHostsHelpForManualRetopoHelp)
{
    const HostWindow host;
    m_folder.write(QStringLiteral("Help/ManualRetopoHelp.md"),
                   QStringLiteral("# New meshes\n\nDraw curves that cross.\n"));
    const QPointer<RetopologyHelpDialog> dialog = open();
    click(dialog, "more");
    ASSERT_FALSE(dialog.isNull());
    EXPECT_TRUE(dialog->isVisible());
    ASSERT_NE(helpWindow(), nullptr);
    EXPECT_TRUE(helpWindow()->isVisible());
    EXPECT_EQ(helpWindow()->findChild<QTextBrowser *>()->toPlainText(),
              QStringLiteral("New meshes\nDraw curves that cross."));
    click(dialog, "ok");
}

TEST_F(HelpDialog, escapeAndEnterCloseIt)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        const QPointer<RetopologyHelpDialog> dialog = open();
        QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog.data(), key);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(dialog.isNull()) << key;
        EXPECT_EQ(helpWindow(), nullptr);
    }
}

TEST_F(HelpDialog, titleStepsAndButtonsStandBelowEachOther)
{
    const RetopologyHelpDialog dialog(nullptr);
    auto *layout = qobject_cast<QVBoxLayout *>(dialog.layout());
    ASSERT_NE(layout, nullptr);
    ASSERT_EQ(layout->count(), 3);
    EXPECT_EQ(layout->spacing(), 20);
    EXPECT_EQ(layout->contentsMargins(), QMargins(30, 30, 30, 30));
    EXPECT_EQ(label(layout->itemAt(0))->text(),
              QStringLiteral("<font size=+3>How to Create a Mesh from Curves</font>"));
    EXPECT_EQ(layout->itemAt(0)->alignment(), Qt::AlignLeft);

    const auto *buttons = qobject_cast<QHBoxLayout *>(layout->itemAt(2)->layout());
    ASSERT_NE(buttons, nullptr);
    ASSERT_EQ(buttons->count(), 2);
    const auto *more = qobject_cast<orvane::HelpButton *>(buttons->itemAt(0)->widget());
    const auto *ok = qobject_cast<QPushButton *>(buttons->itemAt(1)->widget());
    ASSERT_TRUE(more && ok);
    EXPECT_EQ(more->text(), QStringLiteral("Tell me more..."));
    EXPECT_EQ(more->parentWidget(), &dialog);
    EXPECT_EQ(buttons->itemAt(0)->alignment(), Qt::AlignLeft);
    EXPECT_EQ(ok->text(), QStringLiteral("OK"));
    EXPECT_EQ(buttons->itemAt(1)->alignment(), Qt::AlignRight);
}

TEST_F(HelpDialog, eachStepIsItsBadgeThenItsPictureAboveItsCaption)
{
    const QColor pictures[] = {Qt::red, Qt::green, Qt::blue};
    const QColor badges[] = {Qt::cyan, Qt::magenta, Qt::yellow};
    for (int i = 0; i < 3; ++i) {
        m_folder.write(QStringLiteral("Icons/tooltips/RTHelp%1.png").arg(i + 1),
                       square(64, pictures[i]));
        m_folder.write(QStringLiteral("Icons/tooltips/%1.png").arg(QLatin1String(Badges[i])),
                       square(24, badges[i]));
    }
    const RetopologyHelpDialog dialog(nullptr);
    QHBoxLayout *row = steps(dialog);
    ASSERT_NE(row, nullptr);
    ASSERT_EQ(row->count(), 6);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(row->itemAt(2 * i)->alignment(), Qt::AlignTop);
        EXPECT_EQ(colourOf(label(row->itemAt(2 * i))), badges[i]) << i;
        auto *step = qobject_cast<QVBoxLayout *>(row->itemAt(2 * i + 1)->layout());
        ASSERT_NE(step, nullptr);
        ASSERT_EQ(step->count(), 2);
        EXPECT_EQ(colourOf(label(step->itemAt(0))), pictures[i]) << i;
        EXPECT_EQ(label(step->itemAt(1))->text(), QLatin1String(Captions[i]));
    }
}

TEST_F(HelpDialog, missingPicturesLeaveTheirLabelsEmpty)
{
    const RetopologyHelpDialog dialog(nullptr);
    ASSERT_EQ(steps(dialog)->count(), 6);
    EXPECT_TRUE(label(steps(dialog)->itemAt(0))->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(dialog.findChildren<QLabel *>().size(), 1 + 3 * 3);
}

TEST_F(HelpDialog, allTextsAreTranslated)
{
    const Bracketing brackets("RetopologyHelpDialog");
    const RetopologyHelpDialog dialog(nullptr);
    int shown = 0;
    for (const QLabel *text : dialog.findChildren<QLabel *>()) {
        if (text->text().isEmpty())
            continue;
        EXPECT_TRUE(text->text().startsWith(QLatin1Char('['))) << qPrintable(text->text());
        ++shown;
    }
    EXPECT_EQ(shown, 4);
    for (const QPushButton *button : dialog.findChildren<QPushButton *>())
        EXPECT_TRUE(button->text().startsWith(QLatin1Char('['))) << qPrintable(button->text());
    EXPECT_EQ(brackets.texts().size(), 6);
}

TEST_F(HelpDialog, textIsWhiteInEveryPaletteAndButtonsKeepTheirs)
{
    const QPalette before = QApplication::palette();
    for (const QColor &window : {QColor(240, 240, 240), QColor(50, 50, 50)}) {
        QApplication::setPalette(QPalette(window));
        const RetopologyHelpDialog dialog(nullptr);
        for (const QLabel *text : dialog.findChildren<QLabel *>())
            EXPECT_EQ(text->palette().color(QPalette::WindowText), QColor(Qt::white));
        for (const QPushButton *button : dialog.findChildren<QPushButton *>())
            EXPECT_EQ(button->palette().color(QPalette::ButtonText),
                      QPalette(window).color(QPalette::ButtonText));
    }
    QApplication::setPalette(before);
}

TEST_F(HelpDialog, addsNoSignalsAndSlots)
{
    const QMetaObject &meta = RetopologyHelpDialog::staticMetaObject;
    EXPECT_STREQ(meta.className(), "RetopologyHelpDialog");
    EXPECT_EQ(meta.superClass(), &QDialog::staticMetaObject);
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
}
