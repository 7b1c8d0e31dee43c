// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/attribute.h>

namespace orvane {

//! An attribute without a value that passes an event on: raising it raises its followers.
class ORVANE_EXPORT EventGate : public Attribute
{
public:
    EventGate(Node *owner, const QString &id) : Attribute(owner, id) {}

    //! Tells the owner through OnEvent, then raises each gate that follows, in order of connection.
    void Raise();

protected:
    bool TakeValue(const Attribute &source) override;
};

} // namespace orvane
