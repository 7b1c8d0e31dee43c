// SPDX-License-Identifier: MIT
// Choosing among the translations that the build made.
#include "tests/translations/messages.h"

#include <orvane/kernel/language.h>

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class SetLanguage : public testing::Test
{
protected:
    SetLanguage() : m_locale(QLocale()) {}
    ~SetLanguage() override
    {
        orvane::setLanguage(QString(), QStringLiteral("en"));
        QLocale::setDefault(m_locale);
    }

    static bool speak(const char *language)
    {
        return orvane::setLanguage(QStringLiteral(QUILLMESH_TRANSLATIONS), QLatin1String(language));
    }
    static QString word() { return QCoreApplication::translate("ManualRetopoDialog", "Off"); }
    static QString hostWord() { return QCoreApplication::translate("HelpViewer", "Back"); }
    static QString operation()
    {
        return QCoreApplication::translate("ManualRetopoOperation", "ManualRetopoOperation");
    }

private:
    QLocale m_locale;
};

struct Languages
{
    const char *list;   // LANGUAGE
    const char *locale; // LANG
};

QString followed(const Languages &languages)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LC_ALL"));
    environment.remove(QStringLiteral("LC_MESSAGES"));
    environment.insert(QStringLiteral("LANGUAGE"), QLatin1String(languages.list));
    environment.insert(QStringLiteral("LANG"), QLatin1String(languages.locale));
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(QUILLMESH_SYSTEMLANGUAGE),
                  {QStringLiteral(QUILLMESH_TRANSLATIONS)});
    EXPECT_TRUE(program.waitForFinished());
    return QString::fromLocal8Bit(program.readAllStandardOutput()).simplified();
}

} // namespace

TEST_F(SetLanguage, toGermanAndBackToEnglish)
{
    EXPECT_TRUE(speak("de"));
    EXPECT_EQ(word(), QStringLiteral("Aus"));
    EXPECT_EQ(hostWord(), QStringLiteral("Zurück"));
    EXPECT_EQ(QLocale().language(), QLocale::German);
    EXPECT_TRUE(speak("en"));
    EXPECT_EQ(word(), QStringLiteral("Off"));
    EXPECT_EQ(hostWord(), QStringLiteral("Back"));
    EXPECT_EQ(QLocale().language(), QLocale::English);
}

TEST_F(SetLanguage, toGermanOfACountryIsGerman)
{
    for (const char *language : {"de_AT", "de-CH", "de_DE"}) {
        EXPECT_TRUE(speak("en"));
        EXPECT_TRUE(speak(language));
        EXPECT_EQ(word(), QStringLiteral("Aus")) << language;
        EXPECT_EQ(hostWord(), QStringLiteral("Zurück")) << language;
    }
    EXPECT_EQ(QLocale().language(), QLocale::German);
}

TEST_F(SetLanguage, toOneWithoutATranslationIsRefusedAndEnglish)
{
    EXPECT_TRUE(speak("de"));
    EXPECT_FALSE(speak("fi"));
    EXPECT_EQ(word(), QStringLiteral("Off"));
    EXPECT_EQ(hostWord(), QStringLiteral("Back"));
    EXPECT_EQ(operation(), QStringLiteral("Create Mesh from Curves"));
}

TEST_F(SetLanguage, toEnglishOfACountryIsEnglish)
{
    EXPECT_TRUE(speak("en_GB"));
    EXPECT_EQ(operation(), QStringLiteral("Create Mesh from Curves"));
}

TEST_F(SetLanguage, namesTheOperationInTheLanguageRatherThanInEnglish)
{
    EXPECT_EQ(operation(), QStringLiteral("ManualRetopoOperation"));
    EXPECT_TRUE(speak("en"));
    EXPECT_EQ(operation(), QStringLiteral("Create Mesh from Curves"));
    EXPECT_TRUE(speak("de"));
    EXPECT_EQ(operation(), QStringLiteral("Netz aus Kurven erzeugen"));
}

TEST_F(SetLanguage, followsTheSystemWhenNoneIsGiven)
{
    const QString german = QStringLiteral("yes Aus");
    const QString english = QStringLiteral("yes Off");
    EXPECT_EQ(followed({"de", "en_US.UTF-8"}), german);
    EXPECT_EQ(followed({"fi:de_AT:en", "fi_FI.UTF-8"}), german);
    EXPECT_EQ(followed({"en:de", "de_DE.UTF-8"}), english);
    EXPECT_EQ(followed({"", "de_DE.UTF-8"}), german);
    EXPECT_EQ(followed({"", "en_US.UTF-8"}), english);
    EXPECT_EQ(followed({"", "fi_FI.UTF-8"}), QStringLiteral("no Off"));
}

TEST_F(SetLanguage, findsEveryMessageOfEveryLanguage)
{
    for (const char *language : {"de", "en"}) {
        EXPECT_TRUE(speak(language));
        const QVector<Message> messages = messagesIn(QLatin1String(language));
        EXPECT_FALSE(messages.isEmpty());
        for (const Message &message : messages)
            EXPECT_EQ(QCoreApplication::translate(message.context.toUtf8().constData(),
                                                  message.source.toUtf8().constData()),
                      message.translation);
    }
}

TEST_F(SetLanguage, toOneThatIsAddedToTheFolder)
{
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile::copy(QStringLiteral(QUILLMESH_TRANSLATIONS "/quillmesh_de.qm"),
                            folder.filePath(QStringLiteral("quillmesh_nl.qm"))));
    EXPECT_FALSE(orvane::setLanguage(folder.path(), QStringLiteral("de")));
    EXPECT_TRUE(orvane::setLanguage(folder.path(), QStringLiteral("nl_BE")));
    EXPECT_EQ(word(), QStringLiteral("Aus"));
}
