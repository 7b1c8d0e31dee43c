// SPDX-License-Identifier: MIT
#include <orvane/kernel/scenecamera.h>

namespace orvane {

SceneCamera::~SceneCamera() = default;

} // namespace orvane
