// SPDX-License-Identifier: MIT
// usage: systemlanguage FOLDER
// Follows the languages of the system and says whether one of them was found, and a word in it.
#include <orvane/kernel/language.h>

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const bool fits = orvane::setLanguage(QCoreApplication::arguments().value(1), QString());
    std::printf("%s %s\n", fits ? "yes" : "no",
                qPrintable(QCoreApplication::translate("ManualRetopoDialog", "Off")));
    return 0;
}
