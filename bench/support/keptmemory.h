// SPDX-License-Identifier: MIT
#pragma once

//! From now on memory that is freed stays with the program: runs that are timed take it from there.
//! How long a system takes to hand out fresh pages differs more from machine to machine, and from
//! run to run on a virtual one, than what is compared. Holds for whatever is called, ours or not.
void keepFreedMemory();
