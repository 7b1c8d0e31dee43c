// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/scenecleaner.h"

#include <orvane/geometry/geometry.h>
#include <orvane/math/vector.h>

#include <QByteArray>
#include <QDir>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

namespace orvane {
class Mesh;
class OrvaneCurve;
} // namespace orvane

using PlaceList = QVector<orvane::Vector>;

//! The corners of each polygon of a mesh, as world places.
QVector<PlaceList> polygonPlaces(const orvane::Mesh &mesh);

//! The same of the triangles of each polygon's fan.
QVector<PlaceList> fanPlaces(const orvane::Mesh &mesh);

//! The same numbers bit by bit, but for the sign of zero.
bool samePlaces(const QVector<PlaceList> &a, const QVector<PlaceList> &b);

//! Tests that read and write files: a folder of their own, gone afterwards.
class FileTest : public SceneCleaner
{
protected:
    FileTest();
    ~FileTest() override;

    QString path(const QString &name) const { return name; }
    //! Makes a file and answers its path.
    QString file(const QString &name, const QByteArray &bytes) const;
    QByteArray bytesOf(const QString &path) const;
    QStringList filesInFolder() const;

    //! The geometry of a file that must be readable; it lives as long as the test.
    orvane::Geometry *mesh(const QString &path);
    //! The sentence about a mesh that must be refused, about curves that must be.
    QString meshError(const QString &path);
    QString curveError(const QString &path);
    //! The same of a file made just now.
    QString meshError(const QString &name, const QByteArray &bytes);
    QString curveError(const QString &name, const QByteArray &bytes);
    //! The curves of a file that must be readable; they live as long as the test.
    QVector<orvane::OrvaneCurve *> curves(const QString &path);
    void write(const QVector<const orvane::Geometry *> &geometries, const QString &path);

private:
    QString m_folderBefore = QDir::currentPath();
    QTemporaryDir m_folder;
    QVector<orvane::Geometry *> m_geometries; // owned
    QVector<orvane::OrvaneCurve *> m_curves;  // owned
};

//! For its life no file of this process can grow beyond so many bytes, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(qint64 bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    qint64 m_oldLimit;
    void (*m_oldHandler)(int);
};
