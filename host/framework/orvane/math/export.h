// SPDX-License-Identifier: MIT
#pragma once

//! ORVANE_EXPORT marks what OrvaneFramework offers to other libraries; the rest stays hidden.
//! ORVANE_HIDDEN marks inline code of which each library keeps a copy of its own, even one built
//! with everything visible.
#if defined(_WIN32)
#    ifdef ORVANE_BUILDING
#        define ORVANE_EXPORT __declspec(dllexport)
#    else
#        define ORVANE_EXPORT __declspec(dllimport)
#    endif
#    define ORVANE_HIDDEN
#else
#    define ORVANE_EXPORT __attribute__((visibility("default")))
#    define ORVANE_HIDDEN __attribute__((visibility("hidden")))
#endif
