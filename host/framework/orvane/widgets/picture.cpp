// SPDX-License-Identifier: MIT
#include <orvane/widgets/picture.h>

#include <QDir>
#include <QFileInfo>

namespace orvane {

namespace {

QString doubledPath(const QString &path)
{
    const QFileInfo file(path);
    return file.dir().filePath(file.completeBaseName() + QStringLiteral("@2x.") + file.suffix());
}

} // namespace

QPixmap loadPicture(const QString &path, qreal devicePixelRatio)
{
    if (devicePixelRatio > 1.0) {
        QPixmap doubled(doubledPath(path));
        if (!doubled.isNull()) {
            doubled.setDevicePixelRatio(2.0);
            return doubled;
        }
    }
    return QPixmap(path);
}

} // namespace orvane
