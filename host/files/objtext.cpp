// SPDX-License-Identifier: MIT
#include "host/files/objtext.h"

#include "host/files/textwords.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace orvane {

bool readObjPlace(const Words &words, Vector *place, QString *error)
{
    float coordinate[3] = {};
    for (size_t i = 0; i < 3; ++i) {
        const std::optional<float> number =
            i + 1 < words.size() ? numberIn(words[i + 1]) : std::nullopt;
        if (!number || !std::isfinite(*number)) {
            *error =
                QStringLiteral("expected three finite numbers after \"%1\"").arg(textOf(words[0]));
            return false;
        }
        coordinate[i] = *number;
    }
    *place = Vector(coordinate[0], coordinate[1], coordinate[2]);
    return true;
}

int readObjReference(std::string_view word, int countSoFar, QLatin1String what, QString *error)
{
    const std::optional<int> number = integerIn(word);
    if (!number) {
        *error = QStringLiteral("has \"%1\" in the place of the number of a %2")
                     .arg(textOf(word), QString(what));
        return -1;
    }
    if (*number > 0)
        return *number - 1;
    if (*number < 0 && *number >= -countSoFar)
        return countSoFar + *number;
    *error = *number == 0 ? QStringLiteral("refers to %1 0, but they count from 1").arg(what)
                          : QStringLiteral("refers to %1 %2, but only %3 come before it")
                                .arg(what)
                                .arg(*number)
                                .arg(countSoFar);
    return -1;
}

QString objName(const Words &words)
{
    QStringList parts;
    for (size_t i = 1; i < words.size(); ++i)
        parts.append(textOf(words[i]));
    return parts.join(QLatin1Char(' '));
}

QString textOf(std::string_view word)
{
    return QString::fromUtf8(word.data(), int(std::min<size_t>(word.size(), 60)));
}

} // namespace orvane
