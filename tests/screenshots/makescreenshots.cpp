// SPDX-License-Identifier: MIT
// usage: makescreenshots FOLDER RESOURCES
// Writes a picture of each window into FOLDER, in a light and a dark palette. RESOURCES is where
// the program finds Icons/ and Help/.
#include "ui/manualretopodialog.h"
#include "ui/retopologyhelpdialog.h"
#include "ui/validatemeshfeedbackmdialog.h"

#include <orvane/kernel/kernel.h>
#include <orvane/widgets/helpviewer.h>

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QScrollArea>
#include <QStyleFactory>
#include <QTextBrowser>

#include <cstdio>

namespace {

const int ThreeFaults = 0x00001 | 0x10000 | 0x00800;
const int AllFaults = 0xf0f0f;
const int BehindMargin = 24; // pixels around a window that one can look through

QPalette darkPalette()
{
    QPalette dark(QColor(53, 53, 53));
    dark.setColor(QPalette::Base, QColor(35, 35, 35));
    dark.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::Link, QColor(110, 175, 240));
    dark.setColor(QPalette::ToolTipBase, QColor(35, 35, 35));
    dark.setColor(QPalette::ToolTipText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    return dark;
}

class Album
{
public:
    Album(const QDir &folder, const QString &ending) : m_folder(folder), m_ending(ending) {}

    void add(QWidget &window, const QString &name) const
    {
        window.show();
        QApplication::processEvents();
        QPixmap picture = window.grab();
        if (window.testAttribute(Qt::WA_TranslucentBackground))
            picture = overAScene(picture);
        const QString file = m_folder.filePath(name + m_ending);
        if (!picture.save(file))
            qFatal("cannot write %s", qPrintable(file));
        window.hide();
    }

private:
    // A window one can look through stands over something.
    static QPixmap overAScene(const QPixmap &picture)
    {
        const double ratio = picture.devicePixelRatio();
        const int margin = int(BehindMargin * ratio);
        QPixmap whole(picture.size() + QSize(2 * margin, 2 * margin));
        whole.setDevicePixelRatio(ratio);
        whole.fill(QColor(125, 140, 150));
        QPainter(&whole).drawPixmap(BehindMargin, BehindMargin, picture);
        return whole;
    }

    QDir m_folder;
    QString m_ending;
};

void addHelpPage(const Album &album)
{
    orvane::showHelp(QStringLiteral("ManualRetopoHelp"));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("HelpViewer")) {
            album.add(*window, QStringLiteral("helppage"));
            const auto *page = window->findChild<QTextBrowser *>();
            const int others = window->height() - page->viewport()->height();
            window->resize(window->width(), others + int(page->document()->size().height()) + 1);
            album.add(*window, QStringLiteral("helppage-whole"));
            delete window;
            return; // what belonged to the window is gone from the list, too
        }
    }
}

// Every row at once, with no need to scroll.
void addWholeFaults(const Album &album)
{
    ValidateMeshFeedbackmDialog dialog(nullptr, QStringLiteral("Body-Retopo"), AllFaults);
    const auto *list = dialog.findChild<QScrollArea *>();
    dialog.show();
    const int width = list->viewport()->width();
    const int others = dialog.height() - list->viewport()->height();
    dialog.resize(dialog.width(), others + list->widget()->heightForWidth(width));
    album.add(dialog, QStringLiteral("faults-whole"));
}

void addAll(const Album &album)
{
    for (const bool testMode : {false, true}) {
        orvane::Kernel()->SetTestMode(testMode);
        ManualRetopoDialog settings(nullptr);
        album.add(settings,
                  testMode ? QStringLiteral("settings-testmode") : QStringLiteral("settings"));
    }
    RetopologyHelpDialog help(nullptr);
    album.add(help, QStringLiteral("help"));
    for (const int faults : {ThreeFaults, AllFaults}) {
        ValidateMeshFeedbackmDialog dialog(nullptr, QStringLiteral("Body-Retopo"), faults);
        album.add(dialog, faults == AllFaults ? QStringLiteral("faults-all")
                                              : QStringLiteral("faults-three"));
    }
    addWholeFaults(album);
    addHelpPage(album);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::fprintf(stderr, "usage: makescreenshots FOLDER RESOURCES\n");
        return 2;
    }
    const QDir folder(QDir(arguments.at(1)).absolutePath());
    if (!folder.mkpath(QStringLiteral(".")) || !QDir::setCurrent(arguments.at(2))) {
        std::fprintf(stderr, "a folder cannot be used\n");
        return 3;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QString scale = QStringLiteral("%1x.png").arg(application.devicePixelRatio());
    addAll(Album(folder, QStringLiteral("-light-") + scale));
    QApplication::setPalette(darkPalette());
    addAll(Album(folder, QStringLiteral("-dark-") + scale));
    return 0;
}
