// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/node.h>

namespace orvane {

//! A change of the scene that can be undone. The kernel runs it; the undo queue keeps it as bytes.
class ORVANE_EXPORT Operation : public Node
{
public:
    Operation() = default;
    Operation(const Operation &other) = default;
    Operation &operator=(const Operation &other) = default;

    //! Does the change, or takes it back, and turns itself into its opposite.
    //! False: nothing was changed, and the object is as it was.
    virtual bool ExecuteAndInvert() = 0;

    const ClassDesc *RuntimeClass() const override;
    static const ClassDesc *StaticClass();
};

} // namespace orvane
