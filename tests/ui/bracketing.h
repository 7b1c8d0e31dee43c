// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QTranslator>

//! Puts every text that is translated during its life into brackets, and notes those of one class.
class Bracketing : public QTranslator
{
public:
    explicit Bracketing(const char *context) : m_context(QLatin1String(context))
    {
        QCoreApplication::installTranslator(this);
    }
    ~Bracketing() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char *context, const char *text, const char *, int) const override
    {
        if (m_context == QLatin1String(context))
            m_texts.append(QLatin1String(text));
        return QStringLiteral("[%1]").arg(QLatin1String(text));
    }
    bool isEmpty() const override { return false; }

    //! Those of the class, in the order they were asked for.
    const QStringList &texts() const { return m_texts; }

private:
    QString m_context;
    mutable QStringList m_texts;
};
