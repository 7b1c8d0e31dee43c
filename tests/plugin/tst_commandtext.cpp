// SPDX-License-Identifier: MIT
#include "plugin/commandtext.h"
#include "tests/support/shapes.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

namespace {

const double SixDigits = 0.5e-5;  // greatest relative error of six significant digits
const double OfFloat = 1.2e-7;    // greatest relative error of one float operation
const int RandomCommands = 20000; // count
const CommandValues Fresh = {5, 0.3f, 0.05f, 35.0f, false}; // what a fresh dialog gives

CommandValues read(const char *text)
{
    const std::optional<CommandValues> values = readCommand(QLatin1String(text));
    EXPECT_TRUE(values) << text;
    return values.value_or(CommandValues());
}

void expectEqual(const CommandValues &found, const CommandValues &expected)
{
    EXPECT_EQ(found.maximumEdges, expected.maximumEdges);
    EXPECT_EQ(found.mergeDistance, expected.mergeDistance);
    EXPECT_EQ(found.intersectionTolerance, expected.intersectionTolerance);
    EXPECT_EQ(found.overrunTolerance, expected.overrunTolerance);
    EXPECT_EQ(found.useSelfIntersections, expected.useSelfIntersections);
}

quint32 bitsOf(float value)
{
    quint32 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

// Of either sign, from 1e-6 to 1e6.
float randomFloat(std::mt19937 &random)
{
    const double magnitude = std::pow(10.0, double(randomBetween(random, -6.0f, 6.0f)));
    return float(random() & 1 ? magnitude : -magnitude);
}

CommandValues randomValues(std::mt19937 &random)
{
    const int edges = int(random());
    const float merge = randomFloat(random);
    const float tolerance = randomFloat(random);
    return {edges, merge, tolerance, randomFloat(random), (random() & 1) != 0};
}

} // namespace

TEST(CommandText, aFreshDialogRecordsTheKeywordAnd5And03And005And35And0)
{
    EXPECT_EQ(commandText(Fresh), QStringLiteral("manualretopo 5 0.3 0.05 35 0"));
}

TEST(CommandText, theTextOfAFreshDialogReadsBackBitForBit)
{
    const CommandValues values = read("manualretopo 5 0.3 0.05 35 0");
    expectEqual(values, Fresh);
    EXPECT_EQ(bitsOf(values.mergeDistance), bitsOf(30.0f / 100.0f));
    EXPECT_EQ(bitsOf(values.intersectionTolerance), bitsOf(5.0f / 100.0f));
    EXPECT_EQ(bitsOf(values.overrunFraction()), bitsOf(0.35f));
}

TEST(CommandText, theKeywordAloneTakesTheDefaults)
{
    expectEqual(read("manualretopo"), {5, 10.0f, 5.0f, 35.0f, true});
    EXPECT_EQ(read("manualretopo").overrunFraction(), 0.35f);
}

TEST(CommandText, missingTrailingFieldsTakeTheirDefaults)
{
    expectEqual(read("manualretopo 7"), {7, 10.0f, 5.0f, 35.0f, true});
    expectEqual(read("manualretopo 7 0.25"), {7, 0.25f, 5.0f, 35.0f, true});
    expectEqual(read("manualretopo 7 0.25 0.5 "), {7, 0.25f, 0.5f, 35.0f, true});
    expectEqual(read("manualretopo 7 0.25 0.5 12"), {7, 0.25f, 0.5f, 12.0f, true});
}

TEST(CommandText, twoBlanksMakeAnEmptyFieldAndTheNextFieldKeepsItsPlace)
{
    expectEqual(read("manualretopo  6"), {5, 6.0f, 5.0f, 35.0f, true});
    expectEqual(read("manualretopo     0"), {5, 10.0f, 5.0f, 35.0f, false});
}

TEST(CommandText, anotherKeywordIsIgnored)
{
    for (const char *text :
         {"", " ", "Manualretopo 5", "MANUALRETOPO", "manualRetopo 5 0.3 0.05 35 0", "manualretop",
          "manualretopos 5", " manualretopo 5", "manualretopo\t5", "5 0.3 0.05 35 0"})
        EXPECT_FALSE(readCommand(QLatin1String(text))) << text;
    EXPECT_FALSE(readCommand(QString()));
}

TEST(CommandText, aFieldThatIsNoNumberReadsAsZeroAndNotAsTheDefault)
{
    expectEqual(read("manualretopo x x x x x"), {0, 0.0f, 0.0f, 0.0f, false});
    EXPECT_EQ(read("manualretopo 5.5").maximumEdges, 0);
    EXPECT_EQ(read("manualretopo 0x10").maximumEdges, 0);
    EXPECT_EQ(read("manualretopo 99999999999").maximumEdges, 0);
    EXPECT_EQ(read("manualretopo 5 0,3").mergeDistance, 0.0f);
    EXPECT_FALSE(read("manualretopo 5 1 1 1 true").useSelfIntersections);
}

TEST(CommandText, anyWholeNumberButZeroUsesSelfIntersections)
{
    EXPECT_TRUE(read("manualretopo 5 1 1 1 2").useSelfIntersections);
    EXPECT_TRUE(read("manualretopo 5 1 1 1 -1").useSelfIntersections);
    EXPECT_FALSE(read("manualretopo 5 1 1 1 0").useSelfIntersections);
    EXPECT_FALSE(read("manualretopo 5 1 1 1 00").useSelfIntersections);
}

TEST(CommandText, fieldsBeyondTheFifthAreIgnored)
{
    expectEqual(read("manualretopo 5 0.3 0.05 35 0 1 2 3"), Fresh);
}

TEST(CommandText, aValueOfMoreThanSixDigitsLosesTheRest)
{
    const CommandValues values = {5, 0.12345678f, 0.05f, 1234567.0f, false};
    EXPECT_EQ(commandText(values), QStringLiteral("manualretopo 5 0.123457 0.05 1.23457e+06 0"));
    const CommandValues back = read("manualretopo 5 0.123457 0.05 1.23457e+06 0");
    EXPECT_EQ(back.mergeDistance, 0.123457f);
    EXPECT_EQ(back.overrunTolerance, 1234570.0f);
}

TEST(CommandText, negativeAndVerySmallValuesAreWrittenAsTheyAre)
{
    EXPECT_EQ(commandText({-3, -0.01f, 1e-7f, 0.0f, true}),
              QStringLiteral("manualretopo -3 -0.01 1e-07 0 1"));
    expectEqual(read("manualretopo -3 -0.01 1e-07 0 1"), {-3, -0.01f, 1e-7f, 0.0f, true});
}

TEST(CommandText, theUsersLanguageDoesNotChangeTheText)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    const QString text = commandText({1234567, 0.3f, 1234.5f, 35.0f, false});
    QLocale::setDefault(before);
    EXPECT_EQ(text, QStringLiteral("manualretopo 1234567 0.3 1234.5 35 0"));
}

