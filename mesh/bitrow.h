// SPDX-License-Identifier: MIT
#pragma once

#include <QtAlgorithms>
#include <QtGlobal>

#include <vector>

//! A row of bits, all 0 at first. Places are in range.
class BitRow
{
public:
    static constexpr int WordBits = 64;

    explicit BitRow(int count = 0) : m_words(size_t(count) / WordBits + 1) {}

    bool has(int place) const { return word(place / WordBits) >> (place % WordBits) & 1u; }
    void set(int place) { m_words[size_t(place) / WordBits] |= bit(place); }
    void clear(int place) { m_words[size_t(place) / WordBits] &= ~bit(place); }

    //! From first up to last, which is left out.
    void setRange(int first, int last)
    {
        change(first, last, [](quint64 &word, quint64 mask) { word |= mask; });
    }
    void clearRange(int first, int last)
    {
        change(first, last, [](quint64 &word, quint64 mask) { word &= ~mask; });
    }
    bool hasAny(int first, int last) const
    {
        for (int place = first; place < last; ++place) {
            if (has(place))
                return true;
        }
        return false;
    }

    quint64 word(int i) const { return m_words[size_t(i)]; }

private:
    static quint64 bit(int place) { return quint64(1) << (place % WordBits); }

    template <typename Change>
    void change(int first, int last, Change change)
    {
        while (first < last) {
            const int start = first % WordBits;
            const int bits = qMin(last - first, WordBits - start);
            const quint64 mask = ~quint64(0) >> (WordBits - bits) << start;
            change(m_words[size_t(first) / WordBits], mask);
            first += bits;
        }
    }

    std::vector<quint64> m_words;
};
