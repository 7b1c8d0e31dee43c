// SPDX-License-Identifier: MIT
#include "cli/outputs.h"

#include "host/files/meshfile.h"
#include "host/files/safefile.h"
#include "host/meshchecker/meshchecker.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>

bool isMeshOutput(const QString &path, QString *error)
{
    return orvane::isWritableMeshFormat(path, error) && orvane::isPlaceForFile(path, error);
}

bool isPictureOutput(const QString &path, QString *error)
{
    if (QFileInfo(path).suffix().toLower() == QLatin1String("png"))
        return orvane::isPlaceForFile(path, error);
    *error = orvane::aboutFile(
        path, QStringLiteral("pictures are written as .png; expected a name that ends so."));
    return false;
}

bool writeImage(const QImage &image, const QString &path, QString *error)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (image.save(&buffer, "PNG"))
        return orvane::writeWhole(path, bytes, error);
    *error = orvane::aboutFile(path, QStringLiteral("the picture could not be made."));
    return false;
}

QString faultInWords(const orvane::MeshFault &fault)
{
    return QStringLiteral("%1 x %2 (first: %3)")
        .arg(fault.Count())
        .arg(fault.Name(), fault.FirstPlace());
}
