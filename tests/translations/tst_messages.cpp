// SPDX-License-Identifier: MIT
// The source files of the translations, against the texts of the sources and against themselves.
#include "tests/translations/messages.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTextDocument>

#include <gtest/gtest.h>

namespace {

const int LupdateTime = 60000; // milliseconds, at most

QString sourceFile(const QString &path)
{
    return QStringLiteral(QUILLMESH_SOURCES "/") + path;
}

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// A copy of all the files, brought up to date with the sources.
class UpdatedCopy : public testing::Test
{
protected:
    UpdatedCopy()
    {
        for (const QString &file : messageFiles())
            EXPECT_TRUE(QFile::copy(QDir(messageFolder()).filePath(file), path(file)));
    }

    QString path(const QString &file) const { return m_folder.filePath(file); }

    void update() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LUPDATE"), QStringLiteral(QUILLMESH_LUPDATE));
        QProcess script;
        script.setProcessEnvironment(environment);
        script.setProcessChannelMode(QProcess::MergedChannels);
        script.start(sourceFile(QStringLiteral("scripts/update_translations.sh")),
                     {m_folder.path()});
        ASSERT_TRUE(script.waitForFinished(LupdateTime));
        ASSERT_EQ(script.exitCode(), 0) << script.readAll().constData();
    }

    void replace(const QString &file, const char *before, const char *after) const
    {
        QString text = textOf(path(file));
        ASSERT_TRUE(text.contains(QLatin1String(before)));
        text.replace(QLatin1String(before), QLatin1String(after));
        QFile out(path(file));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        ASSERT_GT(out.write(text.toUtf8()), 0);
    }

private:
    QTemporaryDir m_folder;
};

QStringList found(const QString &expression, const QString &text)
{
    const QRegularExpression pattern(expression);
    QStringList all;
    auto match = pattern.globalMatch(text);
    while (match.hasNext())
        all.append(match.next().captured());
    return all;
}

QStringList sortedPlaceholders(const QString &text)
{
    QStringList all = found(QStringLiteral("%L?\\d+|%n"), text);
    all.sort();
    return all;
}

// Lines are broken where the language needs it.
QStringList tagsButLineBreaks(const QString &text)
{
    QStringList tags = found(QStringLiteral("<[^>]*>"), text);
    tags.removeAll(QStringLiteral("<br>"));
    return tags;
}

QString leadingBlanks(const QString &text)
{
    return found(QStringLiteral("^\\s*"), text).value(0);
}

QString trailingBlanks(const QString &text)
{
    return found(QStringLiteral("\\s*\\z"), text).value(0);
}

// Places where & marks a key; in rich text it begins something else.
int keyMarks(QString text)
{
    if (Qt::mightBeRichText(text))
        return 0;
    return text.remove(QStringLiteral("&&")).count(QLatin1Char('&'));
}

// The operations that say in the sources what they are called in menus.
QStringList operationsInSources()
{
    const QRegularExpression described(
        QStringLiteral("ClassDesc \\w+\\(\\s*(?:orvane::)?Operation::StaticClass\\(\\),\\s*"
                       "(?:orvane::)?Operation::StaticClass\\(\\),\\s*\"(\\w+)\""));
    QStringList names;
    for (const char *folder : {"host", "graph", "mesh", "operation", "plugin", "ui"}) {
        QDirIterator files(sourceFile(QLatin1String(folder)), {QStringLiteral("*.cpp")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            auto match = described.globalMatch(textOf(files.next()));
            while (match.hasNext())
                names.append(match.next().captured(1));
        }
    }
    return names;
}

} // namespace

TEST(Messages, areThereForHostToolAndQtInGermanAndForTheToolInEnglish)
{
    EXPECT_EQ(messageFiles().filter(QRegularExpression(QStringLiteral("_(de|en)\\.ts$"))),
              (QStringList{QStringLiteral("orvane_de.ts"), QStringLiteral("qt_de.ts"),
                           QStringLiteral("quillmesh_de.ts"), QStringLiteral("quillmesh_en.ts")}));
}

TEST_F(UpdatedCopy, isTheSameAsTheOriginal)
{
    update();
    for (const QString &file : messageFiles()) {
        const QStringList original = keysOf(messagesOf(QDir(messageFolder()).filePath(file)));
        EXPECT_FALSE(original.isEmpty()) << qPrintable(file);
        EXPECT_EQ(keysOf(messagesOf(path(file))).join(QLatin1Char('\n')).toStdString(),
                  original.join(QLatin1Char('\n')).toStdString())
            << qPrintable(file) << ": run scripts/update_translations.sh";
        for (const Message &message : messagesOf(path(file)))
            EXPECT_TRUE(message.finished) << qPrintable(message.key());
    }
}

