// SPDX-License-Identifier: MIT
#pragma once

#include "host/cgmaterial/export.h"

#include <QString>

// As Cg declares it: who only passes programs on need not have its headers.
typedef struct _CGprogram *CGprogram;

namespace orvane {

//! A shader program from a file of programs (see programfile.h), compiled by Cg and not yet loaded
//! into OpenGL. All programs are of one Cg context, so that they can be combined; what is combined
//! from them outlives them. Needs no current OpenGL context.
class CGMATERIAL_EXPORT CgProgram
{
public:
    CgProgram() = default;
    //! Destroys the program.
    ~CgProgram();
    CgProgram(const CgProgram &) = delete;
    CgProgram &operator=(const CgProgram &) = delete;

    //! Reads and compiles the program of that profile (Cg's number) and entry. A relative path is
    //! one of the resource folder. False, and no program, when there is none or Cg refuses it; the
    //! log says why, but not again while the file stays as it is.
    bool CreateFromFile(const QString &path, int profile, const QString &entry);

    //! Null without a program.
    CGprogram Handle() const { return m_program; }

private:
    void destroy();

    CGprogram m_program = nullptr;
};

} // namespace orvane
