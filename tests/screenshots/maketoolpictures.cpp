// SPDX-License-Identifier: MIT
// usage: maketoolpictures FOLDER RESOURCES PLUGINS [PICTURE...]
// Works in the desktop on the bundled example and writes into FOLDER what the screen shows: each
// curve tool at work, for the user guide, and in FOLDER/steps the pictures of the help's three
// steps. Wants a screen of ratio 2.
#include "tests/screenshots/picturedesk.h"

#include "host/desktop/viewport/viewportwidget.h"

#include <orvane/kernel/pluginloader.h>

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPainterPath>
#include <QStandardPaths>
#include <QSurfaceFormat>
#include <QtMath>

#include <cstdio>

namespace {

const QSize Area(416, 320);     // of the view, pixels; half a picture of the guide
const QSize StepArea(320, 272); // of the window, pixels
const QSize MenuArea(360, 306); // the same, with a menu
const QSize StepSize(200, 170);
const double StepCorner = 10.0; // radius
const int Gap = 8;              // pixels between before and after
const int RingPlaces = 40;
const int StepsBetween = 8; // of a drawn line, from place to place

using Places = QVector<QPointF>;

Places arc(QPointF middle, double radius, double from, double to)
{
    Places places;
    for (int i = 0; i <= RingPlaces; ++i) {
        const double angle = qDegreesToRadians(from + (to - from) * i / RingPlaces);
        places.append(middle
                      + QPointF(std::cos(angle) * Area.height() / Area.width(), std::sin(angle))
                            * radius);
    }
    return places;
}

// Smooth through the places (Catmull and Rom), as a hand draws.
Places curved(const Places &places)
{
    Places way;
    for (int i = 0; i + 1 < places.size(); ++i) {
        const QPointF a = places[qMax(i - 1, 0)];
        const QPointF b = places[i];
        const QPointF c = places[i + 1];
        const QPointF d = places[qMin(i + 2, places.size() - 1)];
        for (int step = 0; step < StepsBetween; ++step) {
            const double t = double(step) / StepsBetween;
            way.append(0.5
                       * (2.0 * b + t * (c - a) + t * t * (2.0 * a - 5.0 * b + 4.0 * c - d)
                          + t * t * t * (3.0 * b - a - 3.0 * c + d)));
        }
    }
    way.append(places.last());
    return way;
}

Places firstPart(const Places &places, double part)
{
    return places.mid(0, qMax(2, qRound(places.size() * part)));
}

class Album
{
public:
    explicit Album(const QDir &folder) : m_folder(folder) {}

