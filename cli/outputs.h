// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

class QImage;

namespace orvane {
struct MeshFault;
}

//! Can a file be made there? Each answers a sentence in error when not. Nothing is touched.
bool isMeshOutput(const QString &path, QString *error);
bool isPictureOutput(const QString &path, QString *error);
bool isSceneOutput(const QString &path, QString *error);

//! Is none of the outputs also an input or another output? Empty paths do not count.
bool areOutputsApart(const QStringList &inputs, const QStringList &outputs, QString *error);

//! Writes a PNG; an older file is replaced only once the new one is whole.
bool writeImage(const QImage &image, const QString &path, QString *error);

//! "2 x zero-length edge (first: edge 3-7)".
QString faultInWords(const orvane::MeshFault &fault);
