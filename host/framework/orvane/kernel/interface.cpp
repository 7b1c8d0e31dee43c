// SPDX-License-Identifier: MIT
#include <orvane/kernel/interface.h>

#include <utility>

namespace orvane {

const QString Interface::menuMesh = QStringLiteral("Mesh");

Interface::~Interface() = default;

QWidget *Interface::MainWindow() const
{
    return nullptr;
}

void Interface::ProgressStart(const QString &, qint64, double, int) {}

void Interface::ProgressSet(qint64) {}

void Interface::ProgressEnd() {}

void Interface::HUDMessageShow(const QString &, int, int) {}

bool Interface::IsHUDMessageUp() const
{
    return false;
}

void Interface::ReportShow(const QString &) {}

void Interface::RefreshUI() {}

void Interface::SetBusy(bool) {}

void Interface::AddCallbackMenuItem(const QString &menu, const QString &subMenu,
                                    const QString &label, std::function<void()> callback,
                                    const QString &id, int position, bool checkable, int kind)
{
    m_menuItems.append({menu, subMenu, label, std::move(callback), id, position, checkable, kind});
}

} // namespace orvane
