// SPDX-License-Identifier: MIT
#pragma once

#include "host/cgmaterial/export.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

namespace orvane {

//! A program as a file keeps it: what the Cg compiler is given for one entry in one profile.
struct ProgramText
{
    int profile = 0; // Cg's number, a CGprofile
    QByteArray entry;
    QByteArray text;
};

//! The bytes of a program file: magic, version, length and CRC-32 of the programs, the programs.
//! Numbers are little-endian.
CGMATERIAL_EXPORT QByteArray packPrograms(const QVector<ProgramText> &programs);

//! The programs that the bytes hold, all of them or none; fault then says why there are none.
CGMATERIAL_EXPORT std::optional<QVector<ProgramText>> unpackPrograms(const QByteArray &bytes,
                                                                     QString *fault);

} // namespace orvane
