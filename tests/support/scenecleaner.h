// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

//! Fixture of tests on the kernel's scene: each starts and ends with an empty scene and undo
//! queue, the silent interface and view, no log sink and test mode off.
class SceneCleaner : public testing::Test
{
protected:
    SceneCleaner();
    ~SceneCleaner() override;
};
