// SPDX-License-Identifier: MIT
#include "host/desktop/tools/toolbox.h"

#include "host/desktop/tools/drawtool.h"
#include "host/desktop/tools/erasetool.h"
#include "host/desktop/tools/extendtool.h"
#include "host/desktop/tools/jointool.h"
#include "host/desktop/tools/looptool.h"
#include "host/desktop/tools/movetool.h"
#include "host/desktop/tools/sectiontool.h"
#include "host/desktop/tools/selecttool.h"
#include "host/desktop/tools/smoothtool.h"

namespace orvane {

ToolBox::ToolBox(ToolContext &context)
{
    m_tools.push_back(std::make_unique<DrawTool>(context));
    m_tools.push_back(std::make_unique<SectionTool>(context));
    m_tools.push_back(std::make_unique<LoopTool>(context));
    m_tools.push_back(std::make_unique<EraseTool>(context));
    m_tools.push_back(std::make_unique<ExtendTool>(context));
    m_tools.push_back(std::make_unique<JoinTool>(context));
    m_tools.push_back(std::make_unique<MoveTool>(context));
    m_tools.push_back(std::make_unique<SmoothTool>(context));
    m_tools.push_back(std::make_unique<SelectTool>(context, SelectTool::Box));
    m_tools.push_back(std::make_unique<SelectTool>(context, SelectTool::Lasso));
    m_inHand = m_tools.front().get();
}

ToolBox::~ToolBox() = default;

QVector<Tool *> ToolBox::Tools() const
{
    QVector<Tool *> tools;
    for (const std::unique_ptr<Tool> &tool : m_tools)
        tools.append(tool.get());
    return tools;
}

Tool *ToolBox::ToolById(const QString &id) const
{
    for (const std::unique_ptr<Tool> &tool : m_tools) {
        if (tool->Description().id == id)
            return tool.get();
    }
    return nullptr;
}

bool ToolBox::Choose(const QString &id)
{
    Tool *tool = ToolById(id);
    if (!tool)
        return false;
    if (tool != m_inHand) {
        m_inHand->Leave();
        m_inHand = tool;
    }
    return true;
}

} // namespace orvane
