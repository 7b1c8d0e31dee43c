// SPDX-License-Identifier: MIT
#include "tests/support/logcatcher.h"

#include <orvane/base/log.h>
#include <orvane/kernel/kernel.h>

#include <gtest/gtest.h>

TEST(Log, handsEachTextToTheSink)
{
    LogCatcher log;
    orvane::log(QStringLiteral("one"));
    orvane::Kernel()->Log(QStringLiteral("two"));
    EXPECT_EQ(log.texts(), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
}

TEST(Log, goesOnWithoutASink)
{
    orvane::setLogSink({});
    orvane::log(QStringLiteral("unheard"));
    EXPECT_EQ(orvane::recentLog().last(), QStringLiteral("unheard"));
}

TEST(Log, keepsTheLatestFiveThousandTextsInOrder)
{
    for (int i = 0; i < 5003; ++i)
        orvane::log(QString::number(i));
    const QStringList texts = orvane::recentLog();
    ASSERT_EQ(texts.size(), 5000);
    for (int i = 0; i < texts.size(); ++i)
        ASSERT_EQ(texts[i], QString::number(i + 3));
}
