// SPDX-License-Identifier: MIT
#include "cli/outputs.h"

#include "host/files/meshfile.h"
#include "host/files/safefile.h"
#include "host/meshchecker/meshchecker.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>

namespace {

// The same for every way to write a path, also that of a file that is still to be made.
QString placeOf(const QString &path)
{
    const QFileInfo file(path);
    if (file.exists())
        return file.canonicalFilePath();
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? path : folder + QLatin1Char('/') + file.fileName();
}

bool isOutputOfKind(const QString &path, const char *suffix, const char *things, QString *error)
{
    if (QFileInfo(path).suffix().toLower() == QLatin1String(suffix))
        return orvane::isPlaceForFile(path, error);
    *error =
        orvane::aboutFile(path, QStringLiteral("%1 written as .%2; expected a name that ends so.")
                                    .arg(QLatin1String(things), QLatin1String(suffix)));
    return false;
}

} // namespace

bool isMeshOutput(const QString &path, QString *error)
{
    return orvane::isWritableMeshFormat(path, error) && orvane::isPlaceForFile(path, error);
}

bool isPictureOutput(const QString &path, QString *error)
{
    return isOutputOfKind(path, "png", "pictures are", error);
}

bool isSceneOutput(const QString &path, QString *error)
{
    return isOutputOfKind(path, "orvane", "scenes are", error);
}

bool areOutputsApart(const QStringList &inputs, const QStringList &outputs, QString *error)
{
    QStringList taken;
    for (const QString &input : inputs)
        taken.append(placeOf(input));
    for (const QString &output : outputs) {
        if (output.isEmpty())
            continue;
        if (taken.contains(placeOf(output))) {
            *error = orvane::aboutFile(
                output, QStringLiteral("this file is read or written by the same run already; "
                                       "expected another name."));
            return false;
        }
        taken.append(placeOf(output));
    }
    return true;
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
