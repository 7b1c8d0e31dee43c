// SPDX-License-Identifier: MIT
#include "tests/support/dialoganswer.h"

#include "host/desktop/window/question.h"

#include <gtest/gtest.h>

using orvane::ask;

namespace {

orvane::Question question()
{
    return {"trial",
            QStringLiteral("Which?"),
            QString(),
            {{"one", QStringLiteral("One")},
             {"two", QStringLiteral("Two")},
             {"none", QStringLiteral("None")}}};
}

} // namespace

TEST(Question, answersTheButtonThatWasPressed)
{
    DialogAnswer answer(QStringLiteral("two"));
    EXPECT_EQ(ask(nullptr, question()), QStringLiteral("two"));
    EXPECT_EQ(answer.count(), 1);
}

TEST(Question, closingIsTheLastButton)
{
    DialogAnswer answer(QStringLiteral("no such button")); // closes the dialog
    EXPECT_EQ(ask(nullptr, question()), QStringLiteral("none"));
    EXPECT_EQ(answer.count(), 0);
}
