// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QPlainTextEdit;

namespace orvane {

//! Shows the host's log, from its beginning on, and all that comes while it lives.
class LogWindow : public QWidget
{
    Q_OBJECT

public:
    explicit LogWindow(QWidget *parent);
    ~LogWindow() override;

private:
    QPlainTextEdit *m_text;
};

} // namespace orvane
