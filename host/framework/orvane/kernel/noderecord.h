// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QByteArray>
#include <QString>
#include <QVector>

namespace orvane {

class Node;
class Stream;

//! A geometry or curve as bytes: all that it takes to make it again with the numbers it had.
struct ORVANE_EXPORT NodeRecord
{
    bool IsEmpty() const { return className.isEmpty(); }
    //! Writes the record to the stream, or reads it, as the stream stands.
    void Serialize(Stream &stream);

    QString className;
    QVector<int> ids; // its own number, then those of a geometry's placement and levels
    QByteArray bytes; // what Serialize wrote
};

//! A node of the scene as a record. The node stays as it is.
ORVANE_EXPORT NodeRecord recordOf(Node *node);

//! A new node of no scene yet, owned by the caller. Null when the class is neither a geometry's
//! nor a curve's, when the bytes are too few or too many, or make a node that is not valid, and
//! when a number is missing, below 1, repeated or has a node in the scene.
ORVANE_EXPORT Node *nodeOf(const NodeRecord &record);

//! A geometry or curve and its parts: every node of it that has a number of its own. Empty for
//! what has no place in a scene.
ORVANE_EXPORT QVector<Node *> partsOf(Node *node);

} // namespace orvane
