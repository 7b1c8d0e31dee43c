// SPDX-License-Identifier: MIT
#include "bench/support/table.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <cstdio>

void Table::print() const
{
    QVector<int> widths;
    for (int c = 0; c < m_columns.size(); ++c) {
        int width = m_columns[c].size();
        for (const QStringList &row : m_rows)
            width = qMax(width, row.value(c).size());
        widths.append(width);
    }
    const auto line = [&](const QStringList &row) {
        QString text = QStringLiteral("|");
        for (int c = 0; c < widths.size(); ++c)
            text += QLatin1Char(' ') + row.value(c).leftJustified(widths[c]) + QStringLiteral(" |");
        std::printf("%s\n", qPrintable(text));
    };
    QStringList rule;
    for (int width : qAsConst(widths))
        rule.append(QString(width, QLatin1Char('-')));
    std::printf("\n### %s\n\n", qPrintable(m_title));
    line(m_columns);
    line(rule);
    for (const QStringList &row : m_rows)
        line(row);
    std::fflush(stdout);
}

bool Table::appendTo(const QString &path) const
{
    QJsonArray rows;
    for (const QStringList &row : m_rows) {
        QJsonObject object;
        for (int c = 0; c < m_columns.size(); ++c)
            object.insert(m_columns[c], row.value(c));
        rows.append(object);
    }
    const QJsonObject whole{{QStringLiteral("title"), m_title}, {QStringLiteral("rows"), rows}};
    QFile file(path);
    return file.open(QIODevice::Append)
           && file.write(QJsonDocument(whole).toJson(QJsonDocument::Compact) + '\n') > 0;
}

QString shortNumber(double value)
{
    if (!std::isfinite(value))
        return QStringLiteral("-");
    const double size = std::fabs(value);
    const int digits = size >= 100.0 ? 0 : size >= 10.0 ? 1 : size >= 1.0 ? 2 : 3;
    return QString::number(value, 'f', digits);
}
