// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

//! Rows of words under a heading; printed as it is filled would lose the columns' widths, so it is
//! printed whole.
class Table
{
public:
    Table(const QString &title, const QStringList &columns) : m_title(title), m_columns(columns) {}

    void add(const QStringList &row) { m_rows.append(row); }
    bool isEmpty() const { return m_rows.isEmpty(); }
    //! Markdown, on the standard output.
    void print() const;
    //! Appends the table to a file, as one line of JSON. False when it cannot be written.
    bool appendTo(const QString &path) const;

private:
    QString m_title;
    QStringList m_columns;
    QVector<QStringList> m_rows;
};

//! Milliseconds, a ratio: three significant digits.
QString shortNumber(double value);
