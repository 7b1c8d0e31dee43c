// SPDX-License-Identifier: MIT
#include <orvane/base/eventgate.h>

namespace orvane {

void EventGate::Raise()
{
    if (Owner())
        Owner()->OnEvent(*this);
    const QVector<Attribute *> followers = Followers(); // an answer may disconnect or destroy one
    for (Attribute *follower : followers) {
        if (!Followers().contains(follower))
            continue;
        if (auto *gate = dynamic_cast<EventGate *>(follower))
            gate->Raise();
    }
}

bool EventGate::TakeValue(const Attribute &)
{
    return false;
}

} // namespace orvane
