// SPDX-License-Identifier: MIT
#include "ui/retopologyhelpdialog.h"

#include <orvane/widgets/helpbutton.h>
#include <orvane/widgets/picture.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const int Spacing = 20;          // pixels
const int Margin = 30;           // pixels
const double CornerRadius = 3.0; // pixels
const QColor PanelColour(0, 0, 0, 217);
const QColor OutlineColour(140, 140, 140, 255);

QLabel *pictureLabel(const QString &path, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setPixmap(orvane::loadPicture(path, parent->devicePixelRatioF()));
    return label;
}

} // namespace

RetopologyHelpDialog::RetopologyHelpDialog(QWidget *parent)
    : QDialog(parent, Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("RetopologyHelpDialog"));
    QPalette onDark = palette();
    onDark.setColor(QPalette::WindowText, Qt::white);
    setPalette(onDark);

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(Spacing);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    auto *title = new QLabel(tr("<font size=+3>How to Create a Mesh from Curves</font>"), this);
    layout->addWidget(title, 0, Qt::AlignLeft);
    layout->addLayout(createSteps());
    layout->addLayout(createButtons());
    setAttribute(Qt::WA_TranslucentBackground);
}

QBoxLayout *RetopologyHelpDialog::createSteps()
{
    QList<QLabel *> pictures;
    for (int step = 1; step <= 3; ++step) {
        const QString path = QStringLiteral("Icons/tooltips/RTHelp%1.png").arg(step);
        pictures.append(pictureLabel(path, this));
    }
    const QList<QLabel *> badges{pictureLabel(QStringLiteral("Icons/tooltips/PTone.png"), this),
                                 pictureLabel(QStringLiteral("Icons/tooltips/PTtwo.png"), this),
                                 pictureLabel(QStringLiteral("Icons/tooltips/PTthree.png"), this)};
    const QList<QLabel *> captions{
        new QLabel(tr("<font size=+1>Use the Curve Tools to draw a<br>new mesh on an existing "
                      "one.</font>"),
                   this),
        new QLabel(tr("<font size=+1>Select the Curves or the Mesh.</font>"), this),
        new QLabel(tr("<font size=+1>Choose <b>Create Mesh from<br>Curves</b> to make your new "
                      "mesh.</font>"),
                   this)};

    auto *row = new QHBoxLayout;
    for (int i = 0; i < pictures.size(); ++i) {
        row->addWidget(badges[i], 0, Qt::AlignTop);
        captions[i]->setAlignment(Qt::AlignLeft | Qt::AlignTop); // one line or two, in a row
        auto *step = new QVBoxLayout;
        step->addWidget(pictures[i]);
        step->addWidget(captions[i]);
        row->addLayout(step);
    }
    return row;
}

QBoxLayout *RetopologyHelpDialog::createButtons()
{
    auto *row = new QHBoxLayout;
    auto *more =
        new orvane::HelpButton(this, QStringLiteral("ManualRetopoHelp"), tr("Tell me more..."));
    more->setObjectName(QStringLiteral("more"));
    row->addWidget(more, 0, Qt::AlignLeft);

    auto *ok = new QPushButton(tr("OK"), this);
    ok->setObjectName(QStringLiteral("ok"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::close);
    row->addWidget(ok, 0, Qt::AlignRight);
    return row;
}

void RetopologyHelpDialog::paintEvent(QPaintEvent *event)
{
    QRectF panel = rect();
    panel.setSize(panel.size() - QSizeF(1.0, 1.0)); // the outline falls inside the widget
    QPainter painter(this);
    painter.setBrush(PanelColour);
    painter.setPen(OutlineColour);
    painter.drawRoundedRect(panel, CornerRadius, CornerRadius, Qt::AbsoluteSize);
    QDialog::paintEvent(event);
}
