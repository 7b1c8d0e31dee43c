// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

namespace orvane {

class Document;
class ToolBox;
class ViewportWidget;

//! The heads-up line of the view: file, faces, tool and frame rate.
class HudLine : public QObject
{
    Q_OBJECT

public:
    //! All of them outlive it.
    HudLine(ViewportWidget *viewport, const Document *document, const ToolBox *tools);

    QString Text() const;
    void Refresh();

private:
    void noteFrame(double milliseconds);

    ViewportWidget *m_viewport;
    const Document *m_document;
    const ToolBox *m_tools;
    QTimer m_timer;
    double m_frame = 0.0; // milliseconds, evened out; 0: none yet
    int m_faces = 0;
};

} // namespace orvane
