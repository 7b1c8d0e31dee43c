// SPDX-License-Identifier: MIT
#include "host/desktop/window/aboutdialog.h"

#include "host/desktop/window/icons.h"

#include <orvane/kernel/pluginloader.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>

namespace orvane {

namespace {

const QSize UsualSize(560, 420);
const int IconSize = 64; // pixels

QString stateOf(const PluginLoader::Entry &entry)
{
    switch (entry.state) {
    case PluginLoader::State::Found:
        return AboutDialog::tr("found");
    case PluginLoader::State::Loaded:
        return AboutDialog::tr("loaded");
    case PluginLoader::State::Initialised:
        return AboutDialog::tr("at work");
    case PluginLoader::State::Failed:
        break;
    }
    return AboutDialog::tr("not used: %1").arg(entry.reason);
}

QString line(const QString &text)
{
    return text.isEmpty() ? QString() : text.toHtmlEscaped() + QStringLiteral("<br>");
}

QString textOf(const PluginLoader::Entry &entry)
{
    const QString name = entry.name.isEmpty() ? QDir::toNativeSeparators(entry.file) : entry.name;
    QString text = QStringLiteral("<p><b>%1</b> \u2013 %2<br>")
                       .arg(name.toHtmlEscaped(), stateOf(entry).toHtmlEscaped());
    text += line(entry.description) + line(entry.author);
    if (!entry.address.isEmpty())
        text += QStringLiteral("<a href=\"%1\">%1</a><br>").arg(entry.address.toHtmlEscaped());
    if (!entry.buildStamp.isEmpty())
        text += line(AboutDialog::tr("Built %1").arg(entry.buildStamp));
    return text + QStringLiteral("</p>");
}

QString text(const PluginLoader *plugins)
{
    QString text =
        QStringLiteral("<h2>Orvane %1</h2><p>%2</p><h3>%3</h3>")
            .arg(QCoreApplication::applicationVersion(),
                 AboutDialog::tr("A bench to draw curves on meshes."), AboutDialog::tr("Plug-ins"));
    if (!plugins || plugins->Entries().isEmpty())
        return text + AboutDialog::tr("None was found.");
    for (const PluginLoader::Entry &entry : plugins->Entries())
        text += textOf(entry);
    return text;
}

} // namespace

AboutDialog::AboutDialog(const PluginLoader *plugins, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowTitle(tr("About Orvane"));
    resize(UsualSize);
    auto *icon = new QLabel(this);
    icon->setPixmap(desktopIcon(QStringLiteral("orvane")).pixmap(IconSize));
    icon->setAlignment(Qt::AlignTop);
    auto *browser = new QTextBrowser(this);
    browser->setObjectName(QStringLiteral("aboutText"));
    browser->setOpenExternalLinks(true);
    browser->setFrameShape(QFrame::NoFrame);
    browser->setHtml(text(plugins));
    auto *box = new QDialogButtonBox(QDialogButtonBox::Close, this);
    box->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("close"));
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->addWidget(icon);
    row->addWidget(browser, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(box);
}

} // namespace orvane
