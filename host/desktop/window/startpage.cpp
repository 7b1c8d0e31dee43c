// SPDX-License-Identifier: MIT
#include "host/desktop/window/startpage.h"

#include "host/desktop/window/icons.h"
#include "host/desktop/window/preferencesdialog.h"

#include <QComboBox>
#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace orvane {

namespace {

const int ColumnWidth = 380; // pixels
const int IconSize = 56;
const int ShownFiles = 6;
const double TitleSize = 2.0; // of the usual letters

QLabel *newHeading(const QString &text, double size, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel *newText(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setFixedWidth(ColumnWidth);
    return label;
}

QCommandLinkButton *newLink(const char *name, const QString &text, const QString &about,
                            const QString &icon, QWidget *parent)
{
    auto *button = new QCommandLinkButton(text, about, parent);
    button->setObjectName(QLatin1String(name));
    button->setIcon(desktopIcon(icon));
    button->setIconSize({24, 24});
    button->setFixedWidth(ColumnWidth);
    return button;
}

} // namespace

StartPage::StartPage(QWidget *parent)
    : QWidget(parent), m_recent(new QVBoxLayout), m_navigation(new QComboBox(this))
{
    setObjectName(QStringLiteral("startPage"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);

    auto *icon = new QLabel(this);
    icon->setPixmap(desktopIcon(QStringLiteral("orvane")).pixmap(IconSize));
    auto *title = new QHBoxLayout;
    title->addWidget(icon);
    title->addSpacing(8);
    title->addWidget(newHeading(QStringLiteral("Orvane"), TitleSize, this));
    title->addStretch();

    auto *begin = new QVBoxLayout;
    auto *example =
        newLink("startExample", tr("Open the example"), tr("A sculpted head with curves on it"),
                QStringLiteral("surface"), this);
    auto *open = newLink("startOpen", tr("Open a file..."), tr("A mesh, curves or a scene"),
                         QStringLiteral("mesh"), this);
    connect(example, &QAbstractButton::clicked, this, &StartPage::exampleAsked);
    connect(open, &QAbstractButton::clicked, this, &StartPage::openAsked);
    begin->addWidget(newHeading(tr("Begin"), 1.2, this));
    begin->addWidget(example);
    begin->addWidget(open);
    begin->addSpacing(12);
    begin->addWidget(newHeading(tr("Recent files"), 1.2, this));
    m_recent->setSpacing(2);
    begin->addLayout(m_recent);
    begin->addStretch();

    m_navigation->setObjectName(QStringLiteral("startNavigation"));
    m_navigation->setAccessibleName(tr("Navigation"));
    m_navigation->setMinimumWidth(ColumnWidth);
    for (const NavigationPreset preset :
         {NavigationPreset::AltDrag, NavigationPreset::MiddleDrag, NavigationPreset::Viewer})
        m_navigation->addItem(navigationName(preset));
    connect(m_navigation, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { emit navigationChosen(NavigationPreset(index)); });
    auto *how = new QVBoxLayout;
    how->addWidget(newHeading(tr("How it goes"), 1.2, this));
    how->addWidget(newText(tr("<ol style=\"margin-left: -18px\">"
                              "<li>Open a dense mesh, or drop it here.</li>"
                              "<li>Draw curves on it with the left button: the edges of the new "
                              "mesh. Where two cross comes a vertex.</li>"
                              "<li>Choose <b>Mesh &gt; Create Mesh from Curves</b>.</li>"
                              "<li>Not right yet? Undo, mend a curve, create again.</li></ol>"
                              "<p>Press <b>H</b> for all keys, <b>F1</b> for help.</p>"),
                           this));
    how->addSpacing(12);
    how->addWidget(newHeading(tr("How do you turn the view?"), 1.2, this));
    how->addWidget(m_navigation);
    how->addStretch();

    auto *grid = new QGridLayout(this);
    grid->setHorizontalSpacing(36);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(0, 1);
    grid->setRowStretch(3, 2);
    grid->addLayout(title, 1, 1, 1, 2);
    grid->addLayout(begin, 2, 1);
    grid->addLayout(how, 2, 2);
    SetRecent({});
}

void StartPage::SetRecent(const QVector<RecentFile> &files)
{
    const QVector<RecentFile> shown = files.mid(0, ShownFiles);
    const auto same = [](const RecentFile &a, const RecentFile &b) {
        return a.path == b.path && a.isMissing == b.isMissing;
    };
    if (m_recent->count() > 0
        && std::equal(shown.cbegin(), shown.cend(), m_files.cbegin(), m_files.cend(), same))
        return;
    m_files = shown;
    while (QLayoutItem *item = m_recent->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const RecentFile &file : shown) {
        auto *button = new QPushButton(
            QFileInfo(file.path).fileName().replace(QLatin1Char('&'), QLatin1String("&&")), this);
        button->setFlat(true);
        button->setFixedWidth(ColumnWidth);
        button->setStyleSheet(QStringLiteral("text-align: left; padding: 4px 8px"));
        button->setToolTip(QDir::toNativeSeparators(file.path));
        button->setEnabled(!file.isMissing);
        connect(button, &QPushButton::clicked, this,
                [this, path = file.path] { emit fileAsked(path); });
        m_recent->addWidget(button);
    }
    if (files.isEmpty())
        m_recent->addWidget(new QLabel(tr("None yet."), this));
}

void StartPage::SetNavigation(NavigationPreset preset)
{
    m_navigation->setCurrentIndex(int(preset));
}

} // namespace orvane
