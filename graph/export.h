// SPDX-License-Identifier: MIT
#pragma once

//! Marks what the plug-in library offers to other libraries; everything else stays hidden.
#if defined(_WIN32)
#    ifdef QUILLMESH_BUILDING
#        define QUILLMESH_EXPORT __declspec(dllexport)
#    else
#        define QUILLMESH_EXPORT __declspec(dllimport)
#    endif
#else
#    define QUILLMESH_EXPORT __attribute__((visibility("default")))
#endif
