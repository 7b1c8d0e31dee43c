// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/navigation.h"

#include <QDialog>

class QMainWindow;

namespace orvane {

//! All keys and drags at a glance, from the menus as they are.
class ShortcutSheet : public QDialog
{
    Q_OBJECT

public:
    ShortcutSheet(QMainWindow *window, NavigationPreset navigation);
};

} // namespace orvane
