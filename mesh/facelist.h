// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QVector>

//! Faces as arrays of vertex numbers, all in one block: a mesh of a million faces would spend more
//! time on a block for each than on tracing them. Reads as a list of arrays, and becomes one.
class FaceList
{
public:
    using Face = QVector<int>;

    class Iterator
    {
    public:
        Iterator(const FaceList &faces, int place) : m_faces(faces), m_place(place) {}
        Face operator*() const { return m_faces[m_place]; }
        Iterator &operator++()
        {
            ++m_place;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return m_place != other.m_place; }

    private:
        const FaceList &m_faces;
        int m_place;
    };

    FaceList() = default;
    FaceList(const QList<Face> &faces)
    {
        for (const Face &face : faces)
            append(face);
    }

    int size() const { return m_ends.size(); }
    bool isEmpty() const { return m_ends.isEmpty(); }
    void append(const Face &face)
    {
        m_corners += face;
        m_ends.append(m_corners.size());
    }
    //! Gives back the room for more.
    void squeeze()
    {
        m_corners.squeeze();
        m_ends.squeeze();
    }
    Face operator[](int i) const { return Face(corners(i), corners(i) + cornerCount(i)); }
    //! Without a copy; good until the list changes.
    const int *corners(int i) const { return m_corners.constData() + start(i); }
    int cornerCount(int i) const { return m_ends[i] - start(i); }

    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, size()}; }
    operator QList<Face>() const
    {
        QList<Face> faces;
        for (const Face &face : *this)
            faces.append(face);
        return faces;
    }

    friend bool operator==(const FaceList &a, const FaceList &b)
    {
        return a.m_ends == b.m_ends && a.m_corners == b.m_corners;
    }
    friend bool operator==(const FaceList &a, const QList<Face> &b) { return a == FaceList(b); }
    friend bool operator==(const QList<Face> &a, const FaceList &b) { return FaceList(a) == b; }

private:
    int start(int i) const { return i == 0 ? 0 : m_ends[i - 1]; }

    QVector<int> m_corners; // vertex numbers, face after face
    QVector<int> m_ends;    // by face: in m_corners
};
