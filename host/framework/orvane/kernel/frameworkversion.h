// SPDX-License-Identifier: MIT
#pragma once

//! Raised whenever a plug-in that was compiled with the older headers would no longer fit.
#ifndef ORVANE_FRAMEWORK_VERSION
#    define ORVANE_FRAMEWORK_VERSION 1
#endif
