// SPDX-License-Identifier: MIT
#include <orvane/widgets/helpviewer.h>

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/widgets/helpbrowser.h>

#include <QAction>
#include <QCoreApplication>
#include <QPointer>
#include <QToolBar>
#include <QVBoxLayout>

namespace orvane {

namespace {

const QSize PreferredSize(720, 760); // pixels

class HelpViewer : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(HelpViewer)

public:
    explicit HelpViewer(QWidget *parent);

    void open(const QUrl &page);

private:
    QWidget *createToolBar();

    HelpBrowser *m_browser;
    QUrl m_home; // the page that was asked for last
};

HelpViewer::HelpViewer(QWidget *parent)
    : QWidget(parent, Qt::Window), m_browser(new HelpBrowser(this))
{
    setObjectName(QStringLiteral("HelpViewer"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createToolBar());
    layout->addWidget(m_browser);
    connect(m_browser, &QTextBrowser::sourceChanged, this,
            [this]() { setWindowTitle(tr("%1 - Help").arg(m_browser->heading())); });

    auto *close = new QAction(this);
    close->setShortcut(Qt::Key_Escape);
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);
    m_browser->setFocus();
    resize(PreferredSize);
}

QWidget *HelpViewer::createToolBar()
{
    auto *bar = new QToolBar(this);
    QAction *back = bar->addAction(tr("Back"), m_browser, &QTextBrowser::backward);
    back->setShortcuts(QKeySequence::Back);
    back->setEnabled(false);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);

    QAction *forward = bar->addAction(tr("Forward"), m_browser, &QTextBrowser::forward);
    forward->setShortcuts(QKeySequence::Forward);
    forward->setEnabled(false);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    QAction *home = bar->addAction(tr("Home"));
    home->setShortcut(QKeySequence(Qt::ALT + Qt::Key_Home));
    connect(home, &QAction::triggered, this,
            [this]() { m_browser->setSource(m_home, QTextDocument::MarkdownResource); });
    return bar;
}

void HelpViewer::open(const QUrl &page)
{
    m_home = page;
    m_browser->setSource(page, QTextDocument::MarkdownResource);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

QPointer<HelpViewer> &currentViewer()
{
    static QPointer<HelpViewer> viewer;
    return viewer;
}

void deleteViewer()
{
    delete currentViewer();
}

// The parent frees the window with itself; without one the application does, while it still can.
HelpViewer &viewer()
{
    QPointer<HelpViewer> &current = currentViewer();
    QWidget *parent = Kernel()->Interface()->MainWindow();
    if (current && current->parentWidget() != parent)
        delete current;
    if (!current) {
        current = new HelpViewer(parent);
        qAddPostRoutine(deleteViewer);
    }
    return *current;
}

} // namespace

void showHelp(const QString &identifier)
{
    viewer().open(HelpBrowser::pageOf(identifier));
}

} // namespace orvane
