// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/matrix.h>

namespace orvane {

//! From where the scene is looked at, for those who draw into the view after the host.
class ORVANE_EXPORT SceneCamera
{
public:
    virtual ~SceneCamera();

    //! World to clip space (projection times model-view) of the frame being drawn. It works on row
    //! vectors, as every matrix here.
    virtual Matrix WorldToClip() const = 0;

protected:
    SceneCamera() = default;
    SceneCamera(const SceneCamera &) = default;
    SceneCamera &operator=(const SceneCamera &) = default;
};

} // namespace orvane
