// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QVector>

#include <algorithm>
#include <initializer_list>
#include <type_traits>

//! A list that keeps up to Room entries within itself: a graph of a million nodes has four lists a
//! node, and nearly all are this short. It grows like any other beyond. Offers what the code asks
//! of a QList, and becomes one. Indices are in range, but for value().
template <typename T, int Room>
class ShortList
{
    static_assert(std::is_trivial<T>::value, "entries are copied as bytes");

public:
    ShortList() {}
    ShortList(std::initializer_list<T> entries) { assign(entries.begin(), entries.end()); }
    ShortList(const ShortList &other) { assign(other.begin(), other.end()); }
    ~ShortList() { release(); }
    ShortList &operator=(const ShortList &other)
    {
        if (this != &other)
            assign(other.begin(), other.end());
        return *this;
    }

    int size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }
    T *begin() { return isFar() ? m_far : m_near; }
    T *end() { return begin() + m_size; }
    const T *begin() const { return isFar() ? m_far : m_near; }
    const T *end() const { return begin() + m_size; }
    const T *cbegin() const { return begin(); }
    const T *cend() const { return end(); }
    T &operator[](int i) { return begin()[i]; }
    const T &operator[](int i) const { return begin()[i]; }
    const T &at(int i) const { return begin()[i]; }
    const T &first() const { return begin()[0]; }
    const T &last() const { return end()[-1]; }
    //! A default one when out of range.
    T value(int i) const { return i >= 0 && i < m_size ? begin()[i] : T(); }
    //! -1 when absent.
    int indexOf(T entry) const
    {
        const T *found = std::find(begin(), end(), entry);
        return found == end() ? -1 : int(found - begin());
    }
    bool contains(T entry) const { return indexOf(entry) >= 0; }

    void reserve(int count)
    {
        if (count <= m_capacity)
            return;
        const int capacity = std::max(count, 2 * m_capacity);
        T *grown = new T[std::size_t(capacity)]; // the list's, until release
        std::copy(begin(), end(), grown);
        release();
        m_far = grown;
        m_capacity = capacity;
    }
    void append(T entry)
    {
        reserve(m_size + 1);
        begin()[m_size++] = entry;
    }
    void prepend(T entry)
    {
        append(entry);
        std::rotate(begin(), end() - 1, end());
    }
    void removeAt(int i)
    {
        std::copy(begin() + i + 1, end(), begin() + i);
        --m_size;
    }
    T takeAt(int i)
    {
        const T taken = at(i);
        removeAt(i);
        return taken;
    }

    QVector<T> toVector() const { return QVector<T>(begin(), end()); }
    operator QList<T>() const { return QList<T>(begin(), end()); }

    friend bool operator==(const ShortList &a, const ShortList &b)
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }
    friend bool operator==(const ShortList &a, const QList<T> &b)
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

private:
    bool isFar() const { return m_capacity > Room; }
    void release()
    {
        if (isFar())
            delete[] m_far;
    }
    void assign(const T *from, const T *to)
    {
        m_size = 0;
        reserve(int(to - from));
        std::copy(from, to, begin());
        m_size = int(to - from);
    }

    int m_size = 0;
    int m_capacity = Room; // more than Room: the entries are far
    union {
        T m_near[Room];
        T *m_far; // owned
    };
};
