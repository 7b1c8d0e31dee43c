// SPDX-License-Identifier: MIT
// What the window does at its start with work that a crash left.
#include "tests/host/desktop/window/windowtest.h"

#include "host/desktop/document/document.h"
#include "host/desktop/document/recovery.h"
#include "host/desktop/viewport/viewportwidget.h"
#include "host/desktop/window/filecommands.h"

#include "tests/support/dialoganswer.h"

#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QProcess>
#include <QtTest>

#include <gtest/gtest.h>

using orvane::findRecoveries;
using orvane::Kernel;

namespace {

const int Patience = 60000; // milliseconds

class RecoveryQuestion : public WindowTest
{
protected:
    RecoveryQuestion() { forgetAll(); }
    ~RecoveryQuestion() override { forgetAll(); }

    static void forgetAll()
    {
        for (const orvane::Recovery &left : findRecoveries())
            orvane::discard(left);
    }

    // Another session renames the cube again and again, keeps a copy and is killed.
    void crash()
    {
        QDir().mkpath(orvane::recoveryFolder());
        QProcess session;
        session.start(QStringLiteral(DOCUMENTTOOL),
                      {cubeFile(), orvane::recoveryFolder(), QStringLiteral("50")});
        QByteArray output;
        while (!output.contains("saved")) {
            ASSERT_TRUE(session.waitForReadyRead(Patience));
            output += session.readAllStandardOutput();
        }
        session.kill();
        ASSERT_TRUE(session.waitForFinished(Patience));
    }

    // The question as the user sees it, answered by a key. Empty when none was asked.
    QString askedAndAnswered(Qt::Key key, const char *button = nullptr)
    {
        QString text;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            EXPECT_EQ(box->objectName(), QStringLiteral("recoveryQuestion"));
            text += box->text() + QLatin1Char(' ') + box->informativeText();
            if (button)
                box->findChild<QAbstractButton *>(QLatin1String(button))->setFocus();
            QTest::keyClick(box->focusWidget(), key);
        });
        timer.start(20);
        m_window->Files().OfferRecovery();
        m_window->activateWindow(); // there is no window manager to do it
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.data()));
        settle();
        return text;
    }

    static QString cubeName()
    {
        const orvane::Geometry *cube = Kernel()->Scene()->Geometries().value(0);
        return cube ? cube->Name() : QString();
    }
};

} // namespace

TEST_F(RecoveryQuestion, nothingIsAskedWhenNothingWasLost)
{
    EXPECT_TRUE(askedAndAnswered(Qt::Key_Return).isEmpty());
}

TEST_F(RecoveryQuestion, enterRestoresTheWorkAsUnsavedWork)
{
    crash();
    const QString question = askedAndAnswered(Qt::Key_Return);
    EXPECT_TRUE(question.contains(QStringLiteral("cube"))) << qPrintable(question);
    EXPECT_GT(cubeName().toInt(), 0) << "the name that the lost session gave it";
    EXPECT_TRUE(m_window->Viewport().isVisible());
    EXPECT_TRUE(m_window->isWindowModified());
    ASSERT_TRUE(Kernel()->Undos().CanUndo()) << "the history came back, too";
    const int last = cubeName().toInt();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(cubeName().toInt(), last);
    // It is this session's now; nobody is asked about it again.
    EXPECT_TRUE(findRecoveries().isEmpty());
    EXPECT_TRUE(askedAndAnswered(Qt::Key_Return).isEmpty());
    DialogAnswer answer(QStringLiteral("cancel"));
    EXPECT_FALSE(m_window->close());
    EXPECT_EQ(answer.count(), 1) << "and closing asks about it";
}

TEST_F(RecoveryQuestion, discardForgetsTheWork)
{
    crash();
    EXPECT_FALSE(askedAndAnswered(Qt::Key_Space, "discard").isEmpty());
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 0);
    EXPECT_FALSE(m_window->isWindowModified());
    EXPECT_TRUE(findRecoveries().isEmpty());
    EXPECT_TRUE(askedAndAnswered(Qt::Key_Return).isEmpty());
}

TEST_F(RecoveryQuestion, escapePutsItOffUntilTheNextStart)
{
    crash();
    EXPECT_FALSE(askedAndAnswered(Qt::Key_Escape).isEmpty());
    EXPECT_EQ(Kernel()->Scene()->NodeCount(), 0);
    EXPECT_EQ(findRecoveries().size(), 1);
    openWindow();
    EXPECT_FALSE(askedAndAnswered(Qt::Key_Return).isEmpty());
    EXPECT_GT(cubeName().toInt(), 0);
}

TEST_F(RecoveryQuestion, workOfASessionThatLivesIsLeftAlone)
{
    ASSERT_TRUE(m_window->Files().Open({cubeFile()}));
    QProcess session;
    session.start(QStringLiteral(DOCUMENTTOOL),
                  {cubeFile(), orvane::recoveryFolder(), QStringLiteral("50")});
    QByteArray output;
    while (!output.contains("saved")) {
        ASSERT_TRUE(session.waitForReadyRead(Patience));
        output += session.readAllStandardOutput();
    }
    EXPECT_TRUE(askedAndAnswered(Qt::Key_Return).isEmpty());
    session.kill();
    ASSERT_TRUE(session.waitForFinished(Patience));
}
