// SPDX-License-Identifier: MIT
#include "tests/host/widgets/helpwindow.h"
#include "tests/support/hostwindow.h"
#include "tests/support/logcatcher.h"
#include "tests/support/workingfolder.h"

#include <orvane/widgets/helpviewer.h>

#include <QDesktopServices>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>
#include <QtTest>

#include <gtest/gtest.h>

#include <memory>

using orvane::showHelp;

namespace {

// Takes the place of the system's browser for addresses of the web.
class WebCatcher : public QObject
{
    Q_OBJECT

public:
    WebCatcher() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open"); }
    ~WebCatcher() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    QList<QUrl> opened;

public slots:
    void open(const QUrl &url) { opened.append(url); }
};

class HelpViewerTest : public testing::Test
{
protected:
    HelpViewerTest() : m_locale(QLocale())
    {
        QLocale::setDefault(QLocale::c());
        m_folder.write(QStringLiteral("Help/First.md"),
                       QStringLiteral("# First page\n\nGo to the [second page](Second.md).\n"));
        m_folder.write(QStringLiteral("Help/Second.md"), QStringLiteral("# Second page\n"));
        m_folder.write(QStringLiteral("Secret.md"), QStringLiteral("# Secret\n"));
    }
    ~HelpViewerTest() override
    {
        QLocale::setDefault(m_locale);
        qDeleteAll(helpWindows());
    }

    static void show(const char *identifier)
    {
        showHelp(QLatin1String(identifier));
        EXPECT_TRUE(QTest::qWaitForWindowActive(helpBrowser()->window()));
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(helpBrowser(), key, modifiers);
    }
    // As people do: Ctrl+F, the text, Enter.
    static void search(const char *text)
    {
        press(Qt::Key_F, Qt::ControlModifier);
        auto *edit = helpBrowser()->window()->findChild<QLineEdit *>(QStringLiteral("helpSearch"));
        ASSERT_TRUE(edit && edit->hasFocus());
        QTest::keyClicks(edit, QLatin1String(text));
        QTest::keyClick(edit, Qt::Key_Return);
    }
    static void followTheLink()
    {
        press(Qt::Key_Tab);
        press(Qt::Key_Return);
    }

    WorkingFolder m_folder;

private:
    QLocale m_locale;
};

int pixelsOf(const QColor &colour, const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour;
    }
    return count;
}

} // namespace

TEST_F(HelpViewerTest, showsThePageAndNamesTheWindowAfterItsHeading)
{
    show("Second");
    EXPECT_EQ(helpText(), QStringLiteral("Second page"));
    EXPECT_EQ(helpBrowser()->window()->windowTitle(), QStringLiteral("Second page - Help"));
    EXPECT_TRUE(helpBrowser()->isReadOnly());
}

TEST_F(HelpViewerTest, usesOneWindowForEveryPage)
{
    show("First");
    QWidget *window = helpBrowser()->window();
    show("Second");
    ASSERT_EQ(helpWindows(), QList<QWidget *>{window});
    EXPECT_EQ(helpText(), QStringLiteral("Second page"));
}

TEST_F(HelpViewerTest, bringsAClosedOrMinimisedWindowBack)
{
    show("First");
    QWidget *window = helpBrowser()->window();
    window->close();
    show("First");
    EXPECT_TRUE(window->isVisible());
    window->showMinimized();
    show("First");
    EXPECT_FALSE(window->isMinimized());
    EXPECT_EQ(helpWindows().size(), 1);
}

TEST_F(HelpViewerTest, belongsToTheMainWindowAndGoesWithIt)
{
    {
        const HostWindow host;
        show("First");
        EXPECT_EQ(helpBrowser()->window()->parentWidget(), host.MainWindow());
    }
    EXPECT_TRUE(helpWindows().isEmpty());
    show("First");
    EXPECT_EQ(helpBrowser()->window()->parentWidget(), nullptr);
}

TEST_F(HelpViewerTest, movesToAMainWindowThatCameLater)
{
    show("First");
    const HostWindow host;
    show("First");
    ASSERT_EQ(helpWindows().size(), 1);
    EXPECT_EQ(helpBrowser()->window()->parentWidget(), host.MainWindow());
}

TEST_F(HelpViewerTest, escapeClosesIt)
{
    show("First");
    press(Qt::Key_Escape);
    EXPECT_FALSE(helpBrowser()->window()->isVisible());
}

