// SPDX-License-Identifier: MIT
#include "host/desktop/window/progressdisplay.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QScopedValueRollback>

#include <algorithm>

namespace orvane {

namespace {

const int Steps = 1000;   // of the bar: the values themselves are 64-bit
const int BarWidth = 180; // pixels
const int ShowAgain = 40; // milliseconds between two looks at the bar

} // namespace

ProgressDisplay::ProgressDisplay(QWidget *parent)
    : QWidget(parent), m_label(new QLabel(this)), m_bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("progress"));
    m_label->setObjectName(QStringLiteral("progressText"));
    m_bar->setObjectName(QStringLiteral("progressBar"));
    m_bar->setRange(0, Steps);
    m_bar->setFixedWidth(BarWidth);
    m_bar->setAccessibleName(tr("Progress"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_label);
    layout->addWidget(m_bar);
    hide();
}

QString ProgressDisplay::Text() const
{
    return m_label->text();
}

double ProgressDisplay::Part() const
{
    return double(m_bar->value()) / Steps;
}

void ProgressDisplay::Start(const QString &text, qint64 maximum)
{
    m_running = true;
    m_maximum = std::max<qint64>(maximum, 1);
    m_label->setText(text);
    m_bar->setAccessibleDescription(text);
    m_bar->setValue(0);
    show();
    showNow(true);
}

void ProgressDisplay::Set(qint64 value)
{
    if (!m_running)
        return;
    const double part = double(value) / double(m_maximum);
    m_bar->setValue(int(std::clamp(part, 0.0, 1.0) * Steps));
    showNow(false);
}

void ProgressDisplay::End()
{
    m_running = false;
    hide();
}

// Painting goes through events of the window system; those of the user stay in their queue.
void ProgressDisplay::showNow(bool always)
{
    if (m_showing || (!always && m_sinceShown.isValid() && m_sinceShown.elapsed() < ShowAgain))
        return;
    const QScopedValueRollback<bool> showing(m_showing, true);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents
                                    | QEventLoop::ExcludeSocketNotifiers);
    repaint();
    m_sinceShown.restart();
}

} // namespace orvane
