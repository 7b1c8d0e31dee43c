// SPDX-License-Identifier: MIT
#include "host/files/textwords.h"

#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace orvane;

namespace {

const int ManyNumbers = 1000000;

float floatOf(quint32 bits)
{
    float value = 0.0f;
    std::memcpy(&value, &bits, sizeof(value));
    return value;
}

bool isSameFloat(float a, float b)
{
    return std::memcmp(&a, &b, sizeof(a)) == 0;
}

// As printed by the C library, in one of the forms that programs write.
std::string textOf(float value, std::mt19937 &random)
{
    const char *const forms[] = {"%.6f", "%g", "%.9g", "%e", "%.3f", "%.17g", "%.12f"};
    char text[400];
    std::snprintf(text, sizeof(text), forms[random() % std::size(forms)], double(value));
    return text;
}

using LineOfWords = std::vector<std::string>;

// Plainly: an end of line is "\r\n", "\n" or "\r"; words are parted by blanks and tabs.
std::vector<LineOfWords> linesOf(const std::string &text)
{
    std::vector<LineOfWords> lines(1);
    bool inWord = false;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\n' && i > 0 && text[i - 1] == '\r')
            continue;
        const bool isBreak = c == '\n' || c == '\r';
        const bool isWord = !isBreak && c != ' ' && c != '\t';
        if (isBreak)
            lines.emplace_back();
        if (isWord && !inWord)
            lines.back().emplace_back();
        if (isWord)
            lines.back().back() += c;
        inWord = isWord;
    }
    return lines;
}

} // namespace

TEST(TextWords, aNumberReadsAsTheCLibraryReadsIt)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < ManyNumbers; ++i) {
        const float value =
            i % 2 == 0 ? floatOf(quint32(random())) : float(double(random()) / 1e9 - 2.0);
        if (!std::isfinite(value))
            continue;
        const std::string text = textOf(value, random);
        const std::optional<float> read = numberIn(text);
        ASSERT_TRUE(read) << text;
        const float wanted = std::strtof(text.c_str(), nullptr);
        const bool isTiny = *read == 0.0f && std::abs(wanted) <= 1.2e-38f;
        ASSERT_TRUE(isSameFloat(*read, wanted) || isTiny) << text;
    }
}

TEST(TextWords, edgesOfNumbersReadAsTheCLibraryReadsThem)
{
    for (const char *text : {"0",
                             "-0",
                             "1",
                             "-1",
                             ".5",
                             "5.",
                             "-.5",
                             "1e0",
                             "1E5",
                             "1e-5",
                             "00012.500",
                             "16777217",
                             "16777219",
                             "33554433",
                             "0.1",
                             "3.4028234e38",
                             "3.4028235e38",
                             "1.17549435e-38",
                             "0.000030517578125",
                             "8388608.5",
                             "8388609.5",
                             "1234567890123456789012345678901234567",
                             "0.333333333333333333333333333333333333333333333333"}) {
        const std::optional<float> read = numberIn(text);
        ASSERT_TRUE(read) << text;
        EXPECT_TRUE(isSameFloat(*read, std::strtof(text, nullptr))) << text;
    }
}

TEST(TextWords, whatIsNoNumberIsNone)
{
    for (const char *text :
         {"", "+", "-", ".", "e5", "1e", "1,5", "0x10", "1 ", " 1", "1f", "--1", "+-1", "1..2"})
        EXPECT_FALSE(numberIn(text)) << '"' << text << '"';
}

TEST(TextWords, aNumberIsWrittenAsQtWritesIt)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < ManyNumbers; ++i) {
        const float steps = float(random() % 200000001) - 1e8f;
        const float scales[] = {1e-9f, 1e-3f, 1.0f / 1024.0f, 0.125f, 1.0f, 1e4f};
        const float value =
            i % 2 == 0 ? floatOf(quint32(random())) : steps * scales[random() % std::size(scales)];
        const QByteArray wanted = QByteArray::number(double(value), 'g', 9);
        ASSERT_EQ(numberText(value), wanted);
        ASSERT_TRUE(!std::isfinite(value) || wanted.toFloat() == value) << wanted.constData();
    }
}

TEST(TextWords, halvesAreRoundedUpAsBefore)
{
    int halves = 0;
    // Ten digits, of which the last is a 5 that a float holds exactly.
    for (float step = 0.0009765625f; step < 1.0f; step *= 2.0f) {
        for (int n = 1; n < (1 << 24); n += 1022) {
            const float value = step * float(n);
            const QByteArray wanted = QByteArray::number(double(value), 'g', 9);
            ASSERT_EQ(numberText(value), wanted);
            ASSERT_EQ(numberText(-value), '-' + wanted);
            char even[40];
            std::snprintf(even, sizeof(even), "%.9g", double(value));
            halves += wanted != even;
        }
    }
    EXPECT_GT(halves, 0) << "none of these numbers was one";
}

TEST(TextWords, zerosAndNumbersBeyondAllBoundsAreWrittenAsQtWritesThem)
{
    const float infinity = std::numeric_limits<float>::infinity();
    for (float value :
         {0.0f, -0.0f, infinity, -infinity, std::nanf(""), 1e9f, 9.99999999e8f, 1e-4f, 1e-5f,
          std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min()})
        EXPECT_EQ(numberText(value), QByteArray::number(double(value), 'g', 9));
}

TEST(TextWords, linesEndInAnyOfTheUsualWays)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < 20000; ++i) {
        std::string text;
        for (size_t length = random() % 40; length > 0; --length)
            text += "ab \t\n\r\r\n"[random() % 8];
        const std::vector<LineOfWords> wanted = linesOf(text);
        const QByteArray bytes(text.data(), int(text.size()));
        TextLines lines(bytes, false);
        size_t line = 0;
        while (lines.next()) {
            while (line < wanted.size() && wanted[line].empty())
                ++line;
            ASSERT_LT(line, wanted.size());
            EXPECT_EQ(lines.line(), int(line) + 1);
            const LineOfWords words(lines.words().begin(), lines.words().end());
            EXPECT_EQ(words, wanted[line]);
            ++line;
        }
        while (line < wanted.size() && wanted[line].empty())
            ++line;
        EXPECT_EQ(line, wanted.size());
    }
}

TEST(TextWords, partsHaveTheLinesOfTheWholeText)
{
    std::mt19937 random(testSeed());
    for (int i = 0; i < 20000; ++i) {
        QByteArray bytes;
        for (size_t length = random() % 60; length > 0; --length)
            bytes += "ab# \t\\\\\n\r\r\n"[random() % 11];
        const bool joined = random() % 2 == 0;
        TextLines whole(bytes, joined);
        int last = 0;
        std::vector<std::pair<int, LineOfWords>> wanted;
        while (whole.next())
            wanted.push_back({whole.line(), {whole.words().begin(), whole.words().end()}});
        std::vector<LineOfWords> found;
        size_t bytesOfParts = 0;
        const int count = 1 + int(random() % 9);
        const std::vector<TextLines> parts = TextLines(bytes, joined).inParts(count);
        EXPECT_LE(int(parts.size()), count);
        for (TextLines part : parts) {
            bytesOfParts += part.rest().size();
            while (part.next())
                found.push_back({part.words().begin(), part.words().end()});
        }
        EXPECT_EQ(bytesOfParts, size_t(bytes.size()));
        ASSERT_EQ(found.size(), wanted.size()) << bytes.constData();
        for (size_t line = 0; line < found.size(); ++line) {
            EXPECT_EQ(found[line], wanted[line].second) << bytes.constData();
            EXPECT_GT(wanted[line].first, last);
            last = wanted[line].first;
        }
    }
}