TEST(CommandText, theOverrunIsMultipliedInDoublePrecisionAndThenNarrowed)
{
    EXPECT_EQ(bitsOf(Fresh.overrunFraction()), bitsOf(float(double(35.0f) * 0.01)));
    int differs = 0; // from a product of floats
    for (int percent = 0; percent <= 10000; ++percent) {
        const CommandValues values = {5, 0.3f, 0.05f, float(percent) / 8.0f, false};
        const float product = values.overrunTolerance * 0.01f;
        EXPECT_EQ(bitsOf(values.overrunFraction()),
                  bitsOf(float(double(values.overrunTolerance) * 0.01)));
        differs += bitsOf(values.overrunFraction()) != bitsOf(product);
    }
    EXPECT_GT(differs, 0);
}

TEST(CommandText, randomValuesComeBackWithinSixDigits)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < RandomCommands; ++i) {
        const CommandValues values = randomValues(random);
        const QString text = commandText(values);
        SCOPED_TRACE(text.toStdString());
        const std::optional<CommandValues> back = readCommand(text);
        ASSERT_TRUE(back);
        ASSERT_EQ(back->maximumEdges, values.maximumEdges);
        ASSERT_EQ(back->useSelfIntersections, values.useSelfIntersections);
        for (float CommandValues::*field :
             {&CommandValues::mergeDistance, &CommandValues::intersectionTolerance,
              &CommandValues::overrunTolerance}) {
            const double value = double(values.*field);
            ASSERT_NEAR(double((*back).*field), value, std::abs(value) * (SixDigits + OfFloat));
        }
        ASSERT_EQ(commandText(*back), text) << "a text that was read is written the same way";
    }
}

TEST(CommandText, noTextDoesHarm)
{
    std::mt19937 random(testSeed());
    const QString letters = QStringLiteral("manualretopo 0123456789.eE+-%1\t\n\u00e4\u2028 ");
    int read = 0;
    for (int i = 0; i < RandomCommands; ++i) {
        QString text = i % 2 ? QStringLiteral("manualretopo ") : QString();
        for (int length = int(random() % 40); length > 0; --length)
            text.append(letters.at(int(random() % unsigned(letters.size()))));
        read += readCommand(text).has_value();
        EXPECT_EQ(readCommand(text).has_value(),
                  text == QStringLiteral("manualretopo")
                      || text.startsWith(QStringLiteral("manualretopo ")));
    }
    EXPECT_GE(read, RandomCommands / 2);
}
