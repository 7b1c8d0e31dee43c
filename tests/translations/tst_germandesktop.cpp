// SPDX-License-Identifier: MIT
// What people read of the desktop in German: everything that can be shown is shown, in English and
// in German, and what reads the same in both must be meant so.
#include "host/desktop/tools/toolbox.h"
#include "host/desktop/window/curvecommandgroup.h"
#include "host/desktop/window/filecommands.h"
#include "host/desktop/window/scenelist.h"
#include "host/desktop/window/shortcutsheet.h"
#include "tests/host/desktop/window/windowtest.h"
#include "tests/translations/askedtexts.h"
#include "tests/translations/widgettexts.h"

#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>
#include <orvane/kernel/pluginloader.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/renameoperation.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QtTest>

#include <gtest/gtest.h>

using orvane::Kernel;

namespace {

const int LookAgain = 20; // milliseconds, until a dialog or a menu is up

// What is the same in German.
const char *const Same[] = {
    // The program's name, and what is nothing but a name.
    "Orvane",
    "cube[*] – Orvane",
    "Other",
    "Esc",
    "OBJ (*.obj)",
    "PLY (*.ply)",
    "STL (*.stl)",
    "JSON (*.json)",
    "glTF (*.glb *.gltf)",
    // Each language calls itself by its own name.
    "American English",
    "Deutsch",
    // German words that English has, too.
    "Clay",
    "Lasso",
    "Lasso (W)",
    "Navigation",
    "Navigation:",
    "Plug-ins",
    "OK",
    "Name",
};

bool hasWord(const QString &text)
{
    static const QRegularExpression Word(QStringLiteral("\\p{L}{2}"));
    return text.contains(Word);
}

bool isPath(const QString &text)
{
    return text.contains(QLatin1Char('/')) && !text.contains(QLatin1Char(' '));
}

// Line by line, without marks of keys. Rich text is read as it is shown.
QSet<QString> linesOf(const QSet<QString> &texts)
{
    QSet<QString> lines;
    for (const QString &text : texts) {
        QString plain = text;
        if (Qt::mightBeRichText(text))
            plain = QTextDocumentFragment::fromHtml(text).toPlainText();
        plain.remove(QLatin1Char('&')).remove(QChar(0x200e));
        for (const QString &line : plain.split(QLatin1Char('\n'))) {
            if (hasWord(line) && !isPath(line))
                lines.insert(line.trimmed());
        }
    }
    return lines;
}

class GermanDesktop : public WindowTest
{
protected:
    GermanDesktop() : m_locale(QLocale()) {}
    ~GermanDesktop() override
    {
        m_window.reset();
        orvane::setLanguage(QString(), QStringLiteral("en"));
        QLocale::setDefault(m_locale);
    }

    void openIn(const char *language, const orvane::PluginLoader *plugins = nullptr)
    {
        m_window.reset();
        closeOthers();
        ASSERT_TRUE(
            orvane::setLanguage(QStringLiteral(QUILLMESH_TRANSLATIONS), QLatin1String(language)));
        openWindow(plugins);
    }

    void openCubeAndRename()
    {
        ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
        orvane::RenameOperation operation(Kernel()->Scene()->NodeAt(0), QStringLiteral("Other"));
        ASSERT_TRUE(Kernel()->DoOperation(&operation, true, false));
        m_window->Refresh();
        settle();
    }

    // Everything but what a plug-in brings.
    QSet<QString> everyText(const char *language, const orvane::PluginLoader *plugins = nullptr)
    {
        openIn(language, plugins);
        QSet<QString> texts = allTextsOf(*m_window); // with the start page, the dialogs and menus
        texts += textsOfRecentFiles();
        openCubeAndRename();
        texts += textsOfContextMenu();
        for (const orvane::Tool *tool : m_window->Tools().Tools()) {
            action(qPrintable(QStringLiteral("tool_") + tool->Description().id))->trigger();
            settle();
            texts += allTextsOf(*m_window);
        }
        for (const char *name : {"preferences", "about", "shortcuts", "newScene", "open", "saveAs",
                                 "importMesh", "importCurves", "exportMesh", "exportCurves"})
            texts += textsWhileUp([this, name] { action(name)->trigger(); });
        texts += textsOfSheets();
        action("undo")->trigger(); // tells so above the view
        settle();
        texts += allTextsOf(*m_window);
        return linesOf(texts);
    }

    // Of the dialog or menu that opens, which is closed then.
    static QSet<QString> textsWhileUp(const std::function<void()> &open)
    {
        QSet<QString> texts;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            QWidget *up = QApplication::activePopupWidget();
            if (!up)
                up = QApplication::activeModalWidget();
            if (!up)
                return;
            texts += allTextsOf(*up);
            expectUniqueMnemonics(*up);
            auto *cancel = up->findChild<QAbstractButton *>(QStringLiteral("cancel"));
            if (cancel)
                cancel->click();
            else
                up->close();
        });
        timer.start(LookAgain);
        open();
        EXPECT_FALSE(texts.isEmpty());
        return texts;
    }

    static void expectUniqueMnemonics(const QWidget &window)
    {
        QHash<QKeySequence, QString> taken;
        const auto take = [&](const QString &text) {
            const QKeySequence key = QKeySequence::mnemonic(text);
            EXPECT_TRUE(key.isEmpty() || !taken.contains(key))
                << qPrintable(text) << " and " << qPrintable(taken.value(key));
            taken.insert(key, text);
        };
        if (const auto *menu = qobject_cast<const QMenu *>(&window)) {
            for (const QAction *action : menu->actions())
                take(action->text());
            return;
        }
        for (const QAbstractButton *button : window.findChildren<QAbstractButton *>())
            take(button->text());
        for (const QLabel *label : window.findChildren<QLabel *>()) {
            if (label->buddy())
                take(label->text());
        }
    }

    static QString headingOfHelp(const orvane::MainWindow &window)
    {
        const auto *viewer = window.findChild<QWidget *>(QStringLiteral("HelpViewer"));
        const auto *page = viewer ? viewer->findChild<QTextBrowser *>() : nullptr;
        return page ? page->toPlainText().section(QLatin1Char('\n'), 0, 0) : QString();
    }

