// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;

namespace orvane {

struct ToolSettings;

//! What people set for the tools while they draw.
class StrokeBar : public QToolBar
{
    Q_OBJECT

public:
    //! The settings outlive it.
    StrokeBar(ToolSettings *settings, QWidget *parent);

    //! Shows the settings as they are.
    void Refresh();

signals:
    void changed();

private:
    QDoubleSpinBox *addNumber(const char *name, const QString &text, const QString &tip,
                              double least, double most, double step, int decimals);
    void take();

    ToolSettings *m_settings;
    QDoubleSpinBox *m_spacing;
    QDoubleSpinBox *m_smoothing;
    QDoubleSpinBox *m_brush;
    QComboBox *m_mirror;
    QCheckBox *m_snap;
    bool m_filling = false;
};

} // namespace orvane
