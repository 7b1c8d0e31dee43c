// SPDX-License-Identifier: MIT
#include "host/files/textwords.h"

#include <QtAlgorithms>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace orvane {

namespace {

const char ByteOrderMark[] = "\xef\xbb\xbf"; // of UTF-8
const int MostDigits = std::numeric_limits<float>::max_digits10;
const size_t LongestNumber = 32; // characters, with room to spare

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\v' || c == '\f';
}

// from_chars does not take the plus sign that some programs write.
std::string_view withoutPlus(std::string_view word)
{
    if (word.size() > 1 && word[0] == '+' && word[1] != '-')
        word.remove_prefix(1);
    return word;
}

// Of a number that is no float: is it too small for one, rather than too large?
bool isTiny(std::string_view word)
{
    double value = 0.0;
    const auto code = std::from_chars(word.data(), word.data() + word.size(), value).ec;
    if (code == std::errc())
        return std::abs(value) < 1.0;
    return word.find("e-") != word.npos || word.find("E-") != word.npos;
}

// Does the value lie halfway between two numbers of nine digits? That takes all bits of a number of
// ten digits, the last a 5 behind the point.
bool isHalfway(float value)
{
    const double tens[] = {1e0, 1e1, 1e2, 1e3,  1e4,  1e5,  1e6,
                           1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13};
    quint32 bits = 0;
    std::memcpy(&bits, &value, sizeof(bits));
    const int exponent = int(bits >> 23 & 0xff);
    const quint32 mantissa = (bits & 0x7fffff) | (exponent > 0 ? 0x800000 : 0);
    if (mantissa == 0)
        return false;
    const int lowestBit = std::max(exponent, 1) - 150 + int(qCountTrailingZeroBits(mantissa));
    const int places = -1 - lowestBit; // behind the point, of nine digits; the value has one more
    if (places < 0 || places >= int(std::size(tens)))
        return false;
    const double scaled = std::abs(double(value)) * tens[places];
    return scaled >= 1e8 && scaled < 1e9;
}

} // namespace

std::optional<float> numberIn(std::string_view word)
{
    word = withoutPlus(word);
    float value = 0.0f;
    const char *end = word.data() + word.size();
    const auto [stop, code] = std::from_chars(word.data(), end, value);
    if (word.empty() || stop != end || code == std::errc::invalid_argument)
        return {};
    if (code == std::errc::result_out_of_range)
        return isTiny(word) ? 0.0f : std::numeric_limits<float>::infinity();
    return value;
}

std::optional<int> integerIn(std::string_view word)
{
    word = withoutPlus(word);
    int value = 0;
    const char *end = word.data() + word.size();
    const auto [stop, code] = std::from_chars(word.data(), end, value);
    if (word.empty() || stop != end || code != std::errc())
        return {};
    return value;
}

QByteArray numberText(float value)
{
    QByteArray text;
    appendNumber(&text, value);
    return text;
}

void appendNumber(QByteArray *text, float value)
{
    // Qt writes no -0 and rounds a half up; the standard library rounds it to even.
    if (value == 0.0f || !std::isfinite(value) || isHalfway(value)) {
        *text += QByteArray::number(double(value), 'g', MostDigits);
        return;
    }
    char number[LongestNumber];
    const char *end = std::to_chars(number, std::end(number), double(value),
                                    std::chars_format::general, MostDigits)
                          .ptr;
    text->append(number, int(end - number));
}

void appendNumber(QByteArray *text, int value)
{
    char number[LongestNumber];
    const char *end = std::to_chars(number, std::end(number), value).ptr;
    text->append(number, int(end - number));
}

TextLines::TextLines(const QByteArray &text, bool joined)
    : m_rest(text.constData(), size_t(text.size())), m_joined(joined)
{
    if (text.startsWith(ByteOrderMark))
        m_rest.remove_prefix(sizeof(ByteOrderMark) - 1);
}

bool TextLines::next()
{
    m_words.clear();
    while (m_words.empty() && !m_rest.empty()) {
        m_firstLine = m_line + 1;
        bool goesOn = true;
        while (goesOn) {
            std::string_view text = takeLine();
            goesOn = m_joined && !text.empty() && text.back() == '\\';
            if (goesOn)
                text.remove_suffix(1);
            splitWords(text);
        }
    }
    return !m_words.empty();
}

std::string_view TextLines::takeLine()
{
    ++m_line;
    size_t end = 0;
    while (end < m_rest.size() && m_rest[end] != '\n' && m_rest[end] != '\r')
        ++end;
    std::string_view text = m_rest.substr(0, end);
    m_rest.remove_prefix(end);
    m_rest.remove_prefix(m_rest.substr(0, 2) == "\r\n" ? 2 : std::min<size_t>(1, m_rest.size()));
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

void TextLines::splitWords(std::string_view text)
{
    size_t i = 0;
    while (i < text.size()) {
        while (i < text.size() && isSpace(text[i]))
            ++i;
        const size_t start = i;
        while (i < text.size() && !isSpace(text[i]))
            ++i;
        if (i > start && text[start] == '#')
            return;
        if (i > start)
            m_words.push_back(text.substr(start, i - start));
    }
}

} // namespace orvane