    void add(const QImage &picture, const QString &name) const
    {
        const QString path = m_folder.filePath(name + QStringLiteral(".png"));
        if (picture.isNull() || !picture.save(path))
            qFatal("cannot write %s", qPrintable(path));
    }
    void addPair(const QImage &before, const QImage &after, const QString &name) const
    {
        QImage pair(2 * Area.width() + Gap, Area.height(), QImage::Format_RGB32);
        pair.fill(Qt::gray);
        QPainter painter(&pair);
        painter.drawImage(0, 0, reduced(before));
        painter.drawImage(Area.width() + Gap, 0, reduced(after));
        painter.end();
        add(pair, name);
    }
    // A card with round corners, and one of twice the size.
    void addStep(const QImage &photo, int step) const
    {
        const QString name = QStringLiteral("steps/RTHelp%1").arg(step);
        const QImage large = card(photo, 2);
        add(large, name + QStringLiteral("@2x"));
        add(large.scaled(StepSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), name);
    }

private:
    static QImage reduced(const QImage &photo)
    {
        QImage small = photo.scaled(Area, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        small.setDevicePixelRatio(1.0);
        return small;
    }
    static QImage card(const QImage &photo, int ratio)
    {
        QImage whole(StepSize * ratio, QImage::Format_ARGB32_Premultiplied);
        whole.fill(Qt::transparent);
        QPainter painter(&whole);
        painter.setRenderHint(QPainter::Antialiasing);
        QImage scaled = photo.scaled(whole.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        scaled.setDevicePixelRatio(1.0);
        painter.setBrush(scaled);
        painter.setPen(Qt::NoPen);
        painter.drawRoundedRect(whole.rect(), StepCorner * ratio, StepCorner * ratio);
        return whole;
    }

    QDir m_folder;
};

// Brow and eyes, from half the side.
void toBrow(PictureDesk &desk)
{
    desk.OpenExample(false);
    desk.LookAt(0.0, -0.3, 1.7, 0.4, 0.1);
}

void toFace(PictureDesk &desk, bool withCurves)
{
    desk.OpenExample(withCurves);
    desk.LookAt(0.0, -0.05, 1.0, 0.5, 0.1);
}

// Three lines, for the tools that work on what is there.
void drawLines(PictureDesk &desk)
{
    desk.ChooseTool("draw");
    desk.Stroke(curved({{0.20, 0.20}, {0.50, 0.13}, {0.80, 0.20}}));
    desk.Stroke(curved({{0.18, 0.38}, {0.50, 0.32}, {0.82, 0.38}}));
    desk.Stroke(curved({{0.18, 0.56}, {0.50, 0.53}, {0.82, 0.56}}));
}

void pictureDrawing(PictureDesk &desk, const Album &album)
{
    toBrow(desk);
    desk.ChooseTool("draw");
    desk.Stroke(curved({{0.30, 0.06}, {0.24, 0.30}, {0.24, 0.58}}));
    desk.Stroke(curved({{0.48, 0.04}, {0.48, 0.30}, {0.49, 0.60}}));
    desk.Stroke(curved({{0.66, 0.06}, {0.71, 0.30}, {0.72, 0.58}}));
    desk.Stroke(curved({{0.18, 0.20}, {0.48, 0.14}, {0.80, 0.20}}));
    const Places stroke =
        curved({{0.16, 0.42}, {0.32, 0.39}, {0.48, 0.38}, {0.64, 0.39}, {0.82, 0.43}});
    desk.Drag(firstPart(stroke, 0.75));
    const QImage before = desk.Photo();
    desk.Release();
    desk.Trigger("undo");
    desk.Stroke(stroke);
    album.addPair(before, desk.Photo(), QStringLiteral("draw"));
}

// The cut from another side: from where it was made it looks as straight as the line.
void pictureSection(PictureDesk &desk, const Album &album)
{
    toFace(desk, false);
    desk.ChooseTool("section");
    desk.Drag({{0.16, 0.66}, {0.84, 0.34}}, Qt::ShiftModifier);
    const QImage before = desk.Photo();
    desk.Release(Qt::ShiftModifier);
    desk.Away();
    desk.LookAt(0.0, -0.05, 1.0, -0.4, 0.3);
    album.addPair(before, desk.Photo(), QStringLiteral("section"));
}

void pictureLoop(PictureDesk &desk, const Album &album)
{
    desk.OpenExample(false);
    desk.LookAt(0.0, 0.35, 1.1, 0.5, 0.15);
    desk.ChooseTool("loop");
    desk.Drag({{0.52, 0.68}, {0.525, 0.84}});
    const QImage before = desk.Photo();
    desk.Release();
    desk.Away();
    album.addPair(before, desk.Photo(), QStringLiteral("loop"));
}

void pictureErasing(PictureDesk &desk, const Album &album)
{
    toBrow(desk);
    drawLines(desk);
    desk.ChooseTool("erase");
    desk.Drag({{0.52, 0.08}, {0.50, 0.22}, {0.54, 0.40}});
    const QImage before = desk.Photo();
    desk.Release();
    desk.Away();
    album.addPair(before, desk.Photo(), QStringLiteral("erase"));
}

void pictureExtending(PictureDesk &desk, const Album &album)
{
    toBrow(desk);
    desk.ChooseTool("draw");
    desk.Stroke(curved({{0.20, 0.26}, {0.30, 0.21}, {0.44, 0.22}}));
    desk.Stroke(curved({{0.70, 0.06}, {0.76, 0.30}, {0.76, 0.60}}));
    desk.ChooseTool("extend");
    const Places stroke =
        curved({{0.44, 0.22}, {0.52, 0.25}, {0.60, 0.34}, {0.66, 0.40}, {0.76, 0.43}});
    desk.Drag(firstPart(stroke, 0.7));
    const QImage before = desk.Photo();
    desk.Release();
    desk.Trigger("undo");
    desk.Stroke(stroke);
    album.addPair(before, desk.Photo(), QStringLiteral("extend"));
}

void pictureJoining(PictureDesk &desk, const Album &album)
{
    toBrow(desk);
    desk.ChooseTool("draw");
    desk.Stroke(curved({{0.18, 0.42}, {0.28, 0.32}, {0.38, 0.30}}));
    desk.Stroke(curved({{0.60, 0.36}, {0.70, 0.36}, {0.82, 0.26}}));
    desk.ChooseTool("join");
    desk.Drag({{0.38, 0.30}, {0.50, 0.34}, {0.60, 0.36}});
    const QImage before = desk.Photo();
    desk.Release();
    desk.Away();
    album.addPair(before, desk.Photo(), QStringLiteral("join"));
}

void pictureMoving(PictureDesk &desk, const Album &album)
{
    toBrow(desk);
    drawLines(desk);
    desk.ChooseTool("move");
    desk.Drag({{0.50, 0.32}, {0.50, 0.38}, {0.51, 0.45}});
    const QImage before = desk.Photo();
    desk.Release();
    desk.Away();
    album.addPair(before, desk.Photo(), QStringLiteral("move"));
}

void pictureSmoothing(PictureDesk &desk, const Album &album)
{
    toBrow(desk);
    desk.ChooseTool("draw");
    desk.SetNumber("strokeSmoothing", 0.0);
    Places shaky;
    for (int i = 0; i <= 24; ++i)
        shaky.append({0.18 + 0.64 * i / 24, 0.34 + (i % 2 ? 0.022 : -0.022)});
    desk.Stroke(shaky);
    desk.SetNumber("strokeSmoothing", 2.0);
    desk.ChooseTool("smooth");
    Places way;
    for (int pass = 0; pass < 6; ++pass) {
        for (int i = 0; i <= 10; ++i)
            way.append({0.15 + 0.04 * (pass % 2 ? 10 - i : i), 0.34});
    }
    desk.Drag(way);
    const QImage before = desk.Photo();
    desk.Release();
    for (QPointF &place : way)
        place.rx() += 0.32;
    desk.Stroke(way);
    album.addPair(before, desk.Photo(), QStringLiteral("smooth"));
}

void pictureSelecting(PictureDesk &desk, const Album &album)
{
    toFace(desk, true);
    desk.ChooseTool("select");
    desk.Drag({{0.60, 0.44}, {0.76, 0.64}});
    QImage before = desk.Photo();
    desk.Release();
    desk.Away();
    album.addPair(before, desk.Photo(), QStringLiteral("select"));

    desk.Trigger("selectNone");
    desk.ChooseTool("lasso");
    desk.Drag(arc({0.45, 0.80}, 0.13, -100.0, 240.0));
    before = desk.Photo();
    desk.Release();
    desk.Away();
    album.addPair(before, desk.Photo(), QStringLiteral("lasso"));
}

void pictureMirror(PictureDesk &desk, const Album &album)
{
    desk.OpenExample(false);
    desk.LookAt(0.0, -0.1, 1.2);
    desk.SetOption("mirrorDrawingX", true);
    desk.ChooseTool("draw");
    const Places ring = arc({0.33, 0.42}, 0.17, -90.0, 268.0);
    desk.Drag(firstPart(ring, 0.75));
    const QImage before = desk.Photo();
    desk.Release();
    desk.Trigger("undo");
    desk.Stroke(ring);
    album.addPair(before, desk.Photo(), QStringLiteral("mirror"));
    desk.SetOption("mirrorDrawingX", false);
}

void pictureViews(PictureDesk &desk, const Album &album)
{
    toFace(desk, true);
    const QImage before = desk.Photo();
    desk.SetOption("xRay", true);
    album.addPair(before, desk.Photo(), QStringLiteral("xray"));
    desk.SetOption("xRay", false);
    desk.CreateMesh();
    desk.Away();
    album.addPair(before, desk.Photo(), QStringLiteral("result"));
}

// Two cells that share nothing but a corner.
void pictureFaults(PictureDesk &desk, const Album &album)
{
    toBrow(desk);
    desk.ChooseTool("draw");
    desk.Stroke(curved({{0.22, 0.34}, {0.50, 0.31}, {0.78, 0.34}}));
    desk.Stroke(curved({{0.50, 0.04}, {0.50, 0.30}, {0.50, 0.58}}));
    desk.Stroke(curved({{0.44, 0.10}, {0.60, 0.11}, {0.74, 0.14}}));
    desk.Stroke(curved({{0.66, 0.06}, {0.70, 0.20}, {0.71, 0.40}}));
    desk.Stroke(curved({{0.26, 0.54}, {0.40, 0.52}, {0.56, 0.52}}));
    desk.Stroke(curved({{0.30, 0.28}, {0.29, 0.40}, {0.31, 0.58}}));
    const QImage before = desk.Photo();
    desk.CreateMesh();
    desk.Away();
    album.addPair(before, desk.Photo(), QStringLiteral("faults"));
    desk.SetOption("renderMeshFaults", false);
}

void pictureSteps(PictureDesk &desk, const Album &album)
{
    desk.SetArea(StepArea);
    desk.OpenExample(false);
    desk.LookAt(0.0, -0.1, 0.94, 0.5, 0.1);
    desk.ChooseTool("draw");
    desk.Stroke(curved({{0.28, 0.28}, {0.50, 0.24}, {0.78, 0.30}}));
    desk.Stroke(curved({{0.38, 0.12}, {0.34, 0.24}, {0.34, 0.40}}));
    desk.Stroke(curved({{0.56, 0.08}, {0.56, 0.24}, {0.56, 0.40}}));
    desk.Stroke(curved({{0.72, 0.12}, {0.76, 0.24}, {0.77, 0.40}}));
    desk.Drag(curved({{0.28, 0.16}, {0.50, 0.13}, {0.66, 0.15}}));
    album.addStep(desk.Photo(), 1);
    desk.Release();

    desk.OpenExample(true);
    desk.LookAt(0.0, -0.1, 0.94, 0.5, 0.1);
    desk.ChooseTool("select");
    const Places box = {{0.12, 0.04}, {0.88, 0.92}};
    desk.Stroke(box);
    desk.Drag(box);
    album.addStep(desk.Photo(), 2);
    desk.Release();

    desk.CreateMesh();
    // The new mesh without the curves, which are as small here as its faces.
    desk.Trigger("selectAll");
    desk.Trigger("hideCurves");
    desk.SetArea(MenuArea);
    desk.LookAt(0.9, 0.36, 0.62, 0.5, 0.1);
    desk.PointInMenu("menuMesh", QStringLiteral("Create Mesh from Curves..."));
    album.addStep(desk.PhotoFrom("menuMesh"), 3);
    desk.CloseMenus();
    desk.SetArea(Area);
}

void makePictures(orvane::PluginLoader &plugins, const QDir &folder, const QStringList &names)
{
    const Album album(folder);
    const QVector<QPair<QString, void (*)(PictureDesk &, const Album &)>> stories = {
        {QStringLiteral("draw"), pictureDrawing},     {QStringLiteral("section"), pictureSection},
        {QStringLiteral("loop"), pictureLoop},        {QStringLiteral("erase"), pictureErasing},
        {QStringLiteral("extend"), pictureExtending}, {QStringLiteral("join"), pictureJoining},
        {QStringLiteral("move"), pictureMoving},      {QStringLiteral("smooth"), pictureSmoothing},
        {QStringLiteral("select"), pictureSelecting}, {QStringLiteral("mirror"), pictureMirror},
        {QStringLiteral("views"), pictureViews},      {QStringLiteral("faults"), pictureFaults},
        {QStringLiteral("steps"), pictureSteps}};
    PictureDesk desk(&plugins);
    desk.SetArea(Area);
    for (const auto &[name, story] : stories) {
        if (names.isEmpty() || names.contains(name)) {
            std::printf("%s\n", qPrintable(name));
            std::fflush(stdout);
            story(desk, album);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QSurfaceFormat::setDefaultFormat(orvane::ViewportWidget::Format());
    QApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 4) {
        std::fprintf(stderr, "usage: maketoolpictures FOLDER RESOURCES PLUGINS [PICTURE...]\n");
        return 2;
    }
    const QDir folder(QDir(arguments.at(1)).absolutePath());
    const QString pluginFolder = QDir(arguments.at(3)).absolutePath();
    if (!folder.mkpath(QStringLiteral("steps")) || !QDir::setCurrent(arguments.at(2))) {
        std::fprintf(stderr, "a folder cannot be used\n");
        return 3;
    }
    orvane::PluginLoader plugins;
    plugins.AddFolder(pluginFolder);
    makePictures(plugins, folder, arguments.mid(4));
    return 0;
}
