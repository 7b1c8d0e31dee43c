// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QPushButton>

namespace orvane {

//! Opens the host's help at its page when pressed.
class ORVANE_EXPORT HelpButton : public QPushButton
{
    Q_OBJECT

public:
    HelpButton(QWidget *parent, const QString &helpID, const QString &label);
};

} // namespace orvane
