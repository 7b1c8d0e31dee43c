// SPDX-License-Identifier: MIT
#include "tests/translations/askedtexts.h"

#include <QCoreApplication>

AskedTexts::AskedTexts()
{
    QCoreApplication::installTranslator(this);
}

AskedTexts::~AskedTexts()
{
    QCoreApplication::removeTranslator(this);
}

QString AskedTexts::translate(const char *context, const char *source, const char *, int) const
{
    m_keys.append(QString::fromUtf8(context) + QLatin1String(": ") + QString::fromUtf8(source));
    return {};
}
