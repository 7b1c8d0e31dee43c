// SPDX-License-Identifier: MIT
#include "operation/manualretopooperation.h"
#include "operation/runreport.h"

#include <QCoreApplication>

#include <cstdio>

// A tool of somebody else's: without curves an operation makes nothing and says so.
int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    ManualRetopoOperation operation(5, 0.3f, 0.05f, 0.35f, false);
    const bool made = operation.ExecuteAndInvert();
    std::printf("made %d: %s\n", made, qPrintable(lastRunReport().failure));
    return made || lastRunReport().failure.isEmpty() ? 1 : 0;
}
