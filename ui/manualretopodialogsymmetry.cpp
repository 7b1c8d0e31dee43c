// SPDX-License-Identifier: MIT
// The symmetry choices of the dialog. They work, but stand in no layout: nothing shows them yet.
#include "ui/manualretopodialog.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QRadioButton>

void ManualRetopoDialog::createSymmetrySection()
{
    const QStringList x{tr("Left/Right (X) Symmetry:"), tr("Mirror Left to Right"),
                        tr("Mirror Right to Left"), tr("X")};
    const QStringList y{tr("Top/Bottom (Y) Symmetry:"), tr("Mirror Bottom to Top"),
                        tr("Mirror Top to Bottom"), tr("Y")};
    const QStringList z{tr("Front/Back (Z) Symmetry:"), tr("Mirror Back to Front"),
                        tr("Mirror Front to Back"), tr("Z")};
    auto axisRow = std::make_unique<QHBoxLayout>();
    m_axisLabel = new QLabel(tr("Set Topological Axis to:"));
    m_axisLabel->setEnabled(false);
    axisRow->addWidget(m_axisLabel);
    for (const QStringList &texts : {x, y, z})
        addSymmetryAxis(axisRow.get(), texts);
    keepUnshown(std::move(axisRow));
}

// texts: the row's label, its two choices, the axis.
void ManualRetopoDialog::addSymmetryAxis(QBoxLayout *axisRow, const QStringList &texts)
{
    auto row = std::make_unique<QHBoxLayout>();
    auto *choices = new QComboBox;
    for (const QString &choice : {tr("Off"), texts[1], texts[2]})
        choices->addItem(QIcon(), choice);
    connect(choices, QOverload<int>::of(&QComboBox::activated), this,
            &ManualRetopoDialog::refreshRadio);
    row->addWidget(new QLabel(texts[0]));
    row->addWidget(choices);
    keepUnshown(std::move(row));

    auto *axis = new QRadioButton(texts[3]);
    axis->setEnabled(false);
    axisRow->addWidget(axis);
    m_symmetryControls->append({choices, axis});
}

int ManualRetopoDialog::symmetry(int axis) const
{
    return symmetrySign(m_symmetryControls->at(axis).first->currentIndex());
}

int ManualRetopoDialog::symmetrySign(int index)
{
    if (index == 1)
        return 1;
    return index == 2 ? -1 : 0;
}

int ManualRetopoDialog::topologicalAxis() const
{
    for (int i = 0; i < m_symmetryControls->size(); ++i) {
        if (m_symmetryControls->at(i).second->isChecked())
            return i + 1;
    }
    return 0;
}

// An axis of a mirror can be chosen, and one of them always is.
void ManualRetopoDialog::refreshRadio()
{
    bool isOneChecked = false;
    QRadioButton *candidate = nullptr;
    for (const SymmetryControl &control : qAsConst(*m_symmetryControls)) {
        QRadioButton *axis = control.second;
        if (control.first->currentIndex() == 0) {
            axis->setAutoExclusive(false); // or the last checked one of a group stays checked
            axis->setChecked(false);
            axis->setAutoExclusive(true);
            axis->setEnabled(false);
        } else if (axis->isEnabled() && axis->isChecked()) {
            isOneChecked = true;
        } else {
            axis->setEnabled(true);
            candidate = axis;
        }
    }
    if (!isOneChecked && !candidate) {
        m_axisLabel->setEnabled(false);
        return;
    }
    if (!isOneChecked)
        candidate->setChecked(true);
    m_axisLabel->setEnabled(true);
}