TEST_F(HelpViewerTest, linksToOtherPagesAreFollowedAndKeysGoBackForwardAndHome)
{
    show("First");
    followTheLink();
    EXPECT_EQ(helpText(), QStringLiteral("Second page"));
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(helpText().startsWith(QLatin1String("First page")));
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(helpText(), QStringLiteral("Second page"));
    press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_TRUE(helpText().startsWith(QLatin1String("First page")));
}

TEST_F(HelpViewerTest, aSearchGoesThroughAllPagesAndRound)
{
    m_folder.write(QStringLiteral("Help/Third.md"),
                   QStringLiteral("# Third page\n\nOne *ruler* and [a](ruler.md) second Ruler.\n"));
    show("First");
    search("ruler");
    EXPECT_EQ(helpBrowser()->textCursor().selectedText(), QStringLiteral("ruler"));
    EXPECT_TRUE(helpText().startsWith(QLatin1String("Third page")));
    press(Qt::Key_F3);
    EXPECT_EQ(helpBrowser()->textCursor().selectedText(), QStringLiteral("Ruler"));
    const int second = helpBrowser()->textCursor().position();
    press(Qt::Key_F3);
    EXPECT_LT(helpBrowser()->textCursor().position(), second) << "round to the first one";
    search("second");
    EXPECT_TRUE(helpText().startsWith(QLatin1String("Third page")));
    press(Qt::Key_F3);
    EXPECT_TRUE(helpText().startsWith(QLatin1String("First page"))) << "after the last page";
    press(Qt::Key_F3);
    EXPECT_EQ(helpText(), QStringLiteral("Second page"));
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(helpText().startsWith(QLatin1String("First page")));
}

TEST_F(HelpViewerTest, aSearchThatFindsNothingSaysSoUntilItIsChanged)
{
    show("First");
    const auto *outcome =
        helpBrowser()->window()->findChild<QLabel *>(QStringLiteral("helpSearchOutcome"));
    ASSERT_NE(outcome, nullptr);
    search("Second.md"); // only the address of a link
    EXPECT_EQ(outcome->text(), QStringLiteral("Nothing found."));
    EXPECT_TRUE(helpText().startsWith(QLatin1String("First page")));
    search("page");
    EXPECT_TRUE(outcome->text().isEmpty());
    EXPECT_EQ(helpBrowser()->textCursor().selectedText(), QStringLiteral("page"));
}

TEST_F(HelpViewerTest, aSearchReadsPagesInTheUsersLanguage)
{
    m_folder.write(QStringLiteral("Help/de/Second.md"), QStringLiteral("# Zweite Seite\n"));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    show("First");
    search("zweite");
    EXPECT_EQ(helpText(), QStringLiteral("Zweite Seite"));
}

TEST_F(HelpViewerTest, aLinkToTheWebOpensTheSystemsBrowserAndLeavesThePage)
{
    const WebCatcher web;
    m_folder.write(QStringLiteral("Help/Web.md"),
                   QStringLiteral("# Links\n\n[Elsewhere](https://example.org/page)\n"));
    show("Web");
    followTheLink();
    EXPECT_EQ(web.opened, QList<QUrl>{QUrl(QStringLiteral("https://example.org/page"))});
    EXPECT_EQ(helpText(), QStringLiteral("Links\nElsewhere"));
}

TEST_F(HelpViewerTest, picturesLieBesideThePage)
{
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    m_folder.write(QStringLiteral("Help/dot.png"), picture);
    m_folder.write(QStringLiteral("Help/Picture.md"), QStringLiteral("# Dot\n\n![dot](dot.png)\n"));
    show("Picture");
    EXPECT_EQ(pixelsOf(Qt::magenta, helpBrowser()->grab().toImage()), 40 * 40);
}

TEST_F(HelpViewerTest, linesOfTextAreSetApartAndPicturesAndTableCellsAreNot)
{
    m_folder.write(QStringLiteral("Help/Mixed.md"),
                   QStringLiteral("# Top\n\nText\n\n![dot](dot.png)\n\n| a |\n|---|\n| b |\n"));
    show("Mixed");
    QHash<QString, QTextBlockFormat> formats;
    const QTextDocument *page = helpBrowser()->document();
    for (QTextBlock block = page->begin(); block.isValid(); block = block.next())
        formats.insert(block.text(), block.blockFormat());
    const auto lineHeight = [&formats](const QString &text) {
        return formats[text].lineHeight();
    };
    EXPECT_GT(formats[QStringLiteral("Top")].topMargin(), 0.0);
    EXPECT_GT(lineHeight(QStringLiteral("Text")), 100.0);
    EXPECT_EQ(lineHeight(QString(QChar::ObjectReplacementCharacter)), 0.0);
    ASSERT_TRUE(formats.contains(QStringLiteral("b")));
    EXPECT_EQ(formats[QStringLiteral("b")].bottomMargin(), 0.0);
}

