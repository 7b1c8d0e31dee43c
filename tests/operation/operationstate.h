// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QVector>

class ManualRetopoOperation;

namespace orvane {
class Geometry;
}

//! What an operation writes to a stream, taken apart by its layout.
struct OperationState
{
    bool firstExecution = false;
    int maxEdges = 0;
    float mergeDistance = 0.0f;
    float intersectionTolerance = 0.0f;
    bool useSelfIntersections = false;
    float overrunTolerance = 0.0f;
    QVector<int> geometryIDs;
    QVector<int> companionIDs;
    QVector<int> meshIDs;
    QVector<int> geometryReferences; // node numbers, 0 for null
    QVector<int> curveReferences;
};

QByteArray bytesOf(ManualRetopoOperation &operation);
OperationState stateOf(ManualRetopoOperation &operation);
//! False when the stream ended before the operation had all.
bool readInto(ManualRetopoOperation &operation, QByteArray bytes);

//! All that a geometry stores: placement, names, vertices, normals, faces.
QByteArray bytesOf(orvane::Geometry *geometry);
