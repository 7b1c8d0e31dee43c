// SPDX-License-Identifier: MIT
#include "tests/support/memoryuse.h"

#include <QFile>

namespace {

const qint64 PageSize = 4096; // bytes

} // namespace

qint64 memoryInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return 0;
#else
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLongLong() * PageSize;
#endif
}
