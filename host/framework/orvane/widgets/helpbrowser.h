// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

namespace orvane {

//! Shows Markdown pages of files, laid out for reading. A page that cannot be read is replaced by
//! a text that says so.
class HelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget *parent);

    //! The identifier's page, in the user's language when there is one; need not exist.
    static QUrl pageOf(const QString &identifier);
    //! The first line of the page.
    QString heading() const;
    //! Selects the next place that has the text, in small or capital letters: on this page, then
    //! on the pages after it in the order of their names, and round to where it began. False when
    //! no page has it.
    bool findNext(const QString &text);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
};

} // namespace orvane
