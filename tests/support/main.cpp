// SPDX-License-Identifier: MIT
#include <QApplication>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

// The offscreen platform says these for every window; it would bury what a test prints.
void withoutPlatformChatter(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.contains(QLatin1String("propagateSizeHints"))
        && !message.contains(QLatin1String("does not support raise()"))
        && !message.contains(QLatin1String("XDG_RUNTIME_DIR")))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(withoutPlatformChatter);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
