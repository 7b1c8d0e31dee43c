// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/operation.h>

#include <QVector>

//! An operation without a scene: adds its amount to one number of the test program.
class NumberOperation : public orvane::Operation
{
public:
    explicit NumberOperation(int amount = 0, int ballast = 0) : m_amount(amount), m_ballast(ballast)
    {}

    //! The number that all of them work on.
    static int number;
    //! An operation about to add this amount answers false and adds nothing; 0 for none.
    static int refused;
    //! Called in the middle of each execution when set.
    static void (*whileRunning)();

    bool ExecuteAndInvert() override;
    void Serialize(orvane::Stream &stream) override;
    const orvane::ClassDesc *RuntimeClass() const override;
    static const orvane::ClassDesc *StaticClass();

private:
    int m_amount;
    QVector<char> m_ballast; // bytes to fill an undo queue with
};
