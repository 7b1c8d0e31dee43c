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

const int Steps = 1000;    // of the bar: the values themselves are 64-bit
const int BarWidth = 180;  // pixels
const int ShowAgain = 40;  // milliseconds between two looks at the bar
const int WaitFirst = 150; // milliseconds: sooner, a bar would only flash
const int SameWork = 100;  // milliseconds between the phases of one operation
const int WorkPerShow = 4; // times as long as the window took to paint

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

void ProgressDisplay::Start(const QString &text, qint64 maximum)
{
    if (!m_running && (!m_sinceEnd.isValid() || m_sinceEnd.elapsed() > SameWork))
        m_sinceBegin.start();
    m_running = true;
    m_maximum = std::max<qint64>(maximum, 1);
    m_label->setText(text);
    m_bar->setAccessibleDescription(text);
    m_part = 0.0;
    showNow();
}

void ProgressDisplay::Set(qint64 value)
{
    if (!m_running)
        return;
    m_part = std::clamp(double(value) / double(m_maximum), 0.0, 1.0);
    showNow();
}

void ProgressDisplay::End()
{
    m_running = false;
    m_sinceEnd.start();
    hide();
}

bool ProgressDisplay::isTimeToShow() const
{
    return m_sinceBegin.elapsed() >= WaitFirst
           && (!m_sinceShown.isValid()
               || m_sinceShown.elapsed()
                      >= std::max<qint64>(ShowAgain, WorkPerShow * m_timeToShow));
}

// Painting goes through events of the window system; those of the user stay in their queue. The bar
// learns its value only here: it paints itself, and the window with it, at each change.
void ProgressDisplay::showNow()
{
    if (m_showing || !isTimeToShow())
        return;
    const QScopedValueRollback<bool> showing(m_showing, true);
    QElapsedTimer time;
    time.start();
    m_bar->setValue(int(m_part * Steps));
    show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents
                                    | QEventLoop::ExcludeSocketNotifiers);
    repaint();
    m_timeToShow = time.elapsed();
    m_sinceShown.start();
}

} // namespace orvane
