// SPDX-License-Identifier: MIT
// The pictures of the build's share/orvane against the names that the dialogs ask for.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace {

const int FaultPictures = 11;    // count: two of the twelve faults share one
const double LeastOpaque = 0.15; // fraction of a picture's pixels
const double LeastOpaqueIcon = 0.02;
const int SeenDifference = 48;     // of 255, in one channel
const double LeastDifferent = 0.1; // fraction of pixels, between the pictures of two faults
const int LeastColours = 32;       // of a picture that shows something
const int WidestInPage = 1400;     // pixels
const double MostDifferent = 0.02; // fraction of pixels, between a picture and its double halved

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// A name with a place for a number stands for the three steps of the help.
QStringList expanded(const QString &name)
{
    if (!name.contains(QLatin1String("%1")))
        return {name};
    return {name.arg(1), name.arg(2), name.arg(3)};
}

QStringList picturesInCode()
{
    const QRegularExpression quoted(QStringLiteral("\"(Icons/[^\"]+)\""));
    const QDir folder(QStringLiteral(QUILLMESH_UI_DIR));
    QSet<QString> names;
    for (const QString &source : folder.entryList({QStringLiteral("*.cpp")}, QDir::Files)) {
        auto match = quoted.globalMatch(textOf(folder.filePath(source)));
        while (match.hasNext()) {
            for (const QString &name : expanded(match.next().captured(1)))
                names.insert(name);
        }
    }
    QStringList sorted = names.values();
    sorted.sort();
    return sorted;
}

QStringList faultPictures()
{
    return picturesInCode().filter(QStringLiteral("Icons/mesh_"));
}

QSize expectedSize(const QString &name)
{
    if (name.startsWith(QLatin1String("Icons/mesh_")))
        return {64, 64};
    if (name.startsWith(QLatin1String("Icons/tooltips/PT")))
        return {40, 40};
    if (name.startsWith(QLatin1String("Icons/tooltips/RTHelp")))
        return {200, 170};
    return {};
}

QString pathOf(const QString &name)
{
    return QStringLiteral(QUILLMESH_SHARE_DIR "/") + name;
}

QString doubled(QString name)
{
    return name.replace(QLatin1String(".png"), QLatin1String("@2x.png"));
}

// Premultiplied, so that the colour of what is fully transparent does not count.
QImage pictureOf(const QString &name)
{
    return QImage(pathOf(name)).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

double opaqueFraction(const QImage &image)
{
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            opaque += qAlpha(image.pixel(x, y)) == 255;
    }
    return double(opaque) / (image.width() * image.height());
}

bool looksDifferent(QRgb a, QRgb b)
{
    return std::max({std::abs(qAlpha(a) - qAlpha(b)), std::abs(qRed(a) - qRed(b)),
                     std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))})
           >= SeenDifference;
}

double differentFraction(const QImage &a, const QImage &b)
{
    int different = 0;
    for (int y = 0; y < a.height(); ++y) {
        const auto *rowOfA = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const auto *rowOfB = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x)
            different += looksDifferent(rowOfA[x], rowOfB[x]);
    }
    return double(different) / (a.width() * a.height());
}

void expectPicture(const QString &name, const QSize &size)
{
    SCOPED_TRACE(qPrintable(name));
    ASSERT_EQ(QImageReader::imageFormat(pathOf(name)), QByteArray("png"));
    const QImage image(pathOf(name));
    ASSERT_EQ(image.size(), size);
    EXPECT_TRUE(image.hasAlphaChannel());
    EXPECT_GE(opaqueFraction(image), LeastOpaque);
    for (const QPoint &corner : {image.rect().topLeft(), image.rect().topRight(),
                                 image.rect().bottomLeft(), image.rect().bottomRight()})
        EXPECT_EQ(qAlpha(image.pixel(corner)), 0) << corner.x() << ", " << corner.y();
}

// As Markdown shows them: ![what is seen](path).
QStringList picturesInPage(const QString &page)
{
    const QRegularExpression shown(QStringLiteral("!\\[[^\\]]+\\]\\(([^)]+)\\)"));
    QStringList paths;
    auto match = shown.globalMatch(textOf(page));
    while (match.hasNext())
        paths.append(QFileInfo(page).dir().filePath(match.next().captured(1)));
    return paths;
}

int colourCount(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return colours.size();
}

} // namespace

