// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QVector>

namespace orvane {
class OrvaneCurve;
}

//! The curves of the scene that are not hidden, in scene order; not owned. When there is none the
//! user gets a heads-up message and the list is empty.
QList<orvane::OrvaneCurve *> collectCurves();

//! Mean edge length of the faces under the curves' points, in scene units.
//! A face counts once per point on it: dense strokes weigh more, deliberately.
//! Never zero or negative; exactly 1.0 when no point lies on a face. Null curves are skipped.
double averageEdgeLength(const QVector<orvane::OrvaneCurve *> &curves);
