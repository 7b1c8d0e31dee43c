// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

namespace orvane {

//! A message over the view that fades by itself. It lets the mouse through, and stays at the top
//! of its parent in the middle. While the process is busy its time stands still, so that a message
//! from within a long operation is still read.
class HudMessage : public QWidget
{
    Q_OBJECT

public:
    explicit HudMessage(QWidget *parent);

    bool IsUp() const { return isVisibleTo(parentWidget()); }
    const QString &Text() const { return m_text; }
    bool IsWarning() const { return m_warning; }
    //! 1: not faded at all.
    double Strength() const { return m_strength; }

    //! Takes the place of the message before. milliseconds: until it begins to fade.
    void Show(const QString &text, bool warning, int milliseconds);
    void TakeDown();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void place();
    void setStrength(double strength);

    QString m_text;
    bool m_warning = false;
    double m_strength = 1.0;
    QTimer m_timer;
    QVariantAnimation m_fading;
};

} // namespace orvane
