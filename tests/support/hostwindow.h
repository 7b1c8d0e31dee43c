// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/kernel/interface.h>

#include <QScopedPointer>

//! The kernel's interface for its life: one with a main window.
class HostWindow : public orvane::Interface
{
public:
    HostWindow();
    ~HostWindow() override;

    QWidget *MainWindow() const override;

private:
    QScopedPointer<QWidget> m_window;
};
