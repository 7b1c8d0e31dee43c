// SPDX-License-Identifier: MIT
#include "cli/picture.h"

#include "cli/legend.h"
#include "cli/picturescene.h"
#include "cli/scenepainter.h"
#include "cli/shading.h"

#include <orvane/math/axisalignedboundingbox.h>

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace {

const float UsualHeight = 1200.0f; // pixels
const float ThinnestScale = 0.5f;  // lines of small pictures get no thinner

QString counted(int count, const char *one, const char *many)
{
    return QStringLiteral("%1 %2").arg(count).arg(QLatin1String(count == 1 ? one : many));
}

void paintBackground(QImage &picture)
{
    QLinearGradient gradient(0.0, 0.0, 0.0, picture.height());
    gradient.setColorAt(0.0, PictureColour::BackgroundAbove);
    gradient.setColorAt(1.0, PictureColour::BackgroundBelow);
    QPainter(&picture).fillRect(picture.rect(), gradient);
}

float diagonalOf(const QVector<orvane::Vector> &points)
{
    orvane::AxisAlignedBoundingBox bounds;
    for (const orvane::Vector &point : points)
        bounds.Extend(point);
    return bounds.Diagonal();
}

QString titleOf(const PictureScene &scene)
{
    if (scene.isEmpty())
        return QStringLiteral("Nothing to show");
    int faces = 0;
    for (const Surface &mesh : scene.meshes)
        faces += mesh.polygons.Count();
    if (faces > 0) {
        return QStringLiteral("%1 in %2")
            .arg(counted(faces, "new face", "new faces"),
                 counted(scene.meshes.size(), "mesh", "meshes"));
    }
    if (!scene.source.isEmpty())
        return counted(scene.source.first().polygons.Count(), "face", "faces");
    return QStringLiteral("Curves alone");
}

QString faceText(CornerClass corners, int count)
{
    switch (corners) {
    case Triangle:
        return QStringLiteral("triangles %1").arg(count);
    case Quad:
        return QStringLiteral("quads %1").arg(count);
    case Pentagon:
        return QStringLiteral("5 corners %1").arg(count);
    default:
        return QStringLiteral("more %1").arg(count);
    }
}

QVector<LegendEntry> legendOf(const PictureScene &scene)
{
    int faces[CornerClassCount] = {};
    for (const Surface &mesh : scene.meshes) {
        for (int polygon = 0; polygon < mesh.polygons.Count(); ++polygon)
            ++faces[cornerClass(mesh.polygons.CornerCount(polygon))];
    }
    QVector<LegendEntry> entries;
    for (int i = 0; i < CornerClassCount; ++i) {
        const CornerClass corners = CornerClass(i);
        if (faces[i] > 0)
            entries.append({LegendEntry::Face, cornerColour(corners), faceText(corners, faces[i])});
    }
    if (!scene.source.isEmpty() && !scene.meshes.isEmpty()) {
        entries.append(
            {LegendEntry::Face, PictureColour::DimmedClay,
             QStringLiteral("source mesh %1").arg(scene.source.first().polygons.Count())});
    }
    if (scene.curveCount > 0) {
        entries.append({LegendEntry::Line, PictureColour::Curve,
                        QStringLiteral("curves %1").arg(scene.curveCount)});
    }
    if (!scene.crossings.isEmpty()) {
        entries.append({LegendEntry::Dot, PictureColour::Crossing,
                        QStringLiteral("crossings %1").arg(scene.crossings.size())});
    }
    return entries;
}

} // namespace

QImage renderPicture(const PictureContent &content, const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    if (picture.isNull())
        return picture;
    paintBackground(picture);
    const PictureScene scene(content);
    const float lineScale = std::max(size.height() / UsualHeight, ThinnestScale);
    const float diagonal = diagonalOf(scene.pointsToFit());
    ScenePainter(scene, goodCamera(scene, size), lineScale, diagonal).paint(picture);
    drawLegend(picture, titleOf(scene), legendOf(scene));
    return picture;
}
