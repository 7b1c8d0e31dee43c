// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QBoxLayout;

//! How to create a mesh from curves, in three pictures on a dark panel without a frame.
class RetopologyHelpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RetopologyHelpDialog(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QBoxLayout *createSteps();
    QBoxLayout *createButtons();
};
