// SPDX-License-Identifier: MIT
#include "cli/commandfile.h"

#include "host/files/safefile.h"

#include <QRegularExpression>
#include <QTextCodec>

#include <algorithm>

namespace {

const int LongestLine = 1 << 16; // characters
const int Fields = 5;            // after the keyword

// Bytes that a terminal takes for more than letters are no part of a command.
bool isPlain(const QString &text)
{
    return std::all_of(text.cbegin(), text.cend(), [](QChar c) {
        return c == QLatin1Char('\t') || c == QLatin1Char('\n')
               || c.category() != QChar::Other_Control;
    });
}

// False when the bytes are no text.
bool decode(QByteArray bytes, QString *text)
{
    bytes.replace("\r\n", "\n").replace('\r', '\n');
    QTextCodec::ConverterState state; // a mark of the byte order is skipped
    *text = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 && isPlain(*text);
}

} // namespace

QVector<CommandLine> readCommands(const QString &path, QString *error)
{
    QByteArray bytes;
    if (!orvane::readWhole(path, &bytes, error))
        return {};
    QString text;
    if (!decode(bytes, &text)) {
        *error = orvane::aboutFile(path, QStringLiteral("this is no text; expected commands, one "
                                                        "a line, in UTF-8."));
        return {};
    }
    QVector<CommandLine> commands;
    const QVector<QStringRef> lines = text.splitRef(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        if (lines[i].size() > LongestLine) {
            *error = orvane::aboutFile(
                path, QStringLiteral("line %1 is no command: it has %2 characters, expected at "
                                     "most %3.")
                          .arg(i + 1)
                          .arg(lines[i].size())
                          .arg(LongestLine));
            return {};
        }
        // Blanks within and after a command have a meaning; only the whole line may have none.
        const QStringRef words = lines[i].trimmed();
        if (!words.isEmpty() && !words.startsWith(QLatin1Char('#')))
            commands.append({i + 1, lines[i].toString()});
    }
    if (commands.isEmpty())
        *error =
            orvane::aboutFile(path, QStringLiteral("there is no command in it; expected lines "
                                                   "such as \"manualretopo 5 0.3 0.05 35 0\"."));
    return commands;
}

QString doubtAbout(const QString &command)
{
    const QString keyword = QStringLiteral("manualretopo");
    static const QRegularExpression Space(QStringLiteral("\\s+"));
    if (command.section(QLatin1Char(' '), 0, 0) != keyword) {
        const bool looksRight = command.trimmed().section(Space, 0, 0) == keyword;
        return looksRight ? QStringLiteral("no blank may stand before the keyword, and one must "
                                           "follow it")
                          : QString();
    }
    for (int i = 1; i <= Fields; ++i) {
        const QString field = command.section(QLatin1Char(' '), i, i);
        bool isNumber = true;
        if (i == 1 || i == Fields)
            field.toInt(&isNumber);
        else
            field.toFloat(&isNumber);
        if (!field.isEmpty() && !isNumber)
            return QStringLiteral("\"%1\" is no %2 and reads as 0")
                .arg(field, i == 1 || i == Fields ? QStringLiteral("whole number")
                                                  : QStringLiteral("number"));
    }
    if (!command.section(QLatin1Char(' '), Fields + 1).trimmed().isEmpty())
        return QStringLiteral("what follows the fifth field is ignored");
    return {};
}
