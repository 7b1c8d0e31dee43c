// SPDX-License-Identifier: MIT
// The German help pages: each says what the English one says, in the words of the German windows.
#include "tests/support/hostwindow.h"
#include "tests/translations/messages.h"

#include <orvane/kernel/language.h>
#include <orvane/widgets/helpviewer.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QtTest>

#include <gtest/gtest.h>

namespace {

QString page(const QString &path)
{
    QFile file(QStringLiteral(QUILLMESH_HELP "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList pages(const char *folder)
{
    return QDir(QStringLiteral(QUILLMESH_HELP "/") + QLatin1String(folder))
        .entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name);
}

QString english()
{
    return page(QStringLiteral("ManualRetopoHelp.md"));
}

QString german()
{
    return page(QStringLiteral("de/ManualRetopoHelp.md"));
}

QStringList found(const char *expression, const QString &text)
{
    const QRegularExpression pattern(QLatin1String(expression),
                                     QRegularExpression::MultilineOption);
    QStringList all;
    auto match = pattern.globalMatch(text);
    while (match.hasNext())
        all.append(match.next().captured(1));
    return all;
}

QString titleOf(const QString &faultText)
{
    return found("^<strong>(.*)</strong>", faultText).value(0);
}

QString plainName(QString text)
{
    text.remove(QLatin1Char('&'));
    return text.remove(QStringLiteral("..."));
}

// "*File > Open*" names a menu and a command of it.
QStringList namesIn(const QString &page)
{
    QStringList names;
    for (const QString &path : found("(?<![*\\w])\\*([^*]+)\\*(?![*\\w])", page.simplified())) {
        for (const QString &name : path.split(QStringLiteral(" > ")))
            names.append(name);
    }
    return names;
}

// Where the links and pictures of a page lead, seen from the folder of the English pages.
QStringList targetsIn(const QString &page)
{
    QStringList targets = found("\\]\\(([^)]+)\\)", page);
    targets.replaceInStrings(QRegularExpression(QStringLiteral("^\\.\\./(?=\\.\\.)")), QString());
    return targets;
}

} // namespace

TEST(GermanHelp, isThereForEveryEnglishPage)
{
    EXPECT_GE(pages("").size(), 12);
    EXPECT_EQ(pages("de"), pages(""));
}

TEST(GermanHelp, isBuiltLikeTheEnglishPage)
{
    // The marks at the beginning of headings, items, steps, table rows and pictures, in order.
    const char *const marks = "^(#+ |- |\\d+\\. |\\||!\\[)";
    EXPECT_GT(found(marks, english()).size(), 50);
    const char *const numbers = "(\\d+(?:\\.\\d+)?)";
    for (const QString &name : pages("")) {
        SCOPED_TRACE(qPrintable(name));
        QString from = page(name);
        QString to = page(QStringLiteral("de/") + name);
        EXPECT_FALSE(found(marks, to).isEmpty());
        EXPECT_EQ(found(marks, to), found(marks, from));
        EXPECT_EQ(found("(\\*\\*)", to), found("(\\*\\*)", from));
        EXPECT_EQ(found("(`[^`]+`)", to), found("(`[^`]+`)", from));
        EXPECT_EQ(found(numbers, to.remove(QStringLiteral("3D-"))),
                  found(numbers, from.remove(QStringLiteral("3d "))));
    }
}

TEST(GermanHelp, leadsWhereTheEnglishPageLeads)
{
    int targets = 0;
    for (const QString &name : pages("")) {
        const QStringList from = targetsIn(page(name));
        EXPECT_EQ(targetsIn(page(QStringLiteral("de/") + name)), from) << qPrintable(name);
        for (const char *folder : {"", "de/"}) {
            const QDir dir(QStringLiteral(QUILLMESH_HELP "/") + QLatin1String(folder));
            for (const QString &target :
                 found("\\]\\(([^)]+)\\)", page(QLatin1String(folder) + name))) {
                EXPECT_TRUE(QFileInfo::exists(dir.filePath(target)))
                    << folder << qPrintable(name) << ": " << qPrintable(target);
                ++targets;
            }
        }
    }
    EXPECT_GE(targets, 2 * (10 + 3));
}

TEST(GermanHelp, namesMenusAndCommandsAsTheyAreCalled)
{
    QSet<QString> english;
    QSet<QString> german;
    for (const Message &message : messagesIn(QStringLiteral("de"))) {
        english.insert(plainName(message.source));
        german.insert(plainName(message.translation));
    }
    int names = 0;
    for (const QString &name : pages("")) {
        if (name == QLatin1String("ManualRetopoHelp.md"))
            continue; // which stresses other words, too
        const QStringList from = namesIn(page(name));
        for (const QString &text : from)
            EXPECT_TRUE(english.contains(text)) << qPrintable(name + QLatin1Char(' ') + text);
        for (const QString &text : namesIn(page(QStringLiteral("de/") + name)))
            EXPECT_TRUE(german.contains(text)) << qPrintable(name + QLatin1Char(' ') + text);
        names += from.size();
    }
    EXPECT_GE(names, 12);
}

TEST(GermanHelp, followsItsLinksToGermanPages)
{
    const QLocale before;
    const QString folder = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QStringLiteral(QUILLMESH_HELP "/..")));
    ASSERT_TRUE(orvane::setLanguage(QStringLiteral(QUILLMESH_TRANSLATIONS), QStringLiteral("de")));
    {
        const HostWindow interface;
        QStringList headings;
        const int links = found("\\]\\(([^)]+)\\)", page(QStringLiteral("de/Orvane.md"))).size();
        for (int link = 0; link < links; ++link) {
            orvane::showHelp(QStringLiteral("Orvane"));
            auto *browser = interface.MainWindow()->findChild<QTextBrowser *>();
            ASSERT_NE(browser, nullptr);
            for (int key = 0; key <= link; ++key)
                QTest::keyClick(browser, Qt::Key_Tab);
            QTest::keyClick(browser, Qt::Key_Return);
            headings.append(browser->toPlainText().section(QLatin1Char('\n'), 0, 0));
            browser->setSource(QUrl());
        }
        QStringList wanted;
        for (const QString &target : targetsIn(page(QStringLiteral("de/Orvane.md"))))
            wanted.append(
                page(QStringLiteral("de/") + target).section(QLatin1Char('\n'), 0, 0).mid(2));
        EXPECT_EQ(headings, wanted);
    }
    orvane::setLanguage(QString(), QStringLiteral("en"));
    QLocale::setDefault(before);
    QDir::setCurrent(folder);
}

