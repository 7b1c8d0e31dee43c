// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/curvedata.h"

#include <QByteArray>

namespace orvane {

//! The polylines ("l") of an OBJ text, each named by the object or group before it. One whose last
//! index repeats the first is closed, and the repeated point is left out.
//! False, and in *error what is wrong in which line, when there is anything to object to.
bool readCurveObj(const QByteArray &text, QVector<CurveData> *curves, QString *error);

//! Each curve as an object of one polyline. A curve of no points is left out.
QByteArray curveObjOf(const QVector<CurveData> &curves);

} // namespace orvane
