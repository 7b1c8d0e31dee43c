// SPDX-License-Identifier: MIT
#pragma once

#include "tests/host/operations/samplescene.h"

#include <orvane/base/operation.h>

#include <memory>

//! One operation of each class of the host, made for a freshly filled scene.
class OperationSamples : public SampleScene, public testing::WithParamInterface<const char *>
{
protected:
    //! The operation of the class named by the test's parameter, not executed yet.
    static std::unique_ptr<orvane::Operation> makeOperation();

    //! A triangle of a scene yet to come, owned by the caller.
    static orvane::Geometry *newGeometry();
    static orvane::OrvaneCurve *newCurve();
};

//! The names of the classes, for INSTANTIATE_TEST_SUITE_P.
extern const char *const OperationClasses[12];

inline std::string sampleName(const testing::TestParamInfo<const char *> &info)
{
    return info.param;
}
