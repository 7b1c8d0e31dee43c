// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QTranslator>

//! Notes what the program asks the translations for during its life, and translates nothing.
class AskedTexts : public QTranslator
{
public:
    AskedTexts();
    ~AskedTexts() override;

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override;

    //! "context: text" each.
    const QStringList &keys() const { return m_keys; }

private:
    mutable QStringList m_keys;
};
