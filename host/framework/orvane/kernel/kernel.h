// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/base/attribute.h>
#include <orvane/kernel/undoqueue.h>

#include <QScopedPointer>
#include <QStringList>

namespace orvane {

class ClassDesc;
class Interface;
class Operation;
class Preferences;
class Scene;
class ViewPort;

//! The host as plug-ins see it: one scene, one interface, one view, the operations that ran.
class ORVANE_EXPORT Kernel
{
public:
    static class Kernel &Instance();

    orvane::Scene *Scene() const { return m_scene.data(); }
    orvane::Interface *Interface() const { return m_interface; }
    orvane::ViewPort *ViewPort() const { return m_viewPort; }
    orvane::Preferences *Preferences() const { return m_preferences.data(); }
    UndoQueue &Undos() { return m_undos; }
    bool IsTestModeOn() const { return m_testMode; }
    bool IsOperationRunning() const { return m_running; }
    //! How many operations were run so far, whatever came of them; undo and redo do not count.
    int OperationCount() const { return m_operationCount; }

    //! What shows and draws from now on; not owned. Null for what shows nothing.
    void SetInterface(orvane::Interface *interface);
    void SetViewPort(orvane::ViewPort *viewPort);
    void SetTestMode(bool on) { m_testMode = on; }

    //! Empties scene and undo queue and lets numbers begin anew; there is nothing to save then.
    //! False, and nothing happens, while an operation runs.
    bool NewScene();

    //! A new object of the class, owned by the caller; null for null or an abstract class.
    Node *CreateClassInstance(const ClassDesc *desc) const;
    void Log(const QString &text) const;

    //! Runs the operation and, when it answers true, keeps a copy of it to be undone and marks
    //! the scene as changed. interactive: the user asked for it just now and is told when nothing
    //! was made. merge: it becomes a part of the step before it. A selection that was not asked
    //! for is neither kept nor marked.
    //! Answers what the operation did; false while another one runs.
    bool DoOperation(Operation *operation, bool interactive, bool merge);
    bool Undo();
    bool Redo();
    //! An operation that is about to answer false says why, for the user.
    void ExplainFailure(const QString &reason) { m_failureReason = reason; }

    //! Notes a command that has been carried out, so that it can be shown, saved and replayed.
    void RecordCommand(const QString &text) { m_recordedCommands.append(text); }
    const QStringList &RecordedCommands() const { return m_recordedCommands; }
    //! Set to replay a command: whoever follows it and knows the command carries it out.
    AttributeInstance<QString> &CommandAttribute() { return m_command; }

private:
    Kernel();
    ~Kernel();

    bool run(Operation *operation, bool interactive);

    QScopedPointer<orvane::Scene> m_scene;
    QScopedPointer<orvane::Preferences> m_preferences;
    QScopedPointer<orvane::Interface> m_silentInterface;
    QScopedPointer<orvane::ViewPort> m_silentViewPort;
    orvane::Interface *m_interface; // not owned
    orvane::ViewPort *m_viewPort;   // not owned
    UndoQueue m_undos;
    Node m_commandNode;
    AttributeInstance<QString> m_command;
    QStringList m_recordedCommands;
    QString m_failureReason;
    bool m_testMode = false;
    bool m_running = false;
    int m_operationCount = 0;
};

// The function is named like its class on purpose: plug-ins write Kernel()->Scene(), and the
// class is still reachable as Kernel::Instance.
#if defined(__GNUC__) && !defined(__clang__)
#    pragma GCC diagnostic push
#    pragma GCC diagnostic ignored "-Wshadow"
#endif
//! The one kernel of the process.
inline class Kernel *Kernel()
{
    return &Kernel::Instance();
}
#if defined(__GNUC__) && !defined(__clang__)
#    pragma GCC diagnostic pop
#endif

} // namespace orvane
