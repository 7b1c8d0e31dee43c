// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/math/export.h>

#include <QByteArray>
#include <QString>
#include <QVector>

namespace orvane {

class Operation;

//! One operation that ran: its class and what Serialize wrote.
struct OperationRecord
{
    QString className;
    QByteArray bytes;
    QString title = {}; // of the step that it begins; empty for the class's display text
};

//! What one undo takes back: the operations of a step, in the order they ran.
using UndoStep = QVector<OperationRecord>;

//! The operations that can be undone and redone. It keeps bytes, not objects: each undo or redo
//! makes a fresh object through its class descriptor, reads it, runs it and writes it back, so
//! operations of any class can be kept without the host knowing them.
class ORVANE_EXPORT UndoQueue
{
public:
    //! 100 steps, then 1 GiB; the latest step always stays.
    static const int MaximumSteps;
    static const qint64 MaximumBytes;

    explicit UndoQueue(qint64 maximumBytes = MaximumBytes) : m_maximumBytes(maximumBytes) {}

    bool CanUndo() const { return m_position > 0; }
    bool CanRedo() const { return m_position < m_steps.size(); }
    int StepCount() const { return m_steps.size(); }
    //! Oldest first.
    const QVector<UndoStep> &Steps() const { return m_steps; }
    //! How many of the steps are done; the others were undone.
    int Position() const { return m_position; }
    //! Another number after each change of the queue.
    int Revision() const { return m_revision; }
    //! Do the steps stand where they stood when the scene was saved? False too when that place can
    //! no longer be reached.
    bool IsAtSaved() const { return m_saved == m_position; }
    //! What undo or redo would undo or redo, for a menu: the step's title or else the display text
    //! of its class, in the user's language; empty when there is nothing.
    QString UndoText() const;
    QString RedoText() const;

    //! Keeps an operation that has just run, and forgets what could have been redone.
    //! merge: as a part of the latest step, if there is one.
    void Push(Operation *operation, bool merge);
    //! Calls the latest step what the user did: an English text of the translation context
    //! "UndoStep". Ignored when there is none, and when the step has a title.
    void SetTitle(const QString &title);
    //! Runs the latest step backwards, or the next one forwards. False when there is none or an
    //! operation answers false; the step then stays where it is.
    bool Undo();
    bool Redo();
    //! The scene is saved as it stands, or no longer as any place here.
    void SetSaved(bool saved);
    void Clear();
    //! Takes over what another session kept. Steps without operations are left out; a position
    //! out of range is moved into it.
    void Restore(const QVector<UndoStep> &steps, int position);

private:
    static QString textOf(const UndoStep &step);
    static bool run(OperationRecord &record);
    void enforceLimits();

    qint64 m_maximumBytes;
    QVector<UndoStep> m_steps;
    int m_position = 0; // steps before it are done, from it on undone
    int m_saved = -1;   // position of the saved scene; -1: none here
    int m_revision = 0;
};

} // namespace orvane
