// SPDX-License-Identifier: MIT
// The German help page: it says what the English one says, in the words of the German windows.
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

#include <gtest/gtest.h>

namespace {

QString page(const QString &path)
{
    QFile file(QStringLiteral(QUILLMESH_HELP "/") + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
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

} // namespace

TEST(GermanHelp, isBuiltLikeTheEnglishPage)
{
    // The marks at the beginning of headings, items, steps, table rows and pictures, in order.
    const char *const marks = "^(#+ |- |\\d+\\. |\\||!\\[)";
    EXPECT_GT(found(marks, english()).size(), 50);
    EXPECT_EQ(found(marks, german()), found(marks, english()));
    const char *const numbers = "(\\d+(?:\\.\\d+)?)";
    EXPECT_EQ(found(numbers, german().remove(QStringLiteral("3D-"))),
              found(numbers, english().remove(QStringLiteral("3d "))));
    EXPECT_EQ(found("(`[^`]+`)", german()), found("(`[^`]+`)", english()));
}

TEST(GermanHelp, showsThePicturesOfTheEnglishPage)
{
    const char *const pictures = "\\]\\(([^)]+\\.png)\\)";
    QStringList files = found(pictures, german());
    files.replaceInStrings(QRegularExpression(QStringLiteral("^\\.\\./")), QString());
    EXPECT_EQ(files, found(pictures, english()));
    for (const QString &file : qAsConst(files))
        EXPECT_TRUE(QFileInfo::exists(QStringLiteral(QUILLMESH_HELP "/") + file))
            << qPrintable(file);
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
