// SPDX-License-Identifier: MIT
#include <orvane/kernel/kernel.h>

#include <orvane/base/classdesc.h>
#include <orvane/base/log.h>
#include <orvane/base/nodetable.h>
#include <orvane/base/operation.h>
#include <orvane/kernel/interface.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>
#include <orvane/kernel/viewport.h>

#include <QCoreApplication>
#include <QScopedValueRollback>

namespace orvane {

namespace {

const int FailureMessageTime = 4000; // milliseconds

} // namespace

Kernel::Kernel()
    : m_scene(new orvane::Scene),
      m_preferences(new orvane::Preferences),
      m_silentInterface(new orvane::Interface),
      m_silentViewPort(new orvane::ViewPort),
      m_interface(m_silentInterface.data()),
      m_viewPort(m_silentViewPort.data()),
      m_command(&m_commandNode, QStringLiteral("command"))
{}

Kernel::~Kernel() = default;

class Kernel &Kernel::Instance()
{
    NodeTable::Instance(); // made first, so that it outlives the scene
    static class Kernel kernel;
    return kernel;
}

void Kernel::SetInterface(orvane::Interface *interface)
{
    m_interface = interface ? interface : m_silentInterface.data();
}

void Kernel::SetViewPort(orvane::ViewPort *viewPort)
{
    m_viewPort = viewPort ? viewPort : m_silentViewPort.data();
}

bool Kernel::NewScene()
{
    if (m_running)
        return false;
    m_undos.Clear();
    m_scene->Clear();
    NodeTable::Instance().Restart();
    m_scene->SetChanged(false);
    return true;
}

Node *Kernel::CreateClassInstance(const ClassDesc *desc) const
{
    return desc ? desc->Create() : nullptr;
}

void Kernel::Log(const QString &text) const
{
    log(text);
}

bool Kernel::DoOperation(Operation *operation, bool interactive, bool merge)
{
    if (!operation || m_running || !run(operation, interactive))
        return false;
    // A tool that tidies the selection before its own work leaves no step the user did not make,
    // and nothing to save.
    if (!interactive && operation->RuntimeClass()->Flags() & ClassDesc::SelectionOnly)
        return true;
    m_undos.Push(operation, merge);
    m_scene->SetChanged(true);
    return true;
}

bool Kernel::run(Operation *operation, bool interactive)
{
    QScopedValueRollback<bool> running(m_running, true);
    ++m_operationCount;
    m_failureReason.clear();
    if (interactive)
        m_interface->SetBusy(true);
    const bool done = operation->ExecuteAndInvert();
    if (interactive)
        m_interface->SetBusy(false);
    if (!done && interactive && !m_interface->IsHUDMessageUp()) {
        QString text = QCoreApplication::translate("Kernel", "Nothing was made");
        if (!m_failureReason.isEmpty())
            text += QStringLiteral(": ") + m_failureReason;
        m_interface->HUDMessageShow(text, 1, FailureMessageTime);
    }
    return done;
}

bool Kernel::Undo()
{
    if (m_running)
        return false;
    QScopedValueRollback<bool> running(m_running, true);
    const bool done = m_undos.Undo();
    if (done)
        m_scene->SetChanged(true);
    return done;
}

bool Kernel::Redo()
{
    if (m_running)
        return false;
    QScopedValueRollback<bool> running(m_running, true);
    const bool done = m_undos.Redo();
    if (done)
        m_scene->SetChanged(true);
    return done;
}

} // namespace orvane
