// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QBoxLayout;
class QGridLayout;
class QScrollArea;

//! Shows the faults of a new mesh and asks whether to keep it. Run it with exec(), then ask
//! isAccepted(): the result code is the same for both buttons.
class ValidateMeshFeedbackmDialog : public QDialog // (sic)
{
    Q_OBJECT

public:
    //! faults: the bits of orvane::MeshChecker; one without an explanation shows no row.
    ValidateMeshFeedbackmDialog(QWidget *parent, const QString &meshName, int faults);

    bool isAccepted() const { return m_accepted; }

private slots:
    void OnClose();
    void OnAccept();

private:
    void addHeading(QBoxLayout *layout, const QString &meshName);
    QScrollArea *createFaultList(int faults);
    void addFaultRow(QGridLayout *grid, const QString &icon, const QString &text);
    void addButtons(QBoxLayout *layout);
    void fitTo(QScrollArea *list);

    bool m_accepted = false;
};