private:
    // The help window and those of a plug-in stay open.
    static void closeOthers()
    {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows)
            window->close();
    }

    QSet<QString> textsOfRecentFiles()
    {
        auto *menu = m_window->findChild<QMenu *>(QStringLiteral("recentFiles"));
        return textsWhileUp([menu] {
            menu->popup(QPoint(100, 100));
            QTest::qWait(5 * LookAgain);
        });
    }

    QSet<QString> textsOfContextMenu()
    {
        auto *list = m_window->findChild<orvane::SceneList *>();
        list->setCurrentItem(list->RowOf(Kernel()->Scene()->NodeAt(0)));
        return textsWhileUp([list] {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, list->mapToGlobal({5, 5}));
            QApplication::sendEvent(list->viewport(), &event);
        });
    }

    QSet<QString> textsOfSheets()
    {
        QSet<QString> texts;
        for (const orvane::NavigationPreset preset :
             {orvane::NavigationPreset::AltDrag, orvane::NavigationPreset::MiddleDrag,
              orvane::NavigationPreset::Viewer})
            texts += allTextsOf(orvane::ShortcutSheet(m_window.data(), preset));
        return texts;
    }

    QLocale m_locale;
};

} // namespace

TEST_F(GermanDesktop, saysNothingAsInEnglishThatIsNotMeantSo)
{
    QSet<QString> meant;
    for (const char *text : Same)
        meant.insert(QString::fromUtf8(text));
    const QSet<QString> english = everyText("en");
    const QSet<QString> german = everyText("de");
    EXPECT_GT(english.size(), 250);
    EXPECT_GT(german.size(), 250);
    QSet<QString> same = german;
    same.intersect(english);
    for (const QString &text : same)
        EXPECT_TRUE(meant.contains(text)) << qPrintable(text);
    for (const char *text : Same)
        EXPECT_TRUE(same.contains(QString::fromUtf8(text))) << text << " need not be listed";
}

// The record is asked last: for what no translation has, which is much of what Qt only prepares.
TEST_F(GermanDesktop, asksForNoTextThatHasNoTranslation)
{
    const AskedTexts record;
    everyText("de");
    EXPECT_GT(record.keys().size(), 20);
    for (const QString &key : record.keys()) {
        const bool isOfQt =
            key.startsWith(QLatin1Char('Q')) && !key.startsWith(QLatin1String("Quillmesh"));
        EXPECT_TRUE(isOfQt || key.endsWith(QLatin1String(": "))) << qPrintable(key);
    }
}

TEST_F(GermanDesktop, hasNoKeyTwiceInAMenuOrAWindow)
{
    orvane::PluginLoader plugins;
    plugins.AddFolder(QStringLiteral(QUILLMESH_PLUGIN_DIR));
    openIn("de", &plugins);
    plugins.Load();
    plugins.Initialise();
    const QList<QMenu *> menus = m_window->findChildren<QMenu *>();
    EXPECT_GT(menus.size(), 8);
    for (const QMenu *menu : menus)
        expectUniqueMnemonics(*menu);

    QSet<QKeySequence> taken;
    for (const QAction *menu : m_window->menuBar()->actions()) {
        const QKeySequence key = QKeySequence::mnemonic(menu->text());
        EXPECT_FALSE(key.isEmpty() || taken.contains(key)) << qPrintable(menu->text());
        taken.insert(key);
    }
    for (const QLabel *label : m_window->centralWidget()->findChildren<QLabel *>()) {
        if (label->buddy()) {
            EXPECT_FALSE(taken.contains(QKeySequence::mnemonic(label->text())))
                << qPrintable(label->text());
        }
    }
}

TEST_F(GermanDesktop, helpsInGermanOnItselfAndOnEveryTool)
{
    openIn("de");
    press(Qt::Key_F1);
    EXPECT_EQ(headingOfHelp(*m_window), QStringLiteral("Arbeiten mit Orvane"));
    for (const orvane::Tool *tool : m_window->Tools().Tools()) {
        const orvane::ToolDescription words = tool->Description();
        action(qPrintable(QStringLiteral("tool_") + words.id))->trigger();
        QApplication::setActiveWindow(m_window.data());
        press(Qt::Key_F2);
        EXPECT_EQ(headingOfHelp(*m_window), words.text);
    }
}

TEST_F(GermanDesktop, takesNumbersWithAPointAsTheDialogsDoAndMakesOneOfAComma)
{
    for (const char *language : {"de", "en"}) {
        openIn(language);
        auto *smoothing = m_window->findChild<QDoubleSpinBox *>(QStringLiteral("strokeSmoothing"));
        ASSERT_NE(smoothing, nullptr);
        for (const char *typed : {"1.5", "2,5"}) {
            smoothing->setFocus();
            smoothing->selectAll();
            QTest::keyClicks(smoothing, QLatin1String(typed));
            QTest::keyClick(smoothing, Qt::Key_Tab);
            const QString shown =
                QString(QLatin1String(typed)).replace(QLatin1Char(','), QLatin1Char('.'));
            EXPECT_EQ(smoothing->value(), shown.toDouble());
            EXPECT_EQ(smoothing->text(), shown);
        }
    }
}
