// SPDX-License-Identifier: MIT
#include "host/files/safefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <limits>

namespace orvane {

namespace {

bool refuse(const QString &path, const QString &text, QString *error)
{
    *error = aboutFile(path, text);
    return false;
}

bool refuseToRead(const QFile &file, QString *error)
{
    return refuse(file.fileName(),
                  QStringLiteral("it cannot be read: %1.").arg(withoutFullStop(file.errorString())),
                  error);
}

} // namespace

QString aboutFile(const QString &path, const QString &text)
{
    return QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(path), text);
}

bool isPlaceForFile(const QString &path, QString *error)
{
    const QFileInfo info(path);
    if (path.isEmpty() || info.fileName().isEmpty() || info.isDir())
        return refuse(path, QStringLiteral("this is a folder; expected the name of a file."),
                      error);
    // Renaming over a device would put a file in its place, for everyone on the machine.
    if (info.exists() && !info.isFile())
        return refuse(path, QStringLiteral("this is a device or a pipe; expected a file."), error);
    if (info.isSymLink() && !info.exists())
        return refuse(path, QStringLiteral("this is a link to nowhere; expected a file."), error);
    const QFileInfo folder(info.absolutePath());
    const QString name = QDir::toNativeSeparators(info.path());
    if (!folder.exists()) {
        return refuse(
            path, QStringLiteral("the folder %1 does not exist; expected one that does.").arg(name),
            error);
    }
    if (!folder.isDir()) {
        return refuse(path,
                      QStringLiteral("%1 is a file; expected a folder to write into.").arg(name),
                      error);
    }
    if (!folder.isWritable()) {
        return refuse(path, QStringLiteral("the folder %1 may not be written into.").arg(name),
                      error);
    }
    return true;
}

QString withoutFullStop(QString text)
{
    while (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

bool openForReading(QFile *file, QString *error)
{
    const QString path = file->fileName();
    const QFileInfo info(path);
    if (!info.exists())
        return refuse(path, QStringLiteral("no such file."), error);
    if (!info.isFile())
        return refuse(path, QStringLiteral("this is a folder or a device; expected a file."),
                      error);
    if (!file->open(QIODevice::ReadOnly))
        return refuseToRead(*file, error);
    if (file->size() == 0)
        return refuse(path, QStringLiteral("the file is empty."), error);
    return true;
}

bool readWhole(const QString &path, QByteArray *bytes, QString *error)
{
    QFile file(path);
    if (!openForReading(&file, error))
        return false;
    if (file.size() > std::numeric_limits<int>::max())
        return refuse(path, QStringLiteral("the file is too large; expected less than 2 GiB."),
                      error);
    *bytes = file.readAll();
    return file.error() == QFileDevice::NoError || refuseToRead(file, error);
}

bool writeWhole(const QString &path, const QByteArray &bytes, QString *error)
{
    const auto write = [&bytes](QIODevice *device) {
        return device->write(bytes) == bytes.size();
    };
    return writeWhole(path, write, error);
}

bool writeWhole(const QString &path, const std::function<bool(QIODevice *)> &write, QString *error)
{
    if (!isPlaceForFile(path, error))
        return false;
    QSaveFile file(path);
    errno = 0;
    // Without the flush commit would rename a file whose last bytes found no room.
    if (file.open(QIODevice::WriteOnly) && write(&file) && file.flush() && file.commit())
        return true;
    // The system's own word first: Qt has none for a disk that fills up during a flush.
    const QString why = errno != 0 ? qt_error_string(errno) : file.errorString();
    return refuse(path, QStringLiteral("it cannot be written: %1.").arg(withoutFullStop(why)),
                  error);
}

} // namespace orvane
