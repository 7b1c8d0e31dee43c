// SPDX-License-Identifier: MIT
#include "host/desktop/window/mainwindow.h"

#include "host/desktop/document/autosave.h"
#include "host/desktop/document/document.h"
#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/action.h"
#include "host/desktop/window/commandbar.h"
#include "host/desktop/window/curvecommandgroup.h"
#include "host/desktop/window/editcommands.h"
#include "host/desktop/window/filecommands.h"
#include "host/desktop/window/helpcommands.h"
#include "host/desktop/window/hudline.h"
#include "host/desktop/window/hudmessage.h"
#include "host/desktop/window/icons.h"
#include "host/desktop/window/logwindow.h"
#include "host/desktop/window/macrodialog.h"
#include "host/desktop/window/menus.h"
#include "host/desktop/window/meshcommands.h"
#include "host/desktop/window/preferencesdialog.h"
#include "host/desktop/window/progressdisplay.h"
#include "host/desktop/window/scenelist.h"
#include "host/desktop/window/startpage.h"
#include "host/desktop/window/statisticspanel.h"
#include "host/desktop/window/strokebar.h"
#include "host/desktop/window/viewcommands.h"

#include <orvane/kernel/kernel.h>
#include <orvane/kernel/preferences.h>
#include <orvane/kernel/scene.h>

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace orvane {

namespace {

const QSize FirstSize(1280, 720);
const int ListWidth = 260; // pixels
const int ToolIconSize = 24;
const int LayoutPasses = 5; // a panel that grows pushes what is around it
const QString GeometryKey = QStringLiteral("Window/geometry");

QStringList localFiles(const QMimeData *data)
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

MainWindow::MainWindow(QSettings *store, const PluginLoader *plugins) : m_store(store)
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowIcon(desktopIcon(QStringLiteral("orvane")));
    setAcceptDrops(true);
    m_settings.Load(*store);
    Kernel()->Preferences()->Load(*store);
    m_bench.window = this;
    m_bench.plugins = plugins;
    m_bench.settings = &m_settings;
    m_bench.store = store;
    m_bench.document = new orvane::Document(this);
    m_bench.autosave = new Autosave(m_bench.document, recoveryFolder(), this);
    makeMenus();
    makeCentre();
    makePanels();
    makeCommands();
    makeToolBars();
    addCommandLine();
    connectParts();
    applySettings();
    showTool();
    Refresh();
    resize(FirstSize);
    restoreGeometry(store->value(GeometryKey).toByteArray());
}

MainWindow::~MainWindow()
{
    // Before the view and the panels go: none of them is asked any more.
    m_bench.viewport->SetHighlight({});
    m_bench.viewport->SetClient(nullptr);
}

void MainWindow::makeMenus()
{
    m_bench.menus = new Menus(menuBar());
    m_bench.menus->AddMenu(QStringLiteral("File"), tr("&File"));
    m_bench.menus->AddMenu(QStringLiteral("Edit"), tr("&Edit"));
    m_bench.menus->AddMenu(QStringLiteral("Curves"), tr("&Curves"));
    m_bench.menus->AddMenu(Interface::menuMesh, tr("&Mesh"));
    m_bench.menus->AddMenu(QStringLiteral("View"), tr("&View"));
    m_bench.menus->AddMenu(QStringLiteral("Help"), tr("&Help"));
}

void MainWindow::makeCentre()
{
    auto *centre = new QWidget(this);
    m_stack = new QStackedWidget(centre);
    m_startPage = new StartPage(m_stack);
    m_bench.viewport = new ViewportWidget(m_stack);
    m_bench.viewport->setObjectName(QStringLiteral("viewport"));
    m_bench.viewport->setFocusPolicy(Qt::StrongFocus);
    m_bench.viewport->setAccessibleName(tr("View of the scene"));
    m_stack->addWidget(m_startPage);
    m_stack->addWidget(m_bench.viewport);
    m_commandBar = new CommandBar(centre);
    auto *layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_stack, 1);
    layout->addWidget(m_commandBar);
    setCentralWidget(centre);

    auto *progress = new ProgressDisplay(this);
    auto *report = new QLabel(this);
    report->setObjectName(QStringLiteral("report"));
    statusBar()->addPermanentWidget(report);
    statusBar()->addPermanentWidget(progress);
    m_interface.reset(
        new DesktopInterface({this, m_bench.menus, progress, new HudMessage(m_stack), report}));
    m_context.reset(new DesktopToolContext(m_bench.viewport, &m_settings.tools));
    m_tools.reset(new ToolBox(*m_context));
    m_bench.context = m_context.data();
    m_bench.tools = m_tools.data();
    m_bench.viewport->SetClient(m_tools.data());
    m_bench.viewport->SetHighlight([this] { return m_tools->HoveredCurve(); });
    m_hudLine = new HudLine(m_bench.viewport, m_bench.document, m_tools.data());
}

