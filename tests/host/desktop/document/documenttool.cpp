// SPDX-License-Identifier: MIT
// A session of its own for tests of recovery, working until it is killed:
//   documenttool MESH FOLDER INTERVAL
// opens the mesh and gives it the names 1, 2, 3..., a step every 5 milliseconds, while autosave
// keeps copies in the folder. Prints each number, and "saved" after each copy.
#include "host/desktop/document/autosave.h"
#include "host/desktop/document/document.h"

#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/scene.h>
#include <orvane/operations/renameoperation.h>

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

namespace {

const int StepTime = 5; // milliseconds

bool rename(int number)
{
    orvane::RenameOperation operation(orvane::Kernel()->Scene()->DrawingSurface(),
                                      QString::number(number));
    return orvane::Kernel()->DoOperation(&operation, true, false);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    orvane::Document document;
    if (words.size() != 4 || !document.OpenMesh(words[1]).done)
        return 1;
    orvane::Autosave autosave(&document, words[2]);
    autosave.SetInterval(words[3].toInt());
    QObject::connect(&autosave, &orvane::Autosave::saved, [] {
        std::puts("saved");
        std::fflush(stdout);
    });
    int number = 0;
    QTimer steps;
    QObject::connect(&steps, &QTimer::timeout, [&number] {
        if (!rename(++number))
            std::exit(1);
        std::printf("%d\n", number);
        std::fflush(stdout);
    });
    steps.setTimerType(Qt::PreciseTimer);
    steps.start(StepTime);
    return QCoreApplication::exec();
}
