// SPDX-License-Identifier: MIT
#include "tests/plugin/toolscene.h"

#include "operation/manualretopooperation.h"
#include "plugin/overlaylist.h"
#include "plugin/quillmesh.h"
#include "ui/manualretopodialog.h"

#include <orvane/base/nodetable.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>

using orvane::OrvaneCurve;

WindowInterface::WindowInterface() : window(std::make_unique<QWidget>()) {}

WindowInterface::~WindowInterface() = default;

void WindowInterface::HUDMessageShow(const QString &text, int type, int milliseconds)
{
    RecordingInterface::HUDMessageShow(text, type, milliseconds);
    if (whenMessageShows)
        whenMessageShows();
}

void WindowInterface::ProgressStart(const QString &text, qint64 maximum, double step, int flags)
{
    RecordingInterface::ProgressStart(text, maximum, step, flags);
    if (whenGenerating)
        whenGenerating();
}

void WindowInterface::RefreshUI()
{
    RecordingInterface::RefreshUI();
    if (whenCreated)
        whenCreated();
}

void WindowInterface::SetBusy(bool busy)
{
    busyTurns += busy;
}

QStringList WindowInterface::messageTexts() const
{
    QStringList texts;
    for (const Message &message : messages)
        texts.append(message.text);
    return texts;
}

ToolScene::ToolScene()
{
    makeTool();
}

ToolScene::~ToolScene()
{
    OverlayList::instance().replace({});
}

void ToolScene::makeTool()
{
    tool.reset();
    delete dialog();
    tool = std::make_unique<Quillmesh>();
}

ManualRetopoDialog *ToolScene::dialog() const
{
    return interface.window->findChild<ManualRetopoDialog *>();
}

void ToolScene::type(const char *field, const QString &text)
{
    auto *edit = dialog()->findChild<QLineEdit *>(QLatin1String(field));
    ASSERT_NE(edit, nullptr) << field;
    edit->setText(text);
}

void ToolScene::setIgnoreSelfIntersections(bool ignore)
{
    auto *box = dialog()->findChild<QCheckBox *>(QStringLiteral("ignoreSelfIntersections"));
    ASSERT_NE(box, nullptr);
    box->setChecked(ignore);
}

void ToolScene::press(const char *button)
{
    auto *found = dialog()->findChild<QAbstractButton *>(QLatin1String(button));
    ASSERT_NE(found, nullptr) << button;
    found->click();
}

void ToolScene::replay(const QString &command)
{
    orvane::Kernel()->CommandAttribute().SetValue(command);
}

QString ToolScene::lastCommand()
{
    const QStringList &commands = orvane::Kernel()->RecordedCommands();
    return commands.isEmpty() ? QString() : commands.last();
}

OperationState ToolScene::lastOperation()
{
    const QVector<orvane::UndoStep> &steps = orvane::Kernel()->Undos().Steps();
    ManualRetopoOperation operation;
    EXPECT_FALSE(steps.isEmpty()) << "no operation made anything";
    if (!steps.isEmpty()) {
        EXPECT_EQ(steps.last().last().className, QStringLiteral("ManualRetopoOperation"));
        EXPECT_TRUE(readInto(operation, steps.last().last().bytes));
    }
    return stateOf(operation);
}

int ToolScene::undoSteps()
{
    return orvane::Kernel()->Undos().StepCount();
}

QVector<orvane::Node *> ToolScene::curvesOf(const OperationState &operation)
{
    QVector<orvane::Node *> curves;
    for (int id : operation.curveReferences)
        curves.append(orvane::NodeTable::Instance().Find(id));
    return curves;
}

QList<OrvaneCurve *> ToolScene::drawCross(Sheet &sheet)
{
    return {sheet.loop({{1, 4, 0}, {9, 4, 0}, {9, 6, 0}, {1, 6, 0}}),
            sheet.loop({{4, 1, 0}, {6, 1, 0}, {6, 9, 0}, {4, 9, 0}})};
}

OrvaneCurve *ToolScene::drawPoint(Sheet &sheet)
{
    return sheet.stroke({{5, 5, 0}});
}
