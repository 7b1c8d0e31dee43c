// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>
#include <vector>

namespace orvane {

//! A number written out with or without exponent; infinite when it is beyond a float, none when
//! the word is no number. Whatever the system's language, the decimal mark is a point.
std::optional<float> numberIn(std::string_view word);

//! A whole number; none when the word is none, or beyond 32 bits.
std::optional<int> integerIn(std::string_view word);

//! In up to 9 digits: reading it back gives the same float.
QByteArray numberText(float value);
void appendNumber(QByteArray *text, float value);
void appendNumber(QByteArray *text, int value);

//! Goes through the lines of a text as rows of words. Texts that other programs wrote may end
//! lines in any of the usual ways.
class TextLines
{
public:
    //! Views the text, which must outlive this. joined: a backslash at its end carries a line on.
    TextLines(const QByteArray &text, bool joined);

    //! Moves to the next line that has words; false at the end. A word that starts
    //! with '#' and what follows it are a comment.
    bool next();
    //! Of the current line, counted from 1; the first one of joined lines.
    int line() const { return m_firstLine; }
    const std::vector<std::string_view> &words() const { return m_words; }
    //! What follows the current line, as so many parts or fewer of whole lines, about equally long.
    //! Each counts its lines from 1.
    std::vector<TextLines> inParts(int count) const;
    //! What follows the current line.
    std::string_view rest() const { return m_rest; }

private:
    TextLines(std::string_view text, bool joined) : m_rest(text), m_joined(joined) {}

    bool carriesOn(std::string_view line) const;
    size_t endOfLine(size_t from) const;
    bool takeLine();

    std::string_view m_rest;
    bool m_joined;
    int m_line = 0;
    int m_firstLine = 0;
    std::vector<std::string_view> m_words;
};

} // namespace orvane
