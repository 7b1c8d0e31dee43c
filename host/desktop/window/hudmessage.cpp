// SPDX-License-Identifier: MIT
#include "host/desktop/window/hudmessage.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace orvane {

namespace {

const int FadingTime = 400; // milliseconds
const int Margin = 14;      // pixels around the text
const int Distance = 52;    // pixels from the top: below the heads-up line
const int LargestWidth = 640;

const QColor Ground(24, 27, 31, 225);
const QColor PlainText(245, 246, 248);
const QColor Warning(255, 176, 59);

} // namespace

HudMessage::HudMessage(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("hudMessage"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { m_fading.start(); });
    m_fading.setDuration(FadingTime);
    m_fading.setStartValue(1.0);
    m_fading.setEndValue(0.0);
    connect(&m_fading, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setStrength(value.toDouble()); });
    connect(&m_fading, &QVariantAnimation::finished, this, &QWidget::hide);
    parent->installEventFilter(this);
}

void HudMessage::Show(const QString &text, bool warning, int milliseconds)
{
    m_fading.stop();
    m_text = text;
    m_warning = warning;
    setAccessibleName(text);
    setStrength(1.0);
    place();
    show();
    raise();
    m_timer.start(std::max(milliseconds, 0));
}

void HudMessage::TakeDown()
{
    m_timer.stop();
    m_fading.stop();
    hide();
}

bool HudMessage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent() && event->type() == QEvent::Resize && IsUp())
        place();
    return QWidget::eventFilter(watched, event);
}

void HudMessage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_strength);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Ground);
    painter.drawRoundedRect(rect(), 6.0, 6.0);
    if (m_warning) {
        painter.setBrush(Warning);
        painter.drawRoundedRect(QRectF(0.0, 0.0, 5.0, height()), 2.5, 2.5);
    }
    painter.setPen(m_warning ? Warning.lighter(125) : PlainText);
    painter.drawText(rect().adjusted(Margin, Margin / 2, -Margin, -Margin / 2),
                     Qt::AlignCenter | Qt::TextWordWrap, m_text);
}

void HudMessage::place()
{
    const int widest =
        std::max(std::min(LargestWidth, parentWidget()->width() - 2 * Margin) - 2 * Margin, 1);
    const QRect text =
        fontMetrics().boundingRect(QRect(0, 0, widest, 10000), Qt::TextWordWrap, m_text);
    resize(text.width() + 2 * Margin + 2, text.height() + Margin + 2);
    move((parentWidget()->width() - width()) / 2, Distance);
}

void HudMessage::setStrength(double strength)
{
    m_strength = strength;
    update();
}

} // namespace orvane
