// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/view/viewclient.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QString>

namespace orvane {

class OrvaneCurve;
class ToolContext;

//! How a tool presents itself; texts in the user's language.
struct ToolDescription
{
    QString id;   // lower case, never translated; also the name of its icon and its help page
    QString text; // for a button or a menu
    QString hint; // for the status line: one sentence that names the keys
    QKeySequence shortcut;
};

//! One curve tool. A gesture begins with the left button and ends when it goes up; then it becomes
//! one undo step, or nothing. Until then the scene stays as it is, so that giving up leaves no
//! trace. A tool keeps no pointers into the scene between events.
class Tool : public ViewClient
{
public:
    explicit Tool(ToolContext &context) : m_context(context) {}
    Tool(const Tool &) = delete;
    Tool &operator=(const Tool &) = delete;

    virtual ToolDescription Description() const = 0;
    //! Is a gesture in hand?
    bool IsBusy() const { return m_busy; }
    //! The curve that a press would take hold of, to be highlighted; null when there is none.
    virtual const OrvaneCurve *HoveredCurve() const { return nullptr; }

    void Handle(const PointerEvent &event) final;
    //! Ends the gesture in hand: what was drawn is not lost.
    void Leave() final;
    QCursor Cursor() const override;
    LeftDrag UseOfLeftDrag() const override { return LeftDrag::Anywhere; }
    QVector<ViewLine> Lines() const override { return {}; }
    QVector<ViewShape> Shapes() const override { return {}; }

    //! Gives up the gesture in hand; Esc and right click.
    void Cancel();
    //! Ends the gesture in hand where the pointer is; Enter. Without one it works on the selected
    //! curves, if the tool has something to do with them.
    void Finish();

protected:
    ToolContext &context() const { return m_context; }
    //! Where the pointer was last.
    const QPointF &pixel() const { return m_pixel; }
    bool isPointerInside() const { return m_inside; }

    //! False when there is nothing to begin here.
    virtual bool begin(const PointerEvent &event) = 0;
    virtual void drag(const PointerEvent &event) = 0;
    //! Makes the change. Called once for each begin that was true, unless it is given up.
    virtual void complete() = 0;
    //! Forgets the gesture: after it was completed or given up.
    virtual void forget() = 0;
    //! The pointer moved or left while nothing is in hand. Answers whether that is to be seen.
    virtual bool hover() { return false; }
    virtual void workOnSelection() {}

private:
    void press(const PointerEvent &event);
    void end();

    ToolContext &m_context;
    QPointF m_pixel;
    bool m_inside = false;
    bool m_busy = false;
};

} // namespace orvane
