// SPDX-License-Identifier: MIT
#include "tests/operation/agreement/facecomparison.h"

#include "tests/operation/agreement/facesbyshell.h"
#include "tests/operation/agreement/ring.h"

#include <algorithm>
#include <cmath>

namespace {

// Fraction of a face's area. Corners in one line leave slivers that no triangle covers.
const double AreaTolerance = 1e-3;
const int Digits = 9; // tell one float from the next

QString ringText(const QVector<int> &ring, const PlanarGraph &graph)
{
    QString text = QStringLiteral("%1 corners").arg(ring.size());
    for (int vertex : ring) {
        text += QStringLiteral(" (%1, %2)")
                    .arg(double(graph.positions[vertex].x), 0, 'g', Digits)
                    .arg(double(graph.positions[vertex].y), 0, 'g', Digits);
    }
    return text;
}

void compareShell(const JudgedShells &piece, int shell, double coveredArea, int maximumEdges,
                  FaceComparison &result)
{
    const QVector<int> &ring = piece.shells[shell].rings.first();
    const double area = ringArea(ring, piece.graph.positions);
    const bool isFace = std::fabs(coveredArea - area) <= AreaTolerance * area;
    if (piece.leftOut[shell] != LeftOut::No) {
        result.foundLeftOut += isFace;
        return;
    }
    const bool isExpected = ring.size() <= maximumEdges;
    result.found += isFace;
    result.expected += isExpected;
    if (isExpected ? isFace : coveredArea == 0.0)
        return;
    result.mismatches.append(QStringLiteral("limit %1, shell of %2: area %3, faces cover %4")
                                 .arg(maximumEdges)
                                 .arg(ringText(ring, piece.graph))
                                 .arg(area)
                                 .arg(coveredArea));
}

bool isUnclear(const QVector<int> &ring, const JudgedShells &piece)
{
    return std::any_of(ring.cbegin(), ring.cend(),
                       [&piece](int vertex) { return piece.unclearVertex[vertex]; });
}

} // namespace

FaceComparison compareFaces(const JudgedShells &piece, const QVector<QVector<int>> &polygons,
                            int maximumEdges)
{
    const FacesByShell faces(piece.graph, piece.shells, polygons);
    FaceComparison result;
    for (int shell = 0; shell < piece.shells.size(); ++shell)
        compareShell(piece, shell, faces.area(shell), maximumEdges, result);
    for (int stray : faces.strays()) {
        if (isUnclear(polygons[stray], piece)) {
            ++result.unclearFaces;
            continue;
        }
        result.mismatches.append(QStringLiteral("limit %1, a face that is no shell: %2")
                                     .arg(maximumEdges)
                                     .arg(ringText(polygons[stray], piece.graph)));
    }
    return result;
}