TEST(GermanHelp, callsEverythingByTheNameItHasInTheGermanWindows)
{
    const QString text = german().simplified(); // a name may begin on one line and end on the next
    const QVector<Message> messages = messagesIn(QStringLiteral("de"));
    int faults = 0;
    for (const Message &message : messages) {
        const QString title = titleOf(message.translation);
        if (title.isEmpty() || title.contains(QLatin1Char('<')))
            continue;
        EXPECT_TRUE(text.contains(QStringLiteral("| %1 |").arg(title))) << qPrintable(title);
        ++faults;
    }
    EXPECT_EQ(faults, 12);
    const char *const names[][2] = {{"Quillmesh", "Create Mesh from Curves..."},
                                    {"Quillmesh", "No valid 3d curve in scene"},
                                    {"ManualRetopoDialog", "Create Mesh from Curves"},
                                    {"ManualRetopoDialog", "Create Mesh"},
                                    {"ValidateMeshFeedbackmDialog", "Accept"},
                                    {"ValidateMeshFeedbackmDialog", "Close"}};
    for (const auto &name : names)
        EXPECT_TRUE(text.contains(translationOf(messages, name[0], name[1]))) << name[1];
    for (const char *label :
         {"Maximum Edges in a Face", "Merge vertices closer than", "Intersection Tolerance",
          "Overrun Tolerance", "Ignore Self-intersections"})
        EXPECT_TRUE(text.contains(QLatin1String("### ") + QLatin1String(label))) << label;
}

TEST(GermanHelp, opensInGermanAndTheOtherInEnglish)
{
    const QLocale before;
    const QString folder = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QStringLiteral(QUILLMESH_HELP "/..")));
    const HostWindow interface;
    const char *const firstLines[][2] = {{"de_AT", "Netz aus Kurven erzeugen"},
                                         {"en", "Create Mesh from Curves"}};
    for (const auto &line : firstLines) {
        ASSERT_TRUE(
            orvane::setLanguage(QStringLiteral(QUILLMESH_TRANSLATIONS), QLatin1String(line[0])));
        orvane::showHelp(QStringLiteral("ManualRetopoHelp"));
        const auto *browser = interface.MainWindow()->findChild<QTextBrowser *>();
        ASSERT_NE(browser, nullptr);
        EXPECT_EQ(browser->toPlainText().section(QLatin1Char('\n'), 0, 0), QLatin1String(line[1]));
    }
    orvane::setLanguage(QString(), QStringLiteral("en"));
    QLocale::setDefault(before);
    QDir::setCurrent(folder);
}
