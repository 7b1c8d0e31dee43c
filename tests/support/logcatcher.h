// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

//! Collects what is logged during its life.
class LogCatcher
{
public:
    LogCatcher();
    ~LogCatcher();
    LogCatcher(const LogCatcher &) = delete;
    LogCatcher &operator=(const LogCatcher &) = delete;

    const QStringList &texts() const { return m_texts; }
    int count() const { return m_texts.size(); }
    //! All texts, joined by newlines.
    QString text() const { return m_texts.join(QLatin1Char('\n')); }

private:
    QStringList m_texts;
};
