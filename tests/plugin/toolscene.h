// SPDX-License-Identifier: MIT
#pragma once

#include "tests/operation/operationscene.h"
#include "tests/operation/operationstate.h"
#include "tests/support/countingview.h"
#include "tests/support/recordinginterface.h"

#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

class ManualRetopoDialog;
class Quillmesh;

//! An interface with a main window, whose heads-up messages stay up once shown.
class WindowInterface : public RecordingInterface
{
public:
    WindowInterface();
    ~WindowInterface() override;

    QWidget *MainWindow() const override { return window.get(); }
    bool IsHUDMessageUp() const override { return !messages.isEmpty(); }
    void HUDMessageShow(const QString &text, int type, int milliseconds) override;
    void ProgressStart(const QString &text, qint64 maximum, double step, int flags) override;
    void RefreshUI() override;
    void SetBusy(bool busy) override;

    QStringList messageTexts() const;

    std::unique_ptr<QWidget> window;
    int busyTurns = 0; // how often the user was made to wait
    // Called at these moments when set.
    std::function<void()> whenMessageShows;
    std::function<void()> whenGenerating;
    std::function<void()> whenCreated;
};

//! Fixture of tests on the tool node: the scene of operations, a window, a view and one tool node.
class ToolScene : public OperationScene
{
protected:
    ToolScene();
    ~ToolScene() override;

    //! Makes the tool node and its dialog anew.
    void makeTool();
    ManualRetopoDialog *dialog() const;

    //! Types the text into the dialog's field of that name.
    void type(const char *field, const QString &text);
    void setIgnoreSelfIntersections(bool ignore);
    //! Presses the button of that name.
    void press(const char *button);
    void createMesh() { press("createMesh"); }

    //! As a host replays a recorded line.
    static void replay(const QString &command);
    static QString lastCommand();

    //! The operation of the latest undo step as it was stored, done.
    static OperationState lastOperation();
    static int undoSteps();
    //! The curves that this operation had.
    static QVector<orvane::Node *> curvesOf(const OperationState &operation);

    //! Two closed curves that cross at four places: together they make a face, alone none.
    static QList<orvane::OrvaneCurve *> drawCross(Sheet &sheet);
    //! A curve of one point, which tools cannot use.
    static orvane::OrvaneCurve *drawPoint(Sheet &sheet);

    WindowInterface interface;
    CountingView view;
    std::unique_ptr<Quillmesh> tool;
};
