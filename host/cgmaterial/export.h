// SPDX-License-Identifier: MIT
#pragma once

//! Marks what CgMaterial offers to other libraries; everything else stays hidden.
#if defined(_WIN32)
#    ifdef CGMATERIAL_BUILDING
#        define CGMATERIAL_EXPORT __declspec(dllexport)
#    else
#        define CGMATERIAL_EXPORT __declspec(dllimport)
#    endif
#else
#    define CGMATERIAL_EXPORT __attribute__((visibility("default")))
#endif
