// SPDX-License-Identifier: MIT
#include "tests/host/files/filetest.h"

#include "host/files/curvefile.h"
#include "host/files/meshfile.h"

#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/polygons.h>
#include <orvane/geometry/subdivisionlevel.h>

#include <QDir>
#include <QFile>

#include <csignal>

#include <sys/resource.h>

using namespace orvane;

QVector<PlaceList> polygonPlaces(const Mesh &mesh)
{
    const PolygonList polygons = polygonsOf(mesh);
    QVector<PlaceList> result;
    for (int p = 0; p < polygons.Count(); ++p) {
        result.append(PlaceList());
        for (int i = 0; i < polygons.CornerCount(p); ++i)
            result.last().append(mesh.WorldVertexPosition(polygons.Corners(p)[i]));
    }
    return result;
}

QVector<PlaceList> fanPlaces(const Mesh &mesh)
{
    QVector<PlaceList> result;
    for (const PlaceList &polygon : polygonPlaces(mesh)) {
        for (int i = 2; i < polygon.size(); ++i)
            result.append({polygon[0], polygon[i - 1], polygon[i]});
    }
    return result;
}

bool samePlaces(const QVector<PlaceList> &a, const QVector<PlaceList> &b)
{
    return a == b; // zero equals minus zero, and no file holds what is not a number
}

FileTest::FileTest()
{
    // Paths are then the names of files, and so are the beginnings of the sentences about them.
    EXPECT_TRUE(m_folder.isValid() && QDir::setCurrent(m_folder.path()));
}

FileTest::~FileTest()
{
    QDir::setCurrent(m_folderBefore);
    qDeleteAll(m_geometries);
    qDeleteAll(m_curves);
}

QString FileTest::file(const QString &name, const QByteArray &bytes) const
{
    QFile made(path(name));
    EXPECT_TRUE(made.open(QIODevice::WriteOnly));
    EXPECT_EQ(made.write(bytes), bytes.size());
    return made.fileName();
}

QByteArray FileTest::bytesOf(const QString &path) const
{
    QFile opened(path);
    EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << qPrintable(path);
    return opened.readAll();
}

QStringList FileTest::filesInFolder() const
{
    return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
}

Geometry *FileTest::mesh(const QString &path)
{
    QString error;
    Geometry *geometry = readMesh(path, &error);
    EXPECT_TRUE(geometry) << qPrintable(error);
    EXPECT_TRUE(error.isEmpty()) << qPrintable(error);
    if (!geometry)
        geometry = new Geometry;
    m_geometries.append(geometry);
    return geometry;
}

QString FileTest::meshError(const QString &path)
{
    QString error;
    Geometry *geometry = readMesh(path, &error);
    EXPECT_FALSE(geometry) << qPrintable(path);
    delete geometry;
    return error;
}

QString FileTest::meshError(const QString &name, const QByteArray &bytes)
{
    return meshError(file(name, bytes));
}

QString FileTest::curveError(const QString &path)
{
    QString error;
    const QVector<OrvaneCurve *> read = readCurves(path, &error);
    EXPECT_TRUE(read.isEmpty()) << qPrintable(path);
    qDeleteAll(read);
    return error;
}

QString FileTest::curveError(const QString &name, const QByteArray &bytes)
{
    return curveError(file(name, bytes));
}

QVector<OrvaneCurve *> FileTest::curves(const QString &path)
{
    QString error;
    const QVector<OrvaneCurve *> read = readCurves(path, &error);
    EXPECT_FALSE(read.isEmpty());
    EXPECT_TRUE(error.isEmpty()) << qPrintable(error);
    m_curves += read;
    return read;
}

void FileTest::write(const QVector<const Geometry *> &geometries, const QString &path)
{
    QString error;
    EXPECT_TRUE(writeMeshes(geometries, path, &error)) << qPrintable(error);
    EXPECT_TRUE(error.isEmpty()) << qPrintable(error);
}

FileSizeLimit::FileSizeLimit(qint64 bytes) : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN))
{
    rlimit limit;
    getrlimit(RLIMIT_FSIZE, &limit);
    m_oldLimit = qint64(limit.rlim_cur);
    limit.rlim_cur = rlim_t(bytes);
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

FileSizeLimit::~FileSizeLimit()
{
    rlimit limit;
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = rlim_t(m_oldLimit);
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    std::signal(SIGXFSZ, m_oldHandler);
}
