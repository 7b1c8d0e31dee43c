// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

#include <QtAlgorithms>

//! Numbers that come in any order and leave ascending. There is a bit for each number, and one for
//! each word of those bits, so that empty stretches cost next to nothing.
class NumberSet
{
public:
    //! Numbers are below size. Forgets all that are in it.
    void resize(int size)
    {
        m_bits.fill(0, size / WordBits + 1);
        m_words.fill(0, m_bits.size() / WordBits + 1);
    }

    void add(int number)
    {
        const int word = number / WordBits;
        m_bits[word] |= bit(number);
        m_words[word / WordBits] |= bit(word);
    }

    //! Appends, ascending, those that are not below first, and forgets all.
    void takeFrom(int first, QVector<int> &numbers)
    {
        for (int i = 0; i < m_words.size(); ++i) {
            takeBits(m_words[i], i * WordBits, [&](int word) {
                takeBits(m_bits[word], word * WordBits, [&](int number) {
                    if (number >= first)
                        numbers.append(number);
                });
            });
        }
    }

private:
    static const int WordBits = 64;

    static quint64 bit(int number) { return quint64(1) << (number % WordBits); }

    template <typename Visitor>
    static void takeBits(quint64 &bits, int first, Visitor visit)
    {
        for (; bits != 0; bits &= bits - 1)
            visit(first + int(qCountTrailingZeroBits(bits)));
    }

    QVector<quint64> m_bits;  // by number
    QVector<quint64> m_words; // by word of those: is there a bit in it?
};
