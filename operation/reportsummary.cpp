// SPDX-License-Identifier: MIT
#include "operation/reportsummary.h"

#include "operation/manualretopooperation.h"
#include "operation/runreport.h"

#include <QStringList>

#include <numeric>

QString summaryOf(const RunReport &report)
{
    int faces = 0;
    int holes = 0;
    for (const PieceReport &piece : report.pieces) {
        if (piece.outcome == PieceReport::Built)
            faces =
                std::accumulate(piece.facesByCorners.cbegin(), piece.facesByCorners.cend(), faces);
        holes += piece.holes.total();
    }
    QStringList parts{ManualRetopoOperation::tr("Crossings: %1.").arg(report.crossings),
                      ManualRetopoOperation::tr("Faces: %1.").arg(faces)};
    if (holes > 0)
        parts.append(ManualRetopoOperation::tr("Holes: %1.").arg(holes));
    parts.append(ManualRetopoOperation::tr("Time: %1 s.").arg(report.seconds.total(), 0, 'f', 3));
    return parts.join(QLatin1Char(' '));
}
