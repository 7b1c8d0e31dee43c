// SPDX-License-Identifier: MIT
#include "tests/support/scenecleaner.h"

#include "tests/support/numberoperation.h"

#include <orvane/base/log.h>
#include <orvane/kernel/kernel.h>

namespace {

void clearAll()
{
    auto *kernel = orvane::Kernel();
    kernel->NewScene();
    kernel->SetInterface(nullptr);
    kernel->SetViewPort(nullptr);
    kernel->SetTestMode(false);
    orvane::setLogSink({});
    NumberOperation::number = 0;
    NumberOperation::refused = 0;
    NumberOperation::whileRunning = nullptr;
}

} // namespace

SceneCleaner::SceneCleaner()
{
    clearAll();
}

SceneCleaner::~SceneCleaner()
{
    clearAll();
}
