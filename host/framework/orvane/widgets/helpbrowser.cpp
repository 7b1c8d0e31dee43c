// SPDX-License-Identifier: MIT
#include <orvane/widgets/helpbrowser.h>

#include <orvane/base/log.h>

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextTable>

namespace orvane {

namespace {

const int PageMargin = 28;     // pixels
const int LineHeight = 130;    // percent
const int HeadingGap = 22;     // pixels above
const int CellPadding = 6;     // pixels
const double FontGrowth = 1.1; // against the font of controls
const int WholeWidth = 100;    // percent

// No page has an address of this scheme: it carries an identifier that was refused.
QString refusedScheme()
{
    return QStringLiteral("refused");
}

bool namesOnlyAPage(const QString &identifier)
{
    static const QRegularExpression Elsewhere(QStringLiteral("[/\\\\:]|\\.\\."));
    return !identifier.isEmpty() && !identifier.contains(Elsewhere);
}

QString plainMarkdown(const QString &text)
{
    static const QRegularExpression Punctuation(QStringLiteral("([!-/:-@\\[-`{-~])"));
    return text.simplified().replace(Punctuation, QStringLiteral("\\\\1"));
}

// All pages but the one that is shown, beginning with the one after it.
QVector<QUrl> pagesAfter(const QUrl &shown)
{
    QVector<QUrl> pages;
    QVector<QUrl> before;
    const QStringList files =
        QDir(QStringLiteral("Help")).entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name);
    const QString name = QFileInfo(shown.toLocalFile()).fileName();
    for (const QString &file : files) {
        if (file != name)
            (file > name ? pages : before)
                .append(HelpBrowser::pageOf(QFileInfo(file).completeBaseName()));
    }
    return pages + before;
}

bool hasText(const QUrl &page, const QString &text)
{
    QFile file(page.toLocalFile());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QTextDocument document;
    document.setMarkdown(QString::fromUtf8(file.readAll()));
    return !document.find(text).isNull();
}

void layOutBlock(const QTextBlock &block)
{
    QTextBlockFormat format;
    if (block.blockFormat().headingLevel() > 0)
        format.setTopMargin(HeadingGap);
    else if (!block.text().contains(QChar::ObjectReplacementCharacter)) // a picture fills its line
        format.setLineHeight(LineHeight, QTextBlockFormat::ProportionalHeight);
    QTextCursor(block).mergeBlockFormat(format);
}

void layOutTable(QTextTable *table)
{
    QTextTableFormat format = table->format();
    format.setCellPadding(CellPadding);
    format.setCellSpacing(0);
    format.setBorderCollapse(true);
    format.setTopMargin(CellPadding);
    format.setWidth(QTextLength(QTextLength::PercentageLength, WholeWidth));
    table->setFormat(format);

    QTextBlockFormat tight;
    tight.setTopMargin(0);
    tight.setBottomMargin(0);
    QTextCursor cells = table->firstCursorPosition();
    cells.setPosition(table->lastPosition(), QTextCursor::KeepAnchor);
    cells.mergeBlockFormat(tight);
}

} // namespace

HelpBrowser::HelpBrowser(QWidget *parent) : QTextBrowser(parent)
{
    setOpenExternalLinks(true);
    setFrameStyle(QFrame::NoFrame);
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * FontGrowth);
    setFont(larger);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::layOut);
}

QUrl HelpBrowser::pageOf(const QString &identifier)
{
    QUrl page;
    if (!namesOnlyAPage(identifier)) {
        page.setScheme(refusedScheme());
        page.setPath(QString::fromLatin1(QUrl::toPercentEncoding(identifier)), QUrl::DecodedMode);
        return page;
    }
    const QString language = QLocale().name().section(QLatin1Char('_'), 0, 0);
    const QDir folder(QDir::current().filePath(QStringLiteral("Help")));
    const QString file = identifier + QStringLiteral(".md");
    const QString translated = folder.filePath(language + QLatin1Char('/') + file);
    return QUrl::fromLocalFile(QFileInfo::exists(translated) ? translated : folder.filePath(file));
}

QString HelpBrowser::heading() const
{
    return document()->firstBlock().text();
}

bool HelpBrowser::findNext(const QString &text)
{
    if (text.isEmpty() || find(text))
        return !text.isEmpty();
    const QVector<QUrl> others = pagesAfter(source());
    for (const QUrl &page : others) {
        if (!hasText(page, text))
            continue;
        setSource(page, QTextDocument::MarkdownResource);
        return find(text);
    }
    moveCursor(QTextCursor::Start);
    return find(text);
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    if (type != QTextDocument::MarkdownResource)
        return QTextBrowser::loadResource(type, name);
    QString wanted = QUrl::fromPercentEncoding(name.path().toLatin1());
    QString reason = tr("A page's name holds no folder.");
    if (name.scheme() != refusedScheme()) {
        QFile file(name.toLocalFile());
        if (file.open(QIODevice::ReadOnly))
            return QString::fromUtf8(file.readAll());
        wanted = QFileInfo(file).completeBaseName();
        reason = tr("The file %1 cannot be read.").arg(QDir::toNativeSeparators(file.fileName()));
    }
    log(QStringLiteral("Help: no page for \"%1\" (%2).").arg(wanted, name.toString()));
    return tr("# No help on this yet\n\nThere is no page for %1. %2")
        .arg(plainMarkdown(QLatin1Char('"') + wanted + QLatin1Char('"')), plainMarkdown(reason));
}

// Links keep the colour they had when their page was read.
void HelpBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty())
        reload();
}

// A page is written without a look of its own, so that it reads well in every palette.
void HelpBrowser::layOut()
{
    document()->setDocumentMargin(PageMargin);
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        layOutBlock(block);
    const QList<QTextFrame *> frames = document()->rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        if (auto *table = qobject_cast<QTextTable *>(frame))
            layOutTable(table);
    }
}

} // namespace orvane
