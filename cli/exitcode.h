// SPDX-License-Identifier: MIT
#pragma once

//! What the program tells its caller.
enum ExitCode {
    ExitDone = 0,        //!< a mesh was made; a checked mesh has no fault; a picture was drawn
    ExitNothingMade = 1, //!< no mesh was made, and the reason was said
    ExitWrongUsage = 2,  //!< the command's words make no sense
    ExitFileTrouble = 3, //!< a file cannot be read or written
    ExitFaults = 4,      //!< faults cost every mesh; a checked mesh has faults
};
