// SPDX-License-Identifier: MIT
#include <orvane/widgets/helpviewer.h>

#include <orvane/kernel/interface.h>
#include <orvane/kernel/kernel.h>
#include <orvane/widgets/helpbrowser.h>

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QToolBar>
#include <QVBoxLayout>

namespace orvane {

namespace {

const QSize PreferredSize(720, 760); // pixels
const int SearchWidth = 220;         // pixels

class HelpViewer : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(HelpViewer)

public:
    explicit HelpViewer(QWidget *parent);

    void open(const QUrl &page);

private:
    QToolBar *createToolBar();
    void addSearch(QToolBar *bar);

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
    QToolBar *bar = createToolBar();
    addSearch(bar);
    layout->addWidget(bar);
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

QToolBar *HelpViewer::createToolBar()
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

void HelpViewer::addSearch(QToolBar *bar)
{
    auto *text = new QLineEdit(bar);
    text->setObjectName(QStringLiteral("helpSearch"));
    text->setPlaceholderText(tr("Search all pages"));
    text->setAccessibleName(text->placeholderText());
    text->setClearButtonEnabled(true);
    text->setMaximumWidth(SearchWidth);
    auto *outcome = new QLabel(bar);
    outcome->setObjectName(QStringLiteral("helpSearchOutcome"));
    bar->addSeparator();
    bar->addWidget(text);
    bar->addWidget(outcome);
    connect(text, &QLineEdit::textEdited, outcome, &QLabel::clear);
    const auto search = [this, text, outcome] {
        const bool found = text->text().isEmpty() || m_browser->findNext(text->text());
        outcome->setText(found ? QString() : tr("Nothing found."));
    };
    connect(text, &QLineEdit::returnPressed, this, search);

    auto *begin = new QAction(this);
    begin->setShortcuts(QKeySequence::Find);
    connect(begin, &QAction::triggered, text, [text] {
        text->setFocus(Qt::ShortcutFocusReason);
        text->selectAll();
    });
    auto *next = new QAction(this);
    next->setShortcuts(QKeySequence::FindNext);
    connect(next, &QAction::triggered, this, search);
    addActions({begin, next});
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
