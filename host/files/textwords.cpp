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

bool isBreak(char c)
{
    return c == '\n' || c == '\r';
}

bool isInWord(char c)
{
    return uchar(c) > ' ' || !(isSpace(c) || isBreak(c));
}

// Of a text that begins with one, or is empty.
std::string_view withoutBreak(std::string_view text)
{
    return text.substr(text.substr(0, 2) == "\r\n" ? 2 : std::min<size_t>(1, text.size()));
}

std::string_view withoutSpaceBehind(std::string_view text)
{
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
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
        while (takeLine())
            continue;
    }
    return !m_words.empty();
}

std::vector<TextLines> TextLines::inParts(int count) const
{
    std::vector<TextLines> parts;
    size_t begin = 0;
    for (int i = 1; i <= count && begin < m_rest.size(); ++i) {
        const size_t about = m_rest.size() / size_t(count) * size_t(i);
        const size_t end = i < count ? endOfLine(std::max(begin, about)) : m_rest.size();
        parts.push_back(TextLines(m_rest.substr(begin, end - begin), m_joined));
        begin = end;
    }
    return parts;
}

bool TextLines::carriesOn(std::string_view line) const
{
    return m_joined && !line.empty() && line.back() == '\\';
}

// Behind the first line break from there on that parts two lines.
size_t TextLines::endOfLine(size_t from) const
{
    if (from > 0 && m_rest.substr(from - 1, 2) == "\r\n")
        --from; // the line ends before both
    for (;;) {
        const size_t end = std::min(m_rest.find_first_of("\r\n", from), m_rest.size());
        from = m_rest.size() - withoutBreak(m_rest.substr(end)).size();
        if (end == m_rest.size() || !carriesOn(withoutSpaceBehind(m_rest.substr(0, end))))
            return from;
    }
}

// Does the next line belong to it?
bool TextLines::takeLine()
{
    ++m_line;
    const char *at = m_rest.data();
    const char *end = at + m_rest.size();
    std::string_view word;
    bool isComment = false;
    while (at != end && !isBreak(*at)) {
        const char *begin = at;
        while (at != end && isInWord(*at))
            ++at;
        if (at == begin) {
            ++at;
            continue;
        }
        word = {begin, size_t(at - begin)};
        isComment = isComment || word.front() == '#';
        if (!isComment)
            m_words.push_back(word);
    }
    m_rest = withoutBreak({at, size_t(end - at)});
    const bool goesOn = carriesOn(word);
    if (!goesOn || isComment)
        return goesOn;
    m_words.back().remove_suffix(1);
    if (m_words.back().empty())
        m_words.pop_back();
    return true;
}

} // namespace orvane
