// SPDX-License-Identifier: MIT
#include <orvane/math/matrix.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvane {

namespace {

// Gauss-Jordan elimination with partial pivoting on [work | inverse]; false when singular.
bool eliminate(double (&work)[4][4], double (&inverse)[4][4])
{
    for (int column = 0; column < 4; ++column) {
        int pivot = column;
        for (int row = column + 1; row < 4; ++row) {
            if (std::fabs(work[row][column]) > std::fabs(work[pivot][column]))
                pivot = row;
        }
        if (!(std::fabs(work[pivot][column]) > 0.0))
            return false;
        std::swap(work[pivot], work[column]);
        std::swap(inverse[pivot], inverse[column]);

        const double scale = 1.0 / work[column][column];
        for (int k = 0; k < 4; ++k) {
            work[column][k] *= scale;
            inverse[column][k] *= scale;
        }
        for (int row = 0; row < 4; ++row) {
            const double factor = work[row][column];
            if (row == column || factor == 0.0)
                continue;
            for (int k = 0; k < 4; ++k) {
                work[row][k] -= factor * work[column][k];
                inverse[row][k] -= factor * inverse[column][k];
            }
        }
    }
    return true;
}

} // namespace

Matrix Matrix::Translation(const Vector &offset)
{
    Matrix result;
    result.SetRow(3, offset);
    return result;
}

Matrix Matrix::Scaling(const Vector &factors)
{
    Matrix result;
    result.m_element[0][0] = factors.x;
    result.m_element[1][1] = factors.y;
    result.m_element[2][2] = factors.z;
    return result;
}

// Rodrigues' rotation formula, applied to each axis in turn.
Matrix Matrix::Rotation(const Vector &axis, float angle)
{
    const Vector k = Normalized(axis);
    const float sine = std::sin(angle);
    const float cosine = std::cos(angle);
    const Vector axes[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    Matrix result;
    for (int row = 0; row < 3; ++row) {
        const Vector &v = axes[row];
        result.SetRow(row, v * cosine + (k & v) * sine + k * (Dot(k, v) * (1.0f - cosine)));
    }
    return result;
}

bool Matrix::IsIdentity() const
{
    return *this == Matrix();
}

Vector Matrix::Row(int row) const
{
    return {m_element[row][0], m_element[row][1], m_element[row][2]};
}

void Matrix::SetIdentity()
{
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            m_element[row][column] = row == column ? 1.0f : 0.0f;
    }
}

void Matrix::SetRow(int row, const Vector &value)
{
    m_element[row][0] = value.x;
    m_element[row][1] = value.y;
    m_element[row][2] = value.z;
}

bool Matrix::Invert()
{
    double work[4][4];
    double inverse[4][4];
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            if (!std::isfinite(m_element[row][column]))
                return false;
            work[row][column] = m_element[row][column];
            inverse[row][column] = row == column ? 1.0 : 0.0;
        }
    }
    if (!eliminate(work, inverse))
        return false;
    Matrix result;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            result.m_element[row][column] = float(inverse[row][column]);
            if (!std::isfinite(result.m_element[row][column]))
                return false;
        }
    }
    *this = result;
    return true;
}

Vector Matrix::Transform(const Vector &v, float w) const
{
    return {
        v.x * m_element[0][0] + v.y * m_element[1][0] + v.z * m_element[2][0] + w * m_element[3][0],
        v.x * m_element[0][1] + v.y * m_element[1][1] + v.z * m_element[2][1] + w * m_element[3][1],
        v.x * m_element[0][2] + v.y * m_element[1][2] + v.z * m_element[2][2]
            + w * m_element[3][2]};
}

Matrix Matrix::operator*(const Matrix &other) const
{
    Matrix result;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            float sum = 0.0f;
            for (int k = 0; k < 4; ++k)
                sum += m_element[row][k] * other.m_element[k][column];
            result.m_element[row][column] = sum;
        }
    }
    return result;
}

bool Matrix::operator==(const Matrix &other) const
{
    return std::equal(&m_element[0][0], &m_element[0][0] + 16, &other.m_element[0][0]);
}

} // namespace orvane