TEST(Resources, namedInTheCodeAreElevenFaultsThreeBadgesAndThreeSteps)
{
    EXPECT_EQ(faultPictures().size(), FaultPictures);
    EXPECT_EQ(picturesInCode().filter(QStringLiteral("tooltips/PT")).size(), 3);
    EXPECT_EQ(picturesInCode().filter(QStringLiteral("tooltips/RTHelp")).size(), 3);
}

TEST(Resources, eachNamedInTheCodeIsThereInBothSizes)
{
    const QStringList names = picturesInCode();
    ASSERT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        const QSize size = expectedSize(name);
        ASSERT_TRUE(size.isValid()) << qPrintable(name) << ": say here how large it is";
        expectPicture(name, size);
        expectPicture(doubled(name), size * 2);
    }
}

TEST(Resources, theDoubleSizeShowsTheSame)
{
    for (const QString &name : picturesInCode()) {
        const QImage small = pictureOf(name);
        ASSERT_FALSE(small.isNull()) << qPrintable(name);
        const QImage halved =
            pictureOf(doubled(name))
                .scaled(small.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        ASSERT_EQ(halved.size(), small.size()) << qPrintable(name);
        EXPECT_LE(differentFraction(small, halved), MostDifferent) << qPrintable(name);
    }
}

TEST(Resources, noTwoFaultsLookAlike)
{
    const QStringList names = faultPictures();
    for (int i = 0; i < names.size(); ++i) {
        for (int j = i + 1; j < names.size(); ++j) {
            const QImage a = pictureOf(names[i]);
            const QImage b = pictureOf(names[j]);
            ASSERT_EQ(a.size(), b.size()) << qPrintable(names[i] + QLatin1Char(' ') + names[j]);
            EXPECT_GE(differentFraction(a, b), LeastDifferent)
                << qPrintable(names[i] + QLatin1Char(' ') + names[j]);
        }
    }
}

TEST(Resources, eachIconOfTheDesktopIsThereInBothSizes)
{
    const QStringList sources =
        QDir(QStringLiteral(QUILLMESH_ICONS_DIR "/desktop")).entryList({QStringLiteral("*.svg")});
    EXPECT_GE(sources.size(), 16);
    for (const QString &source : sources) {
        const QString icon = QFileInfo(source).completeBaseName();
        SCOPED_TRACE(qPrintable(icon));
        const QString name = QStringLiteral("Icons/desktop/%1.png").arg(icon);
        const int side = icon == QLatin1String("orvane") ? 64 : 24;
        for (const int ratio : {1, 2}) {
            const QImage image = pictureOf(ratio == 2 ? doubled(name) : name);
            ASSERT_EQ(image.size(), QSize(side, side) * ratio);
            EXPECT_GE(opaqueFraction(image), LeastOpaqueIcon);
        }
    }
}

TEST(Resources, eachCursorIsThereInBothSizesWithACrossAtItsHotSpot)
{
    const QStringList sources = QDir(QStringLiteral(QUILLMESH_ICONS_DIR "/desktop/cursors"))
                                    .entryList({QStringLiteral("*.svg")});
    EXPECT_EQ(sources.size(), 8);
    for (const QString &source : sources) {
        SCOPED_TRACE(qPrintable(source));
        const QString name = QStringLiteral("Icons/desktop/cursors/%1.png")
                                 .arg(QFileInfo(source).completeBaseName());
        for (const int ratio : {1, 2}) {
            const QImage image = pictureOf(ratio == 2 ? doubled(name) : name);
            ASSERT_EQ(image.size(), QSize(32, 32) * ratio);
            for (const QPoint &arm : {QPoint(9, 4), QPoint(9, 14), QPoint(4, 9), QPoint(14, 9)})
                EXPECT_EQ(qAlpha(image.pixel(arm * ratio)), 255);
            EXPECT_EQ(qAlpha(image.pixel(QPoint(9, 9) * ratio)), 0) << "what is aimed at is seen";
        }
    }
}

TEST(Resources, eachPictureOfTheUserGuideIsThereAndShowsSomething)
{
    const QStringList paths = picturesInPage(QStringLiteral(QUILLMESH_DOCS_DIR "/userguide.md"));
    EXPECT_GE(paths.filter(QStringLiteral("pictures/tools/")).size(), 14);
    for (const QString &path : paths) {
        SCOPED_TRACE(qPrintable(path));
        const QImage image(path);
        ASSERT_FALSE(image.isNull());
        EXPECT_LE(image.width(), WidestInPage);
        EXPECT_GE(colourCount(image), LeastColours);
    }
}
