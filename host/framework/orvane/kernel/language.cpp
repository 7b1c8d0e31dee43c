// SPDX-License-Identifier: MIT
#include <orvane/kernel/language.h>

#include <orvane/base/log.h>

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QPointer>
#include <QTranslator>
#include <QVector>

#include <algorithm>

namespace orvane {

namespace {

const QString English = QStringLiteral("en");

// Owned by the application, which may go first.
QVector<QPointer<QTranslator>> &installed()
{
    static QVector<QPointer<QTranslator>> translators;
    return translators;
}

void install(const QString &file)
{
    auto *translator = new QTranslator(qApp);
    if (!translator->load(file)) {
        log(QStringLiteral("%1: this is no translation.").arg(QDir::toNativeSeparators(file)));
        delete translator;
        return;
    }
    QCoreApplication::installTranslator(translator);
    installed().append(translator);
}

// How many translations of just this language the folder has; all of them are installed.
int installAll(const QDir &folder, const QString &language)
{
    const QStringList files =
        folder.entryList({QStringLiteral("*_%1.qm").arg(language)}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        install(folder.filePath(file));
    return files.size();
}

// "de-AT" is German for Austria: what "de" has, and over it what is Austrian.
QStringList formsOf(const QString &language)
{
    const QString full = QString(language).replace(QLatin1Char('-'), QLatin1Char('_'));
    const QString plain = full.section(QLatin1Char('_'), 0, 0);
    return full == plain ? QStringList{plain} : QStringList{plain, full};
}

// False when the folder has nothing for the language.
bool installBest(const QDir &folder, const QString &language)
{
    int files = 0;
    for (const QString &form : formsOf(language)) {
        if (form != English) // which is installed already
            files += installAll(folder, form);
    }
    return files > 0 || formsOf(language).first() == English;
}

} // namespace

QString resourceFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath()
                           + QStringLiteral("/../share/orvane"));
}

bool setLanguage(const QString &folder, const QString &language)
{
    qDeleteAll(installed()); // each takes itself out of the application
    installed().clear();
    const QDir translations(folder);
    installAll(translations, English);
    const QStringList wanted =
        language.isEmpty() ? QLocale::system().uiLanguages() : QStringList(language);
    const auto found =
        std::find_if(wanted.cbegin(), wanted.cend(), [&translations](const QString &candidate) {
            return installBest(translations, candidate);
        });
    QLocale::setDefault(QLocale(found == wanted.cend() ? English : *found));
    return found != wanted.cend();
}

} // namespace orvane
