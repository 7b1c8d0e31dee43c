// SPDX-License-Identifier: MIT
#include "host/desktop/window/strokebar.h"

#include "host/desktop/tools/toolcontext.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QScopedValueRollback>

namespace orvane {

namespace {

const double Percent = 100.0;

// Takes numbers with a point, as the dialogs do in every language. A comma becomes one: read as a
// mark of thousands, it would make 15 of 1,5.
class NumberBox : public QDoubleSpinBox
{
public:
    explicit NumberBox(QWidget *parent) : QDoubleSpinBox(parent) { setLocale(QLocale::c()); }

    QValidator::State validate(QString &text, int &place) const override
    {
        text.replace(QLatin1Char(','), QLatin1Char('.'));
        return QDoubleSpinBox::validate(text, place);
    }
};

} // namespace

StrokeBar::StrokeBar(ToolSettings *settings, QWidget *parent)
    : QToolBar(tr("Stroke"), parent),
      m_settings(settings),
      m_spacing(addNumber("strokeSpacing", tr("Spacing"),
                          tr("From point to point, in percent of the mesh's size"), 0.1, 5.0, 0.1,
                          1)),
      m_smoothing(addNumber("strokeSmoothing", tr("Smoothing"),
                            tr("How much jitter is evened out; 0 for none"), 0.0, 20.0, 0.5, 1)),
      m_brush(addNumber("brushRadius", tr("Brush"),
                        tr("Radius of the erasing, moving and smoothing brush, in pixels"), 4.0,
                        200.0, 2.0, 0)),
      m_mirror(new QComboBox(this)),
      m_snap(new QCheckBox(tr("Run past curves"), this))
{
    setObjectName(QStringLiteral("strokeBar"));
    setMovable(false);
    m_mirror->setObjectName(QStringLiteral("mirrorAxis"));
    m_mirror->addItems({tr("No mirror"), tr("Mirror X"), tr("Mirror Y"), tr("Mirror Z")});
    m_mirror->setToolTip(tr("What is drawn appears on the other side, too"));
    m_mirror->setAccessibleName(tr("Mirror while drawing"));
    addSeparator();
    addWidget(m_mirror);
    addSeparator();
    m_snap->setObjectName(QStringLiteral("snap"));
    m_snap->setToolTip(
        tr("A stroke that ends at a curve runs a little past it, so that they cross"));
    addWidget(m_snap);
    Refresh();
    connect(m_mirror, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &StrokeBar::take);
    connect(m_snap, &QCheckBox::toggled, this, &StrokeBar::take);
}

void StrokeBar::Refresh()
{
    const QScopedValueRollback<bool> filling(m_filling, true);
    m_spacing->setValue(double(m_settings->spacing) * Percent);
    m_smoothing->setValue(double(m_settings->smoothing));
    m_brush->setValue(m_settings->brushRadius);
    m_mirror->setCurrentIndex(m_settings->mirrorAxis + 1);
    m_snap->setChecked(m_settings->snap);
}

QDoubleSpinBox *StrokeBar::addNumber(const char *name, const QString &text, const QString &tip,
                                     double least, double most, double step, int decimals)
{
    auto *label = new QLabel(QStringLiteral(" %1 ").arg(text), this);
    auto *box = new NumberBox(this);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(text);
    box->setToolTip(tip);
    box->setDecimals(decimals);
    box->setRange(least, most);
    box->setSingleStep(step);
    label->setBuddy(box);
    addWidget(label);
    addWidget(box);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &StrokeBar::take);
    return box;
}

void StrokeBar::take()
{
    if (m_filling)
        return;
    m_settings->spacing = float(m_spacing->value() / Percent);
    m_settings->smoothing = float(m_smoothing->value());
    m_settings->brushRadius = m_brush->value();
    m_settings->mirrorAxis = m_mirror->currentIndex() - 1;
    m_settings->snap = m_snap->isChecked();
    emit changed();
}

} // namespace orvane
