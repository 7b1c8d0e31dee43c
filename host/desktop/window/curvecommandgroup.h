// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/window/commandgroup.h"

class QActionGroup;

namespace orvane {

//! The Curves menu: the tools, and what can be done to selected curves.
class CurveCommandGroup : public CommandGroup
{
    Q_OBJECT

public:
    explicit CurveCommandGroup(const Workbench &bench);

    //! The tools, one of them checked; for the tool bar.
    QList<QAction *> ToolActions() const;
    void ChooseTool(const QString &id);

signals:
    void toolChosen();
    //! The tool settings changed.
    void settingsChanged();

private:
    void addTools();
    void addStrokeKeys();
    void addShapes();
    void addMirrors();
    void addShowing();
    QAction *addForView(const ActionWords &words, int position, const std::function<void()> &run);

    QActionGroup *m_tools;
};

} // namespace orvane
