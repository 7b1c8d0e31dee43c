// SPDX-License-Identifier: MIT
#pragma once

#include "tests/plugin/toolscene.h"
#include "tests/support/workingfolder.h"

#include <QLocale>
#include <QMap>

namespace orvane {
class Operation;
}

//! Fixture of tests on what the tool and its host say in a language. A new mesh with faults is
//! discarded.
class SpokenTool : public OperationScene
{
protected:
    SpokenTool();
    ~SpokenTool() override;

    static void speak(const char *language);

    //! What people read when no mesh can be made, by what they read of the reason in English.
    QMap<QString, QString> failures();
    //! What they read when there is one, of a net with a hole.
    QString summary();
    //! What they read when a geometry cannot be moved.
    QString failedTransformation();
    //! What they read when there is nothing to make a mesh of.
    QString missingCurves();
    //! What the Edit menu calls a step of the class.
    static QString undoText(const QString &className);

    WindowInterface interface;
    CountingView view;

private:
    QString messageOf(orvane::Operation &operation);

    WorkingFolder m_folder; // without pictures and help pages
    QLocale m_locale;
};
