// SPDX-License-Identifier: MIT
#include "tests/support/hostwindow.h"

#include <orvane/kernel/kernel.h>

#include <QWidget>

HostWindow::HostWindow() : m_window(new QWidget)
{
    orvane::Kernel()->SetInterface(this);
}

HostWindow::~HostWindow()
{
    orvane::Kernel()->SetInterface(nullptr);
}

QWidget *HostWindow::MainWindow() const
{
    return m_window.data();
}
