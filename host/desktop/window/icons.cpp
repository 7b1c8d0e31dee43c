// SPDX-License-Identifier: MIT
#include "host/desktop/window/icons.h"

#include <orvane/widgets/picture.h>

namespace orvane {

QIcon desktopIcon(const QString &name)
{
    const QString path = QStringLiteral("Icons/desktop/%1.png").arg(name);
    QIcon icon;
    for (const qreal ratio : {1.0, 2.0}) {
        const QPixmap picture = loadPicture(path, ratio);
        if (!picture.isNull())
            icon.addPixmap(picture);
    }
    return icon;
}

} // namespace orvane
