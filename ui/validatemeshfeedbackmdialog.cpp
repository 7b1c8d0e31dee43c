// SPDX-License-Identifier: MIT
#include "ui/validatemeshfeedbackmdialog.h"

#include "ui/meshfaultrows.h"

#include <orvane/widgets/picture.h>

#include <QFrame>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

const int ListMinimumWidth = 400; // pixels
const int TextColumns = 4;        // of the grid, beside the one of the icons
const int PreferredWidth = 560;   // pixels; about 70 characters of text beside an icon
const int RowSpacing = 12;        // pixels, also between icon and text
const double ScreenPart = 0.5;    // of its height, at most for the list

} // namespace

ValidateMeshFeedbackmDialog::ValidateMeshFeedbackmDialog(QWidget *parent, const QString &meshName,
                                                         int faults)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("ValidateMeshFeedbackmDialog"));
    auto *layout = new QVBoxLayout(this);
    addHeading(layout, meshName);
    QScrollArea *list = createFaultList(faults);
    layout->addWidget(list);
    addButtons(layout);
    fitTo(list);
}

void ValidateMeshFeedbackmDialog::addHeading(QBoxLayout *layout, const QString &meshName)
{
    auto *header =
        new QLabel(tr("<strong><font size=\"5\">Retopologizing Problem</font></strong>"), this);
    header->setAlignment(Qt::AlignHCenter);
    layout->addWidget(header);

    auto *message = new QLabel(tr("The mesh %1 contains errors. ").arg(meshName), this);
    // A name may hold what looks like a tag.
    message->setTextFormat(Qt::PlainText);
    layout->addWidget(message);
}

QScrollArea *ValidateMeshFeedbackmDialog::createFaultList(int faults)
{
    auto *grid = new QGridLayout;
    grid->setSpacing(RowSpacing);
    for (const MeshFaultRow &row : meshFaultRows()) {
        if (faults & row.bit)
            addFaultRow(grid, QLatin1String(row.icon), tr(row.text));
    }
    // What room is left over goes to the texts, and below the last row.
    grid->setColumnStretch(TextColumns, 1);
    grid->setAlignment(Qt::AlignTop);
    auto *frame = new QFrame;
    frame->setMinimumWidth(ListMinimumWidth);
    frame->setLayout(grid);

    auto *scrollArea = new QScrollArea(this);
    scrollArea->setFrameStyle(0);
    scrollArea->setWidgetResizable(true);
    scrollArea->setWidget(frame);
    // A long list must not need the other scroll bar because of the one at its side.
    scrollArea->setMinimumWidth(ListMinimumWidth
                                + scrollArea->verticalScrollBar()->sizeHint().width());
    return scrollArea;
}

void ValidateMeshFeedbackmDialog::addFaultRow(QGridLayout *grid, const QString &icon,
                                              const QString &text)
{
    // An empty grid has one row all the same.
    const int row = grid->count() == 0 ? 0 : grid->rowCount();
    auto *picture = new QLabel(this);
    picture->setPixmap(orvane::loadPicture(icon, devicePixelRatioF()));
    grid->addWidget(picture, row, 0);

    auto *message = new QLabel(text, this);
    message->setTextFormat(Qt::RichText);
    message->setWordWrap(true);
    message->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    grid->addWidget(message, row, 1, 1, TextColumns);
}

void ValidateMeshFeedbackmDialog::addButtons(QBoxLayout *layout)
{
    auto *buttons = new QHBoxLayout;
    auto *accept = new QPushButton(tr("Accept"), this);
    accept->setObjectName(QStringLiteral("accept"));
    accept->setToolTip(tr("Accept the mesh and close dialog."));
    connect(accept, &QPushButton::clicked, this, &ValidateMeshFeedbackmDialog::OnAccept);
    buttons->addWidget(accept, 0, Qt::AlignRight);

    auto *close = new QPushButton(tr("Close"), this);
    close->setObjectName(QStringLiteral("close"));
    close->setToolTip(tr("Close this dialog and return to Orvane."));
    connect(close, &QPushButton::clicked, this, &ValidateMeshFeedbackmDialog::OnClose);
    buttons->addWidget(close, 0, Qt::AlignLeft);
    layout->addLayout(buttons);
}

// Wrapped text has no height before it has a width, so the list's own hint is of no use here.
void ValidateMeshFeedbackmDialog::fitTo(QScrollArea *list)
{
    const QMargins margins = layout()->contentsMargins();
    const int listWidth = PreferredWidth - margins.left() - margins.right();
    const int listHeight = list->widget()->heightForWidth(listWidth);
    const int mostHeight =
        int(QGuiApplication::primaryScreen()->availableSize().height() * ScreenPart);
    const int otherHeight = layout()->sizeHint().height() - list->sizeHint().height();
    resize(PreferredWidth, otherHeight + qMin(listHeight, mostHeight));
}

void ValidateMeshFeedbackmDialog::OnClose()
{
    done(0);
}

void ValidateMeshFeedbackmDialog::OnAccept()
{
    m_accepted = true;
    done(0);
}
