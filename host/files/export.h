// SPDX-License-Identifier: MIT
#pragma once

//! Marks what OrvaneFiles offers to other libraries; everything else stays hidden.
#if defined(_WIN32)
#    ifdef ORVANE_FILES_BUILDING
#        define ORVANE_FILES_EXPORT __declspec(dllexport)
#    else
#        define ORVANE_FILES_EXPORT __declspec(dllimport)
#    endif
#else
#    define ORVANE_FILES_EXPORT __attribute__((visibility("default")))
#endif
