// SPDX-License-Identifier: MIT
#include "cli/dialoganswers.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

// A dialog with two buttons that end it, each with a result of its own.
class TwoButtons : public QDialog
{
public:
    explicit TwoButtons(const QString &name) : m_yes(this), m_no(this)
    {
        setObjectName(name);
        m_yes.setObjectName(QStringLiteral("accept"));
        m_no.setObjectName(QStringLiteral("close"));
        connect(&m_yes, &QPushButton::clicked, this, [this] { done(7); });
        connect(&m_no, &QPushButton::clicked, this, [this] { done(9); });
    }

private:
    QPushButton m_yes;
    QPushButton m_no;
};

} // namespace

TEST(DialogAnswers, pressesTheButtonThatWasAskedFor)
{
    DialogAnswers answers;
    answers.setAnswer(QStringLiteral("faults"), QStringLiteral("accept"));
    EXPECT_EQ(TwoButtons(QStringLiteral("faults")).exec(), 7);
    answers.setAnswer(QStringLiteral("faults"), QStringLiteral("close"));
    EXPECT_EQ(TwoButtons(QStringLiteral("faults")).exec(), 9);
}

TEST(DialogAnswers, aDialogWithoutAnAnswerIsClosedAndNamed)
{
    DialogAnswers answers;
    answers.setAnswer(QStringLiteral("faults"), QStringLiteral("accept"));
    testing::internal::CaptureStderr();
    EXPECT_EQ(TwoButtons(QStringLiteral("surprise")).exec(), QDialog::Rejected);
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_NE(said.find("\"surprise\""), std::string::npos);
}

TEST(DialogAnswers, anAnswerWithoutItsButtonClosesTheDialog)
{
    DialogAnswers answers;
    answers.setAnswer(QStringLiteral("faults"), QStringLiteral("elsewhere"));
    testing::internal::CaptureStderr();
    EXPECT_EQ(TwoButtons(QStringLiteral("faults")).exec(), QDialog::Rejected);
    EXPECT_FALSE(testing::internal::GetCapturedStderr().empty());
}

TEST(DialogAnswers, aDialogThatBlocksNobodyIsLeftAlone)
{
    DialogAnswers answers;
    TwoButtons dialog(QStringLiteral("faults"));
    dialog.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(dialog.isVisible());
}
