// SPDX-License-Identifier: MIT
#pragma once

#include "plugin/overlayprograms.h"

#include <orvane/base/attribute.h>
#include <orvane/base/eventgate.h>
#include <orvane/base/node.h>

#include <QObject>
#include <QPointer>
#include <QString>

class ManualRetopoDialog;

//! The tool node: brings up the settings dialog, creates a mesh when the dialog asks for it,
//! records that and replays it, and draws the graph of the latest creation over the view.
class Quillmesh : public QObject, public orvane::Node
{
    Q_OBJECT

public:
    Quillmesh();
    //! The dialog is the main window's and stays. The overlay's programs go.
    ~Quillmesh() override;

    //! Brings the dialog up; there is none any more once the main window is gone.
    void showDialog();

    //! Replays a command that the kernel was given.
    void OnNodeEvent(const orvane::Attribute &attribute, orvane::NodeEventType type) override;
    //! Draws the overlay after a render, while it is switched on.
    void OnEvent(const orvane::EventGate &gate) override;
    const orvane::ClassDesc *RuntimeClass() const override;
    static const orvane::ClassDesc *StaticClass();

public slots:
    void createMesh();
    void renderIntersectionsCheckBox(int state);
    void dialogClosed();

private:
    void setRenderIntersections(bool on);

    orvane::EventGate m_endRender;
    OverlayPrograms m_overlay;
    QPointer<ManualRetopoDialog> m_dialog; // the main window's
    bool m_renderIntersections = false;
    orvane::AttributeInstance<QString> m_nextCommand; // "nextcomand" (sic)
};