TEST_F(HelpViewerTest, aMissingPageNamesTheIdentifierAndTheFileAndIsLogged)
{
    const LogCatcher log;
    show("No_*such*_page");
    const QString file = QDir::toNativeSeparators(
        QDir::current().filePath(QStringLiteral("Help/No_*such*_page.md")));
    EXPECT_TRUE(helpText().contains(QLatin1String("\"No_*such*_page\""))) << qPrintable(helpText());
    EXPECT_TRUE(helpText().contains(file)) << qPrintable(helpText());
    EXPECT_EQ(log.count(), 1);
    EXPECT_TRUE(log.text().contains(QLatin1String("\"No_*such*_page\"")));
    EXPECT_TRUE(log.text().contains(file));
}

TEST_F(HelpViewerTest, aPageThatCameLaterIsShownWhenItIsAskedForAgain)
{
    show("Late");
    EXPECT_TRUE(helpText().startsWith(QLatin1String("No help on this yet")));
    m_folder.write(QStringLiteral("Help/Late.md"), QStringLiteral("# Better late\n"));
    show("Late");
    EXPECT_EQ(helpText(), QStringLiteral("Better late"));
}

TEST_F(HelpViewerTest, aLinkToAMissingPageSaysSoAndOneCanGoBack)
{
    m_folder.write(QStringLiteral("Help/Lost.md"), QStringLiteral("# Lost\n\n[Gone](Gone.md)\n"));
    show("Lost");
    followTheLink();
    EXPECT_TRUE(helpText().contains(QLatin1String("\"Gone\"")));
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(helpText(), QStringLiteral("Lost\nGone"));
}

TEST_F(HelpViewerTest, anIdentifierThatCouldNameAFileElsewhereIsRefused)
{
    m_folder.write(QStringLiteral("Help/deeper/Page.md"), QStringLiteral("# Secret\n"));
    const QString full = QDir::current().filePath(QStringLiteral("Secret"));
    for (const QString &identifier :
         {QStringLiteral("../Secret"), QStringLiteral("deeper/Page"),
          QStringLiteral("deeper\\Page"), QStringLiteral(".."), QStringLiteral("C:Secret"),
          QStringLiteral("//Secret"), full}) {
        const LogCatcher log;
        showHelp(identifier);
        EXPECT_TRUE(helpText().startsWith(QLatin1String("No help on this yet")));
        EXPECT_TRUE(helpText().contains(QLatin1Char('"') + identifier + QLatin1Char('"')))
            << qPrintable(helpText());
        EXPECT_EQ(log.count(), 1) << qPrintable(identifier);
    }
}

TEST_F(HelpViewerTest, noIdentifierAtAllIsRefusedToo)
{
    const LogCatcher log;
    showHelp(QString());
    EXPECT_TRUE(helpText().startsWith(QLatin1String("No help on this yet")));
    EXPECT_EQ(log.count(), 1);
}

TEST_F(HelpViewerTest, aPageInTheUsersLanguageGoesFirst)
{
    m_folder.write(QStringLiteral("Help/de/First.md"), QStringLiteral("# Erste Seite\n\nMaße\n"));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    show("First");
    EXPECT_EQ(helpText(), QStringLiteral("Erste Seite\nMaße"));
    show("Second");
    EXPECT_EQ(helpText(), QStringLiteral("Second page"));
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    show("First");
    EXPECT_TRUE(helpText().startsWith(QLatin1String("First page")));
}

TEST_F(HelpViewerTest, thePageIsReadableInLightAndDarkPalettes)
{
    for (const QColor &paper : {QColor(Qt::white), QColor(30, 30, 30)}) {
        const QColor ink = paper == QColor(Qt::white) ? QColor(Qt::black) : QColor(Qt::white);
        QPalette palette;
        palette.setColor(QPalette::Base, paper);
        palette.setColor(QPalette::Text, ink);
        show("Second");
        helpBrowser()->setPalette(palette);
        const QImage page = helpBrowser()->grab().toImage();
        EXPECT_EQ(page.pixelColor(2, 2), paper);
        EXPECT_GT(pixelsOf(ink, page), 100);
    }
}

#include "tst_helpviewer.moc"
