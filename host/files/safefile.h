// SPDX-License-Identifier: MIT
#pragma once

#include "host/files/export.h"

#include <QByteArray>
#include <QString>

#include <functional>

class QFile;
class QIODevice;

namespace orvane {

//! A sentence about a file: its path, a colon, the text.
ORVANE_FILES_EXPORT QString aboutFile(const QString &path, const QString &text);

//! Can there be a file of that path: is its folder there, and the path no folder or device itself?
//! False, and one sentence in *error, when not. Nothing is touched.
ORVANE_FILES_EXPORT bool isPlaceForFile(const QString &path, QString *error);

//! A message of someone else's, to be built into a sentence.
QString withoutFullStop(QString text);

//! Opens a file of at least one byte for reading. False, and one sentence in *error, when it cannot
//! be.
bool openForReading(QFile *file, QString *error);

//! Reads a file of at least one byte. False, and one sentence in *error, when it cannot be read.
ORVANE_FILES_EXPORT bool readWhole(const QString &path, QByteArray *bytes, QString *error);

//! Writes a file that appears under its name, or replaces the old one, only once it is whole.
//! False, and one sentence in *error, when it could not be; the old file is then as it was.
ORVANE_FILES_EXPORT bool writeWhole(const QString &path, const QByteArray &bytes, QString *error);
//! The same of what the function writes; it answers whether all of it was written.
bool writeWhole(const QString &path, const std::function<bool(QIODevice *)> &write, QString *error);

} // namespace orvane
