// SPDX-License-Identifier: MIT
#include "ui/manualretopodialog.h"

#include "ui/retopologyhelpdialog.h"

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>

#include <QCheckBox>
#include <QDoubleValidator>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <limits>

namespace {

const int FewestEdges = 3;          // of a face
const double MostPercent = 10000.0; // of any tolerance
const int PercentDecimals = 2;      // count
const float NoDistance = -1.0f;     // percent; stored for a text that is no number
const float NoOverrun = 0.0f;       // percent; stored for a text that is no number
const int StretchedRow = 4;         // of the parameters
const int ButtonGap = 8;            // pixels above the buttons

// A number is written the same way in every language, as in a recorded command.
QLocale numberLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

float numberOr(float fallback, const QString &text)
{
    bool ok = false;
    const float number = numberLocale().toFloat(text, &ok);
    return ok ? number : fallback;
}

// A float can be greater than any int, or no number at all.
int truncated(float number)
{
    const double most = std::numeric_limits<int>::max();
    const double least = std::numeric_limits<int>::min();
    return number == number ? int(qBound(least, double(number), most)) : 0;
}

} // namespace

ManualRetopoDialog::ManualRetopoDialog(QWidget *parent)
    : QDialog(parent), m_symmetryControls(new QList<SymmetryControl>)
{
    setObjectName(QStringLiteral("ManualRetopoDialog"));
    setWindowTitle(tr("Create Mesh from Curves"));
    auto *layout = new QVBoxLayout(this);
    createSymmetrySection();
    layout->addLayout(createParameters());
    std::unique_ptr<QBoxLayout> renderRow = createRenderRow();
    if (orvane::Kernel()->IsTestModeOn())
        layout->addLayout(renderRow.release());
    else
        keepUnshown(std::move(renderRow));
    layout->addLayout(createButtons());
}

ManualRetopoDialog::~ManualRetopoDialog() = default;

QGridLayout *ManualRetopoDialog::createParameters()
{
    auto *grid = new QGridLayout;
    addMaximumEdges(grid);
    addMergeDistance(grid);
    addIntersectionTolerance(grid);
    addOverrunTolerance(grid);
    addSelfIntersections(grid);
    grid->setRowStretch(StretchedRow, 1);
    return grid;
}

void ManualRetopoDialog::addMaximumEdges(QGridLayout *grid)
{
    QLineEdit *edit =
        addNumber(grid, 0, QStringLiteral("Maximum Edges in a Face: "),
                  tr("If the curve intersections you <br> draw describe a boundary comprising "
                     "more than this number of edges, Orvane will assume this is intended to be "
                     "a hole in the mesh, and not a face."),
                  QString::number(m_maximumEdges), &ManualRetopoDialog::onMaximumEdgesChanged);
    edit->setObjectName(QStringLiteral("maximumEdges"));
    auto *validator = new QIntValidator(edit);
    validator->setLocale(numberLocale());
    validator->setBottom(FewestEdges);
    edit->setValidator(validator);
}

void ManualRetopoDialog::addMergeDistance(QGridLayout *grid)
{
    QLineEdit *edit =
        addPercentage(grid, 1, QStringLiteral("Merge vertices closer than "), QString(),
                      m_mergeDistance, &ManualRetopoDialog::onMergeDistanceChanged);
    edit->setObjectName(QStringLiteral("mergeDistance"));
}

void ManualRetopoDialog::addIntersectionTolerance(QGridLayout *grid)
{
    QLineEdit *edit = addPercentage(
        grid, 2, QStringLiteral("Intersection Tolerance: "),
        tr("Some 3d curves can appear <br> to cross each other while in fact they have a slight "
           "separation between them. This sets the largest distance at which such a crossing "
           "will be detected as an intersection."),
        m_intersectionTolerance, &ManualRetopoDialog::onIntersectionToleranceChanged);
    edit->setObjectName(QStringLiteral("intersectionTolerance"));
}

void ManualRetopoDialog::addOverrunTolerance(QGridLayout *grid)
{
    QLineEdit *edit = addPercentage(
        grid, 3, QStringLiteral("Overrun Tolerance: "),
        tr("Tells Orvane how far to extend curves while searching <br> for intersections. This "
           "can help when the end of one curve is barely touching the middle of another."),
        m_overrunTolerance, &ManualRetopoDialog::onOverrunChanged);
    edit->setObjectName(QStringLiteral("overrunTolerance"));
}

void ManualRetopoDialog::addSelfIntersections(QGridLayout *grid)
{
    auto *label = new QLabel(QStringLiteral("Ignore Self-intersections: "), this);
    label->setToolTip(tr("Turn this on to prevent Orvane<br> from counting curve<br> "
                         "self-intersections as new vertices<br> when creating a mesh"));
    grid->addWidget(label, 4, 0, Qt::AlignRight);

    auto *box = new QCheckBox(this);
    box->setObjectName(QStringLiteral("ignoreSelfIntersections"));
    box->setChecked(!m_useSelfIntersections);
    connect(box, &QCheckBox::stateChanged, this, &ManualRetopoDialog::onSelfIntersectionCheck);
    label->setBuddy(box);
    grid->addWidget(box, 4, 1, Qt::AlignLeft);
}

