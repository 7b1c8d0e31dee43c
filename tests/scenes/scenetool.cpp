// SPDX-License-Identifier: MIT
// A process of its own for tests of scene files:
//   scenetool states FILE PREFIX [undo|redo]...
//     opens the file and saves it as PREFIX0; after each word that follows as PREFIX1, PREFIX2, ...
//   scenetool saves A B OUT
//     opens A and B by turns and saves each as OUT, says "ready" after the first time, and goes on
//     until it is killed
#include "host/files/scenefile.h"
#include "tests/support/dialoganswer.h"

#include <orvane/kernel/kernel.h>

#include <QApplication>
#include <QStringList>

#include <cstdio>

namespace {

bool open(const QString &path)
{
    orvane::SceneContents contents;
    QString error;
    if (!orvane::readScene(path, &contents, &error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return false;
    }
    const QStringList damage = contents.damage + orvane::openScene(contents);
    for (const QString &sentence : damage)
        std::fprintf(stderr, "%s\n", qPrintable(sentence));
    return damage.isEmpty();
}

bool save(const QString &path)
{
    QString error;
    if (orvane::writeScene(path, &error))
        return true;
    std::fprintf(stderr, "%s\n", qPrintable(error));
    return false;
}

int runStates(const QStringList &words)
{
    if (!open(words[0]) || !save(words[1] + QLatin1Char('0')))
        return 1;
    for (int i = 2; i < words.size(); ++i) {
        const bool undo = words[i] == QLatin1String("undo");
        if (!(undo ? orvane::Kernel()->Undo() : orvane::Kernel()->Redo())) {
            std::fprintf(stderr, "%s failed\n", qPrintable(words[i]));
            return 1;
        }
        if (!save(words[1] + QString::number(i - 1)))
            return 1;
    }
    return 0;
}

bool saveBoth(const QStringList &words)
{
    return open(words[0]) && save(words[2]) && open(words[1]) && save(words[2]);
}

int runSaves(const QStringList &words)
{
    if (!saveBoth(words))
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    while (saveBoth(words)) {
    }
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const DialogAnswer dialogs(QStringLiteral("accept"));
    const QStringList words = application.arguments().mid(2);
    const int code = application.arguments().value(1) == QLatin1String("states") ? runStates(words)
                                                                                 : runSaves(words);
    orvane::Kernel()->NewScene();
    return code;
}
