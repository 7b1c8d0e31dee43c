// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/tools/tool.h"

#include <memory>
#include <vector>

namespace orvane {

//! All tools, one of them in hand: it gets what happens in the view.
class ToolBox : public ViewClient
{
public:
    //! The context must outlive it.
    explicit ToolBox(ToolContext &context);
    ~ToolBox() override;

    //! In the order of the buttons.
    QVector<Tool *> Tools() const;
    //! Null when there is none of that id.
    Tool *ToolById(const QString &id) const;
    //! Never null; at first the one that draws.
    Tool *InHand() const { return m_inHand; }
    //! Ends what is in hand and takes the other tool. False, and nothing happens, for an unknown
    //! id.
    bool Choose(const QString &id);

    //! As of the tool in hand. Cancel also before undo, redo and another scene.
    void Cancel() { m_inHand->Cancel(); }
    void Finish() { m_inHand->Finish(); }
    const OrvaneCurve *HoveredCurve() const { return m_inHand->HoveredCurve(); }

    void Handle(const PointerEvent &event) override { m_inHand->Handle(event); }
    void Leave() override { m_inHand->Leave(); }
    LeftDrag UseOfLeftDrag() const override { return m_inHand->UseOfLeftDrag(); }
    QCursor Cursor() const override { return m_inHand->Cursor(); }
    QVector<ViewLine> Lines() const override { return m_inHand->Lines(); }
    QVector<ViewShape> Shapes() const override { return m_inHand->Shapes(); }

private:
    std::vector<std::unique_ptr<Tool>> m_tools;
    Tool *m_inHand;
};

} // namespace orvane