void MainWindow::makePanels()
{
    auto *content = new QWidget(this);
    m_bench.sceneList = new SceneList(content);
    m_statistics = new StatisticsPanel(content);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_bench.sceneList, 1);
    layout->addWidget(m_statistics);
    auto *dock = new QDockWidget(tr("Scene"), this);
    dock->setObjectName(QStringLiteral("sceneDock"));
    dock->setWidget(content);
    dock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    resizeDocks({dock}, {ListWidth}, Qt::Horizontal);
    m_log = new LogWindow(this);
    m_macro = new MacroDialog(this);
}

void MainWindow::makeCommands()
{
    m_files = new FileCommands(m_bench);
    m_edit = new EditCommands(m_bench);
    m_curves = new CurveCommandGroup(m_bench);
    new MeshCommands(m_bench);
    m_view = new ViewCommands(m_bench);
    new HelpCommands(m_bench);
}

void MainWindow::makeToolBars()
{
    auto *tools = new QToolBar(tr("Tools"), this);
    tools->setObjectName(QStringLiteral("toolBar"));
    tools->setMovable(false);
    tools->setIconSize({ToolIconSize, ToolIconSize});
    const QList<QAction *> actions = m_curves->ToolActions();
    tools->addActions(actions);
    for (QAction *action : actions)
        tools->widgetForAction(action)->setFocusPolicy(Qt::TabFocus); // a bar would pass them by
    addToolBar(Qt::LeftToolBarArea, tools);
    m_strokeBar = new StrokeBar(&m_settings.tools, this);
    addToolBar(Qt::TopToolBarArea, m_strokeBar);
}

void MainWindow::addCommandLine()
{
    QAction *line = newAction(this, {"goToCommandLine", tr("Command Lin&e"), tr("Type a command."),
                                     QKeySequence(Qt::CTRL + Qt::Key_L)});
    connect(line, &QAction::triggered, this,
            [this] { m_commandBar->Edit()->setFocus(Qt::ShortcutFocusReason); });
    QAction *macro = newAction(this, {"macro", tr("Mac&ro..."),
                                      tr("What was recorded, to save, edit and replay."),
                                      QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_L)});
    connect(macro, &QAction::triggered, this, &MainWindow::showMacro);
    QAction *log = newAction(
        this, {"log", tr("Lo&g"), tr("What was logged."), QKeySequence(Qt::CTRL + Qt::Key_G)});
    connect(log, &QAction::triggered, m_log, [this] {
        m_log->show();
        m_log->activateWindow();
    });
    QAction *list =
        newAction(this, {"goToSceneList", tr("Scene Lis&t"), tr("Take the keys to the scene list."),
                         QKeySequence(Qt::CTRL + Qt::Key_B)});
    connect(list, &QAction::triggered, this, [this] {
        findChild<QDockWidget *>(QStringLiteral("sceneDock"))->show();
        m_bench.sceneList->setFocus(Qt::ShortcutFocusReason);
    });
    QAction *panel = findChild<QDockWidget *>(QStringLiteral("sceneDock"))->toggleViewAction();
    panel->setObjectName(QStringLiteral("scenePanel"));
    panel->setText(tr("Scene Pa&nel"));
    panel->setStatusTip(tr("Show the scene list and the numbers of the mesh."));
    for (QAction *action : {panel, list, line, macro, log}) {
        m_view->AddPanel(action);
        addAction(action);
    }
    connect(m_commandBar, &CommandBar::macroAsked, this, &MainWindow::showMacro);
    connect(m_commandBar, &CommandBar::left, m_bench.viewport,
            [this] { m_bench.viewport->setFocus(); });
}

