// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/operation.h>

#include <QVector>

#include <memory>
#include <random>

namespace orvane {
class Geometry;
class OrvaneCurve;
} // namespace orvane

//! Makes random operations that suit the kernel's scene as it is.
class HistorySteps
{
public:
    explicit HistorySteps(unsigned seed) : m_random(seed) {}

    static const int KindCount = 12;
    static const char *kindName(int kind);

    //! Three geometries and a net of curves to begin with. The scene is empty before.
    void fillScene();
    //! A random number from 0 to below count.
    int below(int count) { return int(m_random() % unsigned(count)); }
    //! Making a mesh from curves, the last kind, comes twice as often, as it fails more often.
    int randomKind() { return qMin(below(KindCount + 1), KindCount - 1); }
    //! Null when the scene has nothing for the kind.
    std::unique_ptr<orvane::Operation> make(int kind);

private:
    using OperationPointer = std::unique_ptr<orvane::Operation>;

    OperationPointer addGeometry();
    OperationPointer addCurve();
    OperationPointer deleteGeometry();
    OperationPointer deleteCurve();
    OperationPointer rename();
    OperationPointer transform();
    OperationPointer select();
    OperationPointer show();
    OperationPointer editCurve();
    OperationPointer selectAll();
    OperationPointer drawOn();
    OperationPointer retopologise();

    orvane::Geometry *newGeometry();
    orvane::OrvaneCurve *newCurve();
    QVector<orvane::Node *> someNodes();

    std::mt19937 m_random;
};
