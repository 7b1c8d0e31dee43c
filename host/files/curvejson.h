// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/curvedata.h"

#include <QByteArray>

namespace orvane {

//! {"curves": [{"name": "c0", "closed": false, "points": [[x, y, z], ...]}, ...]}; name and closed
//! may be left out, other keys are ignored.
//! False, and in *error what is wrong in which place, when there is anything to object to.
bool readCurveJson(const QByteArray &text, QVector<CurveData> *curves, QString *error);

QByteArray curveJsonOf(const QVector<CurveData> &curves);

} // namespace orvane