void MainWindow::connectParts()
{
    connect(m_interface.data(), &DesktopInterface::refreshed, this, &MainWindow::Refresh);
    connect(m_bench.document, &orvane::Document::changed, this, &MainWindow::showTitle);
    connect(m_bench.document, &orvane::Document::pathChanged, this, &MainWindow::showTitle);
    connect(m_bench.autosave, &Autosave::failed, this,
            [this](const QString &sentence) { m_interface->HUDMessageShow(sentence, 1, 8000); });
    connect(m_files, &FileCommands::opened, this, &MainWindow::showOpened);
    connect(m_edit, &EditCommands::preferencesAsked, this, &MainWindow::showPreferences);
    connect(m_curves, &CurveCommandGroup::toolChosen, this, &MainWindow::showTool);
    connect(m_curves, &CurveCommandGroup::settingsChanged, m_strokeBar, &StrokeBar::Refresh);
    connect(m_strokeBar, &StrokeBar::changed, this, &MainWindow::saveSettings);
    connect(m_view, &ViewCommands::settingsChanged, this, &MainWindow::saveSettings);
    connect(m_startPage, &StartPage::openAsked, m_files, &FileCommands::AskAndOpen);
    connect(m_startPage, &StartPage::exampleAsked, m_files, &FileCommands::OpenExample);
    connect(m_startPage, &StartPage::fileAsked, m_files,
            [this](const QString &path) { m_files->Open({path}); });
    connect(m_startPage, &StartPage::navigationChosen, this, [this](NavigationPreset preset) {
        m_settings.navigation = preset;
        applySettings();
        saveSettings();
    });
}

void MainWindow::Refresh()
{
    m_edit->Refresh();
    m_bench.sceneList->Refresh();
    m_statistics->Refresh();
    m_macro->Refresh();
    m_hudLine->Refresh();
    m_bench.document->Refresh();
    const bool empty = Kernel()->Scene()->NodeCount() == 0;
    if (empty)
        m_startPage->SetRecent(m_files->Recent().Files());
    QWidget *page = m_bench.viewport;
    if (empty)
        page = m_startPage;
    m_stack->setCurrentWidget(page);
    m_bench.viewport->update();
}

QImage MainWindow::Picture()
{
    Refresh();
    for (int i = 0; i < LayoutPasses; ++i)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_bench.viewport->repaint();
    return grab().toImage();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (Kernel()->IsOperationRunning() || !m_files->MayReplaceScene()) {
        event->ignore();
        return;
    }
    m_store->setValue(GeometryKey, saveGeometry());
    saveSettings();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent *event)
{
    event->acceptProposedAction();
    m_files->Open(localFiles(event->mimeData()));
}

void MainWindow::applySettings()
{
    applyTheme(m_settings.theme);
    m_bench.viewport->Navigation().SetPreset(m_settings.navigation);
    m_bench.autosave->SetInterval(m_settings.autosaveSeconds * 1000);
    m_startPage->SetNavigation(m_settings.navigation);
    m_strokeBar->Refresh();
    m_view->Refresh();
}

void MainWindow::saveSettings()
{
    m_settings.Save(*m_store);
    Kernel()->Preferences()->Save(*m_store);
}

void MainWindow::showPreferences()
{
    PreferencesDialog dialog(m_settings, Kernel()->Preferences()->renderMeshFaults.Value(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_settings = dialog.Settings();
    Kernel()->Preferences()->renderMeshFaults.SetValue(dialog.RenderMeshFaults());
    applySettings();
    saveSettings();
}

void MainWindow::showMacro()
{
    m_macro->Refresh();
    m_macro->show();
    m_macro->activateWindow();
}

void MainWindow::showOpened()
{
    m_bench.sceneList->BeginAnew();
    m_interface->ReportShow(QString());
    Refresh();
    m_bench.viewport->FrameAll();
    m_bench.viewport->setFocus();
}

void MainWindow::showTitle()
{
    const QString title = m_bench.document->Title();
    setWindowTitle(title.isEmpty() ? QStringLiteral("Orvane[*]")
                                   : QStringLiteral("%1[*] \u2013 Orvane").arg(title));
    setWindowModified(m_bench.document->IsChanged());
    m_hudLine->Refresh();
}

void MainWindow::showTool()
{
    statusBar()->showMessage(m_tools->InHand()->Description().hint);
    m_hudLine->Refresh();
}

} // namespace orvane
