// SPDX-License-Identifier: MIT
#include "tests/support/numberoperation.h"

#include <orvane/base/classdesc.h>
#include <orvane/base/stream.h>

int NumberOperation::number = 0;
int NumberOperation::refused = 0;
void (*NumberOperation::whileRunning)() = nullptr;

bool NumberOperation::ExecuteAndInvert()
{
    if (whileRunning)
        whileRunning();
    if (refused != 0 && m_amount == refused)
        return false;
    number += m_amount;
    m_amount = -m_amount;
    return true;
}

void NumberOperation::Serialize(orvane::Stream &stream)
{
    stream.Transfer(m_amount);
    stream.Transfer(m_ballast);
}

const orvane::ClassDesc *NumberOperation::RuntimeClass() const
{
    return StaticClass();
}

const orvane::ClassDesc *NumberOperation::StaticClass()
{
    static const orvane::ClassDesc desc(Operation::StaticClass(), Operation::StaticClass(),
                                        "NumberOperation", "Change the Number",
                                        orvane::createInstances<NumberOperation>, 0, 0);
    return &desc;
}
