// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSet>

namespace orvane {

//! The waiting pointer while the application is busy. A modal dialog that opens meanwhile asks the
//! user something: until it closes the pointer is the usual one.
class BusyCursor : public QObject
{
    Q_OBJECT

public:
    explicit BusyCursor(QObject *parent);
    ~BusyCursor() override;

    //! Calls are counted: as many with false end it.
    void SetBusy(bool busy);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showOrHide();
    void forget(QObject *dialog);

    QSet<QObject *> m_dialogs; // modal, and open since it became busy
    int m_busy = 0;
    bool m_shown = false;
};

} // namespace orvane
