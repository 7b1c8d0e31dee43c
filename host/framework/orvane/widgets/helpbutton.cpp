// SPDX-License-Identifier: MIT
#include <orvane/widgets/helpbutton.h>

#include <orvane/widgets/helpviewer.h>

namespace orvane {

HelpButton::HelpButton(QWidget *parent, const QString &helpID, const QString &label)
    : QPushButton(label, parent)
{
    connect(this, &QPushButton::clicked, this, [helpID]() { showHelp(helpID); });
}

} // namespace orvane
