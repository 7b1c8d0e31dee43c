// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

#include <QtAlgorithms>

//! Numbers that come in any order and leave ascending. There is a bit for each number, and one for
//! each word of those bits, so that empty stretches cost next to nothing.
class NumberSet
{
public:
    //! Numbers are from the first to the last. Forgets all that are in it.
    void setRange(int first, int last)
    {
        m_first = first;
        m_bits.fill(0, (last - first) / WordBits + 1);
        m_words.fill(0, m_bits.size() / WordBits + 1);
    }

    void add(int number)
    {
        const int place = number - m_first;
        const int word = place / WordBits;
        m_bits[word] |= bit(place);
        m_words[word / WordBits] |= bit(word);
    }

    //! Appends, ascending, those that are not below first, and forgets all.
    void takeFrom(int first, QVector<int> &numbers)
    {
        for (int i = 0; i < m_words.size(); ++i) {
            takeBits(m_words[i], i * WordBits, [&](int word) {
                takeBits(m_bits[word], word * WordBits, [&](int place) {
                    if (m_first + place >= first)
                        numbers.append(m_first + place);
                });
            });
        }
    }

private:
    static const int WordBits = 64;

    static quint64 bit(int place) { return quint64(1) << (place % WordBits); }

    template <typename Visitor>
    static void takeBits(quint64 &bits, int first, Visitor visit)
    {
        for (; bits != 0; bits &= bits - 1)
            visit(first + int(qCountTrailingZeroBits(bits)));
    }

    int m_first = 0;
    QVector<quint64> m_bits;  // by number, from the first on
    QVector<quint64> m_words; // by word of those: is there a bit in it?
};
