// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/dialoganswer.h"
#include "tests/support/scenecleaner.h"
#include "tests/support/strokes.h"

#include <QVector>

#include <memory>

class ManualRetopoOperation;

namespace orvane {
class Geometry;
class Node;
} // namespace orvane

//! Fixture of tests that run the operation: an empty scene, an empty undo queue, and every fault
//! dialog answered by the button of that name.
class OperationScene : public SceneCleaner
{
protected:
    explicit OperationScene(const QString &answer = QStringLiteral("accept"));
    ~OperationScene() override;

    //! Limit 5, merging below 0.1 and crossing within 0.05 average edges, the overrun given.
    static std::unique_ptr<ManualRetopoOperation>
    operationOn(const QList<orvane::OrvaneCurve *> &curves, float overrun = 0.0f);

    //! Four strokes round a square, overshooting its corners by a quarter: one cell.
    static QList<orvane::OrvaneCurve *> drawCell(Sheet &sheet, const orvane::Vector &corner,
                                                 float side);

    //! What is in the scene, in order.
    static QVector<orvane::Node *> sceneNodes();

    DialogAnswer dialogs;
};

//! What identifies a created geometry and what it holds.
struct Created
{
    explicit Created(orvane::Geometry *geometry);

    bool operator==(const Created &other) const
    {
        return geometryID == other.geometryID && placementID == other.placementID
               && meshID == other.meshID && bytes == other.bytes;
    }

    int geometryID;
    int placementID;
    int meshID;
    QByteArray bytes;
};

//! Every geometry of the scene but the first so many.
std::vector<Created> createdGeometries(int sources);
