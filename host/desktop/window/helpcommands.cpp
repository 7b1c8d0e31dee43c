// SPDX-License-Identifier: MIT
#include "host/desktop/window/helpcommands.h"

#include "host/desktop/tools/toolbox.h"
#include "host/desktop/window/aboutdialog.h"
#include "host/desktop/window/desktopsettings.h"
#include "host/desktop/window/shortcutsheet.h"

#include <orvane/widgets/helpviewer.h>

#include <QMainWindow>

namespace orvane {

HelpCommands::HelpCommands(const Workbench &workbench)
    : CommandGroup(workbench, QStringLiteral("Help"))
{
    add({"help", tr("&Help"), tr("How to work here."), QKeySequence(Qt::Key_F1)}, 100,
        [] { showHelp(QStringLiteral("Orvane")); });
    add({"toolHelp", tr("Help on the &Tool"), tr("How the tool in hand works."),
         QKeySequence(Qt::Key_F2)},
        110, [this] { showHelp(bench().tools->InHand()->Description().id); });
    add({"shortcuts", tr("&Shortcuts"), tr("All keys and drags at a glance."),
         QKeySequence(Qt::Key_H)},
        120, [this] { ShowShortcuts(); });
    addSeparator(200);
    add({"about", tr("&About Orvane"), tr("The version, and the plug-ins that are loaded.")}, 210,
        [this] { ShowAbout(); });
}

void HelpCommands::ShowShortcuts()
{
    ShortcutSheet sheet(bench().window, bench().settings->navigation);
    sheet.exec();
}

void HelpCommands::ShowAbout()
{
    AboutDialog dialog(bench().plugins, bench().window);
    dialog.exec();
}

} // namespace orvane
