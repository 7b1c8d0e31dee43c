// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace orvane {

class PluginLoader;

//! What this program is, and what became of each plug-in.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    //! plugins: may be null.
    AboutDialog(const PluginLoader *plugins, QWidget *parent);
};

} // namespace orvane
