// SPDX-License-Identifier: MIT
// The command line reports in English; within that the tool speaks the language asked for.
#include "tests/cli/batchrun.h"
#include "tests/translations/messages.h"

#include <QRegularExpression>

namespace {

class GermanReport : public BatchTest
{
protected:
    GermanReport() { writePlane(); }

    BatchResult buildIn(const char *language, const QString &curves) const
    {
        return build(curves, {QStringLiteral("--language"), QLatin1String(language)});
    }
};

// What a stage took differs from run to run.
QString withoutTimes(QString report)
{
    return report.replace(QRegularExpression(QStringLiteral("\\d+\\.\\d{3}\\b")),
                          QLatin1String("?"));
}

} // namespace

TEST_F(GermanReport, isTheEnglishOne)
{
    writeNet();
    const BatchResult english = buildIn("en", QStringLiteral("net.json"));
    const BatchResult german = buildIn("de", QStringLiteral("net.json"));
    EXPECT_EQ(english.exitCode, 0);
    EXPECT_EQ(german.exitCode, 0);
    EXPECT_TRUE(english.output.contains(QStringLiteral("crossings  9")));
    EXPECT_EQ(withoutTimes(german.output), withoutTimes(english.output));
    EXPECT_EQ(german.errors, english.errors);
}

TEST_F(GermanReport, givesTheToolsReasonInGerman)
{
    writeStrokes(QStringLiteral("apart.json"), {{1.0, 1.0, 2.0, 1.0}, {1.0, 5.0, 2.0, 5.0}});
    const BatchResult english = buildIn("en", QStringLiteral("apart.json"));
    const BatchResult german = buildIn("de", QStringLiteral("apart.json"));
    EXPECT_EQ(english.exitCode, 1);
    EXPECT_EQ(german.exitCode, 1);
    const char *const reason = "no two curves cross";
    EXPECT_TRUE(english.output.contains(QLatin1String(reason))) << qPrintable(english.output);
    const QString translation =
        translationOf(messagesIn(QStringLiteral("de")), "ManualRetopoOperation", reason);
    EXPECT_TRUE(german.output.contains(translation)) << qPrintable(german.output);
    QString replaced = withoutTimes(german.output);
    EXPECT_EQ(replaced.replace(translation, QLatin1String(reason)), withoutTimes(english.output));
}