QLineEdit *ManualRetopoDialog::addNumber(QGridLayout *grid, int row, const QString &name,
                                         const QString &toolTip, const QString &text, TextSlot slot)
{
    auto *label = new QLabel(name, this);
    label->setToolTip(toolTip);
    grid->addWidget(label, row, 0, Qt::AlignRight);

    auto *edit = new QLineEdit(text, this);
    connect(edit, &QLineEdit::textChanged, this, slot);
    label->setBuddy(edit);
    grid->addWidget(edit, row, 1, Qt::AlignCenter);
    return edit;
}

QLineEdit *ManualRetopoDialog::addPercentage(QGridLayout *grid, int row, const QString &name,
                                             const QString &toolTip, float value, TextSlot slot)
{
    QLineEdit *edit = addNumber(grid, row, name, toolTip, QString::number(value), slot);
    auto *validator = new QDoubleValidator(0.0, MostPercent, PercentDecimals, edit);
    validator->setLocale(numberLocale());
    validator->setNotation(QDoubleValidator::StandardNotation);
    edit->setValidator(validator);
    grid->addWidget(new QLabel(QStringLiteral("% of average edge length"), this), row, 2,
                    Qt::AlignLeft);
    return edit;
}

std::unique_ptr<QBoxLayout> ManualRetopoDialog::createRenderRow()
{
    auto row = std::make_unique<QHBoxLayout>();
    auto *label = new QLabel(QStringLiteral("Render Intersections: "));
    label->setToolTip(tr("Renders the computed curve <br> intersections. Select Create Mesh to see "
                         "the intersections."));
    row->addWidget(label, 0, Qt::AlignLeft);

    auto *box = new QCheckBox;
    box->setObjectName(QStringLiteral("renderIntersections"));
    connect(box, &QCheckBox::stateChanged, this, &ManualRetopoDialog::onRenderIntersectionCheck);
    label->setBuddy(box);
    row->addWidget(box, 1); // right beside its label
    return row;
}

QBoxLayout *ManualRetopoDialog::createButtons()
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, ButtonGap, 0, 0);
    auto *help = new QPushButton(tr("Help..."), this);
    help->setObjectName(QStringLiteral("help"));
    connect(help, &QPushButton::clicked, this, &ManualRetopoDialog::bringUpHelp);
    row->addWidget(help, 0, Qt::AlignLeft);
    row->addStretch(1);

    auto *create = new QPushButton(tr("Create Mesh"), this);
    create->setObjectName(QStringLiteral("createMesh"));
    create->setDefault(true); // Enter after typing a number
    connect(create, &QPushButton::clicked, this, &ManualRetopoDialog::onCreateMesh);
    row->addWidget(create, 0, Qt::AlignRight);

    auto *close = new QPushButton(tr("Close"), this);
    close->setObjectName(QStringLiteral("close"));
    connect(close, &QPushButton::clicked, this, &ManualRetopoDialog::onOk);
    row->addWidget(close, 0, Qt::AlignRight);
    return row;
}

// What is built but stands in no layout of the window has no parent that would free it.
void ManualRetopoDialog::keepUnshown(std::unique_ptr<QBoxLayout> row)
{
    for (int i = 0; i < row->count(); ++i)
        m_unshownWidgets.emplace_back(row->itemAt(i)->widget());
    m_unshownRows.push_back(std::move(row));
}

void ManualRetopoDialog::bringUpHelp()
{
    auto *help = new RetopologyHelpDialog(orvane::Kernel()->Interface()->MainWindow());
    help->setAttribute(Qt::WA_DeleteOnClose);
    help->show();
    help->activateWindow();
}

void ManualRetopoDialog::onMaximumEdgesChanged(const QString &text)
{
    m_maximumEdges = truncated(numberOr(0.0f, text));
}

void ManualRetopoDialog::onMergeDistanceChanged(const QString &text)
{
    m_mergeDistance = numberOr(NoDistance, text);
}

void ManualRetopoDialog::onIntersectionToleranceChanged(const QString &text)
{
    m_intersectionTolerance = numberOr(NoDistance, text);
}

void ManualRetopoDialog::onOverrunChanged(const QString &text)
{
    m_overrunTolerance = numberOr(NoOverrun, text);
}

void ManualRetopoDialog::onCreateMesh()
{
    emit createMesh();
}

void ManualRetopoDialog::onRenderIntersectionCheck(int state)
{
    emit renderIntersectionsCheckBox(state);
}

void ManualRetopoDialog::onSelfIntersectionCheck(int state)
{
    m_useSelfIntersections = state == Qt::Unchecked;
}

void ManualRetopoDialog::onOk()
{
    emit dialogClosed();
    close();
}
