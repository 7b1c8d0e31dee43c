// SPDX-License-Identifier: MIT
#include "cli/dump.h"

#include "cli/parameters.h"
#include "graph/facemeasure.h"
#include "graph/graphwalk.h"
#include "operation/manualretopooperation.h"
#include "operation/runreport.h"

#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace {

const int FloatDigits = 9; // enough to tell any two floats apart

QByteArray number(float value)
{
    return std::isfinite(value) ? QByteArray::number(double(value), 'g', FloatDigits) : "null";
}

QByteArray triple(const orvane::Vector &v)
{
    return '[' + number(v.x) + ',' + number(v.y) + ',' + number(v.z) + ']';
}

QByteArray boolean(bool value)
{
    return value ? "true" : "false";
}

// Qt quotes a text by its own rules; an array of one is the way to ask for it.
QByteArray quoted(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

// [item(0), item(1), ...]
template <typename Item>
QByteArray list(int count, const char *separator, Item item)
{
    QByteArray result = "[";
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            result += separator;
        result += item(i);
    }
    return result + ']';
}

QByteArray parametersJson(const Parameters &p)
{
    return "{\"maximumEdges\": " + QByteArray::number(p.maximumEdges)
           + ", \"mergeDistance\": " + number(p.mergeDistance)
           + ", \"intersectionTolerance\": " + number(p.intersectionTolerance)
           + ", \"overrunTolerance\": " + number(p.overrunTolerance)
           + ", \"useSelfIntersections\": " + boolean(p.useSelfIntersections) + '}';
}

QByteArray pointJson(const orvane::CurvePoint &point)
{
    const orvane::SurfacePoint &surface = point.surfacePoint;
    const bool onFace = surface.IsOnValidFace();
    const float edge = onFace ? meanEdgeLength(*surface.Mesh(), surface.FaceIndex()) : 0.0f;
    return "{\"position\": " + triple(point.position) + ", \"onFace\": " + boolean(onFace)
           + ", \"normal\": " + triple(surface.WorldNormal())
           + ", \"faceEdgeMean\": " + number(edge) + '}';
}

QByteArray curveJson(const orvane::OrvaneCurve &curve)
{
    return "{\"name\": " + quoted(curve.Name()) + ", \"closed\": " + boolean(curve.Closed())
           + ", \"points\": "
           + list(curve.PointCount(), ",\n  ",
                  [&curve](int i) { return pointJson(curve.Points()[i]); })
           + '}';
}

using CurveNumbers = QHash<const orvane::OrvaneCurve *, int>;

QByteArray nodeJson(const IntersectionNode &node, const CurveNumbers &curveNumbers)
{
    const auto curve = [&](int i) {
        return QByteArray::number(curveNumbers.value(node.curves[i], -1));
    };
    // The vertex numbers of a piece are the places of its nodes in the list.
    const auto neighbour = [&](int i) {
        return QByteArray::number(node.neighbours[i]->vertexIndex);
    };
    return "{\"position\": " + triple(node.position()) + ", \"normal\": " + triple(node.normal)
           + ", \"curves\": " + list(node.curveCount(), ",", curve)
           + ", \"vertexIndex\": " + QByteArray::number(node.vertexIndex)
           + ", \"neighbours\": " + list(node.neighbourCount(), ",", neighbour) + '}';
}

QByteArray pieceJson(IntersectionNode *seed, const CurveNumbers &curveNumbers)
{
    QVector<const IntersectionNode *> nodes;
    walkGraph(seed, [&nodes](const IntersectionNode *node) { nodes.append(node); });
    return "{\"seed\": " + QByteArray::number(seed->vertexIndex) + ", \"nodes\": "
           + list(nodes.size(), ",\n  ", [&](int i) { return nodeJson(*nodes[i], curveNumbers); })
           + '}';
}

// Quads when all faces are, triangles when none continues another, else mixed.
QByteArray kindOf(const orvane::Mesh &mesh)
{
    if (mesh.IsQuads())
        return "\"quads\"";
    return mesh.Polygons().Count() == mesh.FaceCount() ? "\"triangles\"" : "\"mixed\"";
}

QByteArray meshJson(const orvane::Geometry &geometry, int piece)
{
    const orvane::Mesh &mesh = *geometry.CurrentLevel();
    const auto face = [&mesh](int f) {
        return list(mesh.CornersPerFace(), ",", [&mesh, f](int corner) {
            return QByteArray::number(mesh.VertexIndex(f, corner));
        });
    };
    return "{\"name\": " + quoted(geometry.Name()) + ", \"piece\": " + QByteArray::number(piece)
           + ", \"kind\": " + kindOf(mesh) + ",\n  \"positions\": "
           + list(mesh.VertexCount(), ",",
                  [&](int v) { return triple(mesh.WorldVertexPosition(v)); })
           + ",\n  \"normals\": "
           + list(mesh.VertexCount(), ",", [&](int v) { return triple(mesh.VertexNormal(v)); })
           + ",\n  \"meshFaces\": " + list(mesh.FaceCount(), ",", face) + ",\n  \"fake\": "
           + list(mesh.FaceCount(), ",", [&](int f) { return boolean(mesh.IsFakeTriangle(f)); })
           + '}';
}

QVector<int> builtPieces()
{
    QVector<int> built;
    const QVector<PieceReport> &pieces = lastRunReport().pieces;
    for (int i = 0; i < pieces.size(); ++i) {
        if (pieces[i].outcome == PieceReport::Built)
            built.append(i);
    }
    return built;
}

} // namespace

QByteArray dumpRun(const BuildOptions &options, const QVector<orvane::OrvaneCurve *> &curves,
                   const ManualRetopoOperation &operation)
{
    CurveNumbers curveNumbers;
    for (int i = 0; i < curves.size(); ++i)
        curveNumbers.insert(curves[i], i);
    const QList<IntersectionNode *> &seeds = operation.Subgraphs();
    const QVector<orvane::Geometry *> &geometries = operation.AddGeometry();
    const QVector<int> built = builtPieces();
    const char *const separator = ",\n ";
    return "{\"parameters\": " + parametersJson(Parameters(options)) + ",\n\"averageEdgeLength\": "
           + number(float(lastRunReport().averageEdgeLength)) + ",\n\"curves\": "
           + list(curves.size(), separator, [&](int i) { return curveJson(*curves[i]); })
           + ",\n\"pieces\": "
           + list(seeds.size(), separator, [&](int i) { return pieceJson(seeds[i], curveNumbers); })
           + ",\n\"meshes\": "
           + list(geometries.size(), separator,
                  [&](int i) { return meshJson(*geometries[i], built[i]); })
           + "}\n";
}
