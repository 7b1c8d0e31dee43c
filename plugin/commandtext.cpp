// SPDX-License-Identifier: MIT
#include "plugin/commandtext.h"

namespace {

const QChar Separator = QLatin1Char(' ');

QString field(const QString &text, int index, const QString &whenEmpty)
{
    const QString found = text.section(Separator, index, index);
    return found.isEmpty() ? whenEmpty : found;
}

} // namespace

float CommandValues::overrunFraction() const
{
    return float(double(overrunTolerance) * 0.01);
}

QString commandText(const CommandValues &values)
{
    return QStringLiteral("manualretopo %1 %2 %3 %4 %5")
        .arg(values.maximumEdges)
        .arg(double(values.mergeDistance))
        .arg(double(values.intersectionTolerance))
        .arg(double(values.overrunTolerance))
        .arg(int(values.useSelfIntersections));
}

// Merge distance and tolerance are fractions, the defaults "10" and "5" too. They look like
// percent; lines already recorded without these fields must replay to the same mesh.
std::optional<CommandValues> readCommand(const QString &text)
{
    if (text.section(Separator, 0, 0) != QLatin1String("manualretopo"))
        return std::nullopt;
    CommandValues values;
    values.maximumEdges = field(text, 1, QStringLiteral("5")).toInt();
    values.mergeDistance = field(text, 2, QStringLiteral("10")).toFloat();
    values.intersectionTolerance = field(text, 3, QStringLiteral("5")).toFloat();
    values.overrunTolerance = field(text, 4, QStringLiteral("35")).toFloat();
    values.useSelfIntersections = field(text, 5, QStringLiteral("1")).toInt() != 0;
    return values;
}
