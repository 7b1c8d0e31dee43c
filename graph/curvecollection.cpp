// SPDX-License-Identifier: MIT
#include "graph/curvecollection.h"

#include "graph/facemeasure.h"

#include <orvane/geometry/mesh.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QCoreApplication>

namespace {

const int ExpectedCurves = 16; // count
const int MessageType = 1;     // a warning
const int MessageTime = 2000;  // milliseconds

} // namespace

QList<orvane::OrvaneCurve *> collectCurves()
{
    QList<orvane::OrvaneCurve *> curves;
    curves.reserve(ExpectedCurves);
    const orvane::Scene *scene = orvane::Kernel()->Scene();
    for (int i = 0; i < scene->NodeCount(); ++i) {
        auto *curve = dynamic_cast<orvane::OrvaneCurve *>(scene->NodeAt(i));
        if (curve && !curve->IsHidden())
            curves.append(curve);
    }
    if (curves.isEmpty()) {
        const QString text = QCoreApplication::translate("Quillmesh", "No valid 3d curve in scene");
        orvane::Kernel()->Interface()->HUDMessageShow(text, MessageType, MessageTime);
    }
    return curves;
}

double averageEdgeLength(const QVector<orvane::OrvaneCurve *> &curves)
{
    double sum = 0.0;
    int count = 0;
    for (const orvane::OrvaneCurve *curve : curves) {
        if (!curve)
            continue;
        for (const orvane::CurvePoint &point : curve->Points()) {
            if (!point.surfacePoint.IsOnValidFace())
                continue;
            const orvane::Mesh &mesh = *point.surfacePoint.Mesh();
            sum += double(meanEdgeLength(mesh, point.surfacePoint.FaceIndex()));
            ++count;
        }
    }
    return sum > 0.0 && count > 0 ? sum / count : 1.0;
}
