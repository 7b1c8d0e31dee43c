// SPDX-License-Identifier: MIT
#pragma once

//! Marks what OrvaneFramework offers to other libraries; everything else stays hidden.
#if defined(_WIN32)
#    ifdef ORVANE_BUILDING
#        define ORVANE_EXPORT __declspec(dllexport)
#    else
#        define ORVANE_EXPORT __declspec(dllimport)
#    endif
#else
#    define ORVANE_EXPORT __attribute__((visibility("default")))
#endif
