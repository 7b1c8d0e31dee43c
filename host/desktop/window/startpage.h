// SPDX-License-Identifier: MIT
#pragma once

#include "host/desktop/document/recentfiles.h"
#include "host/desktop/view/navigation.h"

#include <QWidget>

class QComboBox;
class QVBoxLayout;

namespace orvane {

//! What is seen while there is nothing to work on: where to begin.
class StartPage : public QWidget
{
    Q_OBJECT

public:
    explicit StartPage(QWidget *parent = nullptr);

    void SetRecent(const QVector<RecentFile> &files);
    void SetNavigation(NavigationPreset preset);

signals:
    void openAsked();
    void exampleAsked();
    void fileAsked(const QString &path);
    void navigationChosen(orvane::NavigationPreset preset);

private:
    QVBoxLayout *m_recent;
    QVector<RecentFile> m_files; // that are shown
    QComboBox *m_navigation;
};

} // namespace orvane
