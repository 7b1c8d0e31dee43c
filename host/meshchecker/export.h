// SPDX-License-Identifier: MIT
#pragma once

//! Marks what MeshChecker offers to other libraries; everything else stays hidden.
#if defined(_WIN32)
#    ifdef MESHCHECKER_BUILDING
#        define MESHCHECKER_EXPORT __declspec(dllexport)
#    else
#        define MESHCHECKER_EXPORT __declspec(dllimport)
#    endif
#else
#    define MESHCHECKER_EXPORT __attribute__((visibility("default")))
#endif