TEST_F(UpdatedCopy, losesATextThatIsGoneAndGetsOneThatIsMissing)
{
    const QString file = QStringLiteral("orvane_de.ts");
    replace(file, "<source>Rename</source>", "<source>A text of the past</source>");
    update();
    const QVector<Message> messages = messagesOf(path(file));
    EXPECT_EQ(keysOf(messages), keysOf(messagesOf(QDir(messageFolder()).filePath(file))));
    for (const Message &message : messages)
        EXPECT_EQ(message.finished, message.source != QLatin1String("Rename"))
            << qPrintable(message.key());
}

TEST_F(UpdatedCopy, holdsNoLineNumbers)
{
    update();
    for (const QString &file : messageFiles())
        EXPECT_FALSE(textOf(path(file)).contains(QLatin1String("<location"))) << qPrintable(file);
}

TEST(Messages, areAllFinished)
{
    for (const QString &file : messageFiles()) {
        for (const Message &message : messagesOf(QDir(messageFolder()).filePath(file))) {
            EXPECT_TRUE(message.finished) << qPrintable(file + QLatin1Char(' ') + message.key());
            EXPECT_FALSE(message.translation.isEmpty())
                << qPrintable(file + QLatin1Char(' ') + message.key());
        }
    }
}

TEST(Messages, keepPlaceholdersTagsAndBlanksInTranslation)
{
    for (const QString &file : messageFiles()) {
        for (const Message &message : messagesOf(QDir(messageFolder()).filePath(file))) {
            SCOPED_TRACE(qPrintable(file + QLatin1Char(' ') + message.key()));
            const QString &from = message.source;
            const QString &to = message.translation;
            EXPECT_EQ(sortedPlaceholders(to), sortedPlaceholders(from));
            EXPECT_EQ(tagsButLineBreaks(to), tagsButLineBreaks(from));
            EXPECT_EQ(Qt::mightBeRichText(to), Qt::mightBeRichText(from));
            EXPECT_EQ(leadingBlanks(to), leadingBlanks(from));
            EXPECT_EQ(trailingBlanks(to), trailingBlanks(from));
            EXPECT_EQ(to.endsWith(QLatin1String("...")), from.endsWith(QLatin1String("...")));
            EXPECT_EQ(to.count(QLatin1String("\n\n")), from.count(QLatin1String("\n\n")));
        }
    }
}

TEST(Messages, keepAKeyWhereTheTextHasOne)
{
    int marked = 0;
    for (const QString &file : messageFiles()) {
        for (const Message &message : messagesOf(QDir(messageFolder()).filePath(file))) {
            EXPECT_EQ(keyMarks(message.translation), keyMarks(message.source))
                << qPrintable(file + QLatin1Char(' ') + message.key());
            marked += keyMarks(message.source);
        }
    }
    EXPECT_GT(marked, 60);
}

TEST(Messages, inGermanAreOtherThanInEnglishUnlessMeantSo)
{
    // Names, letters, units, and words that both languages have.
    const QSet<QString> same{
        QStringLiteral("+"),           QStringLiteral(" s"),       QStringLiteral("X"),
        QStringLiteral("Y"),           QStringLiteral("Z"),        QStringLiteral("F%1"),
        QStringLiteral("Alt"),         QStringLiteral("Enter"),    QStringLiteral("Esc"),
        QStringLiteral("Meta"),        QStringLiteral("Num"),      QStringLiteral("Pause"),
        QStringLiteral("Tab"),         QStringLiteral("Computer"), QStringLiteral("Name"),
        QStringLiteral("OK"),          QStringLiteral("Plug-ins"), QStringLiteral("Navigation"),
        QStringLiteral("Lasso"),       QStringLiteral("Clay"),     QStringLiteral("&Clay"),
        QStringLiteral("&Navigation:")};
    QSet<QString> found;
    for (const Message &message : messagesIn(QStringLiteral("de"))) {
        if (message.translation == message.source)
            found.insert(message.source);
    }
    EXPECT_EQ(found, same) << qPrintable((found - same).values().join(QLatin1Char('|'))) << " or "
                           << qPrintable((same - found).values().join(QLatin1Char('|')));
}

TEST(Messages, inGermanUseGermanQuotationMarksInPairs)
{
    int pairs = 0;
    for (const Message &message : messagesIn(QStringLiteral("de"))) {
        QString text = message.translation;
        text.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
        EXPECT_FALSE(text.contains(QLatin1Char('"'))) << qPrintable(text);
        EXPECT_EQ(text.count(QChar(0x201e)), text.count(QChar(0x201c))) << qPrintable(text);
        pairs += text.count(QChar(0x201e));
    }
    EXPECT_GE(pairs, 4);
}

TEST(Messages, inGermanCoverEveryOperationOfTheEditMenu)
{
    QSet<QString> contexts;
    for (const Message &message : messagesIn(QStringLiteral("de")))
        contexts.insert(message.context);
    const QStringList operations = operationsInSources();
    EXPECT_GE(operations.size(), 11);
    for (const QString &operation : operations)
        EXPECT_TRUE(contexts.contains(operation))
            << qPrintable(operation) << ": mark its display text with QT_TRANSLATE_NOOP";
}
