// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>
#include <orvane/math/vector.h>

namespace orvane {

//! A 4 x 4 matrix of 32-bit floats that works on row vectors: a point times the matrix.
//! Rows 0 to 2 say where the axes go, row 3 where the origin goes.
class ORVANE_EXPORT Matrix
{
public:
    //! The identity.
    Matrix() { SetIdentity(); }

    static Matrix Translation(const Vector &offset);
    static Matrix Scaling(const Vector &factors);
    //! Turns counter-clockwise about the axis, seen against it; angle in radians.
    static Matrix Rotation(const Vector &axis, float angle);

    bool IsIdentity() const;
    float Element(int row, int column) const { return m_element[row][column]; }
    //! The first three elements of a row, 0 to 3.
    Vector Row(int row) const;
    //! Sixteen floats, row after row.
    const float *Data() const { return &m_element[0][0]; }

    void SetIdentity();
    void SetElement(int row, int column, float value) { m_element[row][column] = value; }
    //! Sets the first three elements of a row, 0 to 3; the fourth stays.
    void SetRow(int row, const Vector &value);

    //! Replaces the matrix by its inverse. False, and unchanged, when it has none in finite floats.
    bool Invert();

    //! The row vector (v, w) times the matrix, its first three components.
    //! w is 1 for a point and 0 for a direction.
    Vector Transform(const Vector &v, float w) const;

    //! First this, then the other.
    Matrix operator*(const Matrix &other) const;
    bool operator==(const Matrix &other) const;
    bool operator!=(const Matrix &other) const { return !(*this == other); }

private:
    float m_element[4][4];
};

} // namespace orvane
