// SPDX-License-Identifier: MIT
#include <orvane/base/eventgate.h>

namespace orvane {

void EventGate::Raise()
{
    if (Owner())
        Owner()->OnEvent(*this);
    const QVector<Attribute *> followers = Followers(); // an answer may connect or disconnect
    for (Attribute *follower : followers) {
        auto *gate = dynamic_cast<EventGate *>(follower);
        if (gate && Followers().contains(follower))
            gate->Raise();
    }
}

bool EventGate::TakeValue(const Attribute &)
{
    return false;
}

} // namespace orvane
