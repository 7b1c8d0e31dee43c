// SPDX-License-Identifier: MIT
// What people read of the tool and its host in German, and in English again.
#include "operation/manualretopooperation.h"
#include "tests/translations/askedtexts.h"
#include "tests/translations/messages.h"
#include "tests/translations/shown.h"
#include "tests/translations/spokentool.h"

#include <orvane/base/classdesc.h>
#include <orvane/base/operation.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/plugin.h>

#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

const char *const MeshName = "Körper-Retopo";

bool isOperation(const QString &context)
{
    const orvane::ClassDesc *desc = orvane::ClassDesc::ByName(context);
    return desc && desc->IsA(orvane::Operation::StaticClass());
}

// The tool's own and what it uses of the host; the texts of the desktop are shown there only.
QVector<Message> shownMessages()
{
    const QDir folder(messageFolder());
    QVector<Message> messages = messagesOf(folder.filePath(QStringLiteral("quillmesh_de.ts")));
    const QStringList ofHost{QStringLiteral("Kernel"), QStringLiteral("HelpViewer"),
                             QStringLiteral("orvane::HelpBrowser")};
    for (const Message &message : messagesOf(folder.filePath(QStringLiteral("orvane_de.ts")))) {
        if (ofHost.contains(message.context) || isOperation(message.context))
            messages.append(message);
    }
    return messages;
}

class GermanTool : public SpokenTool
{
protected:
    // The initialiser runs once in a process: in German.
    struct Menu
    {
        QString label;
        QStringList asked;
    };

    const Menu &menu()
    {
        static const Menu germanMenu = makeMenu();
        return germanMenu;
    }

    // Everything that can be asked for, under the program's own contexts.
    void showEverything()
    {
        textsOfSettings();
        textsOfHelp();
        textsOfFaults(QString::fromUtf8(MeshName));
        textsOfMissingPage(QStringLiteral("Nowhere"));
        textsOfMissingPage(QStringLiteral("../Nowhere"));
        failures();
        summary();
        failedTransformation();
        missingCurves();
        for (const QString &operation : operations())
            undoText(operation);
    }

    QStringList operations() const
    {
        QStringList names;
        for (const Message &message : german) {
            if (isOperation(message.context))
                names.append(message.context);
        }
        names.removeDuplicates();
        return names;
    }

    // Every message of the context is among the texts in both languages, and only there.
    void expectSpoken(const char *context, const QSet<QString> &germanTexts,
                      const QSet<QString> &englishTexts, int count) const
    {
        int spoken = 0;
        for (const Message &message : german) {
            if (message.context != QLatin1String(context))
                continue;
            ++spoken;
            const QString from = filled(message.source);
            const QString to = filled(message.translation);
            EXPECT_TRUE(germanTexts.contains(to)) << qPrintable(to);
            EXPECT_TRUE(englishTexts.contains(from)) << qPrintable(from);
            if (from == to)
                continue;
            EXPECT_FALSE(germanTexts.contains(from)) << qPrintable(from);
            EXPECT_FALSE(englishTexts.contains(to)) << qPrintable(to);
        }
        EXPECT_EQ(spoken, count);
    }

    const QVector<Message> german = shownMessages();

private:
    static QString filled(const QString &text)
    {
        return text.contains(QLatin1String("%1")) ? text.arg(QString::fromUtf8(MeshName)) : text;
    }

    Menu makeMenu()
    {
        speak("de");
        const AskedTexts asked;
        const QVector<const orvane::Plugin *> records = orvane::Plugin::All();
        const auto record =
            std::find_if(records.cbegin(), records.cend(), [](const orvane::Plugin *plugin) {
                return plugin->Name() == QLatin1String("Quillmesh");
            });
        if (record == records.cend() || !(*record)->Initialise().isEmpty()
            || interface.MenuItems().isEmpty())
            qFatal("the tool has no menu entry");
        return {interface.MenuItems().last().label, asked.keys()};
    }
};

} // namespace

TEST_F(GermanTool, isAskedForEveryMessageUnderItsContextAndForNothingElse)
{
    QStringList asked = menu().asked;
    speak("de");
    const AskedTexts record;
    showEverything();
    asked += record.keys();

    QSet<QString> contexts;
    for (const Message &message : german)
        contexts.insert(message.context);
    QStringList own;
    for (const QString &key : qAsConst(asked)) {
        if (contexts.contains(key.section(QLatin1String(": "), 0, 0)))
            own.append(key);
    }
    own.removeDuplicates();
    own.sort();
    EXPECT_EQ(own.join(QLatin1Char('\n')).toStdString(),
              keysOf(german).join(QLatin1Char('\n')).toStdString());
}

TEST_F(GermanTool, asksOnlyQtForTextsOfOtherContexts)
{
    speak("de");
    const AskedTexts record;
    showEverything();
    const QStringList own = keysOf(german);
    for (const QString &key : record.keys()) {
        if (own.contains(key))
            continue;
        EXPECT_TRUE(key.startsWith(QLatin1Char('Q')) && !key.startsWith(QLatin1String("Quillmesh")))
            << qPrintable(key);
    }
}

TEST_F(GermanTool, hasGermanSettings)
{
    speak("de");
    const QSet<QString> texts = textsOfSettings();
    EXPECT_TRUE(texts.contains(QStringLiteral("Netz aus Kurven erzeugen")));
    EXPECT_TRUE(texts.contains(QStringLiteral("Netz erzeugen")));
    speak("en");
    expectSpoken("ManualRetopoDialog", texts, textsOfSettings(), 23);
}

TEST_F(GermanTool, hasAGermanHelpDialog)
{
    speak("de");
    const QSet<QString> texts = textsOfHelp();
    EXPECT_TRUE(
        texts.contains(QStringLiteral("<font size=+3>So erzeugen Sie ein Netz aus Kurven</font>")));
    speak("en");
    expectSpoken("RetopologyHelpDialog", texts, textsOfHelp(), 6);
}

TEST_F(GermanTool, explainsAllTwelveFaultsInGerman)
{
    speak("de");
    const QString name = QString::fromUtf8(MeshName);
    const QSet<QString> texts = textsOfFaults(name);
    EXPECT_TRUE(texts.contains(QStringLiteral("Das Netz Körper-Retopo enthält Fehler. ")));
    EXPECT_EQ(std::count_if(texts.cbegin(), texts.cend(),
                            [](const QString &text) {
                                return text.startsWith(QLatin1String("<strong>"))
                                       && text.contains(QLatin1String("</strong><p></p>"));
                            }),
              12);
    speak("en");
    expectSpoken("ValidateMeshFeedbackmDialog", texts, textsOfFaults(name), 18);
}

TEST_F(GermanTool, hasAGermanHelpWindow)
{
    speak("de");
    const QSet<QString> missing = textsOfMissingPage(QStringLiteral("Nowhere"));
    for (const char *text : {"Zurück", "Vorwärts", "Startseite", "Noch keine Hilfe dazu – Hilfe"})
        EXPECT_TRUE(missing.contains(QString::fromUtf8(text))) << text;
    const QString page = QStringLiteral("Noch keine Hilfe dazu\nEs gibt keine Seite für "
                                        "\"Nowhere\". Die Datei ");
    EXPECT_TRUE(std::any_of(missing.cbegin(), missing.cend(), [page](const QString &text) {
        return text.startsWith(page) && text.endsWith(QLatin1String(" kann nicht gelesen werden."));
    }));
    EXPECT_TRUE(textsOfMissingPage(QStringLiteral("../Nowhere"))
                    .contains(QStringLiteral("Noch keine Hilfe dazu\nEs gibt keine Seite für "
                                             "\"../Nowhere\". Der Name einer Seite enthält keinen "
                                             "Ordner.")));
    speak("en");
    const QSet<QString> english = textsOfMissingPage(QStringLiteral("Nowhere"));
    for (const char *text : {"Back", "Forward", "Home", "No help on this yet - Help"})
        EXPECT_TRUE(english.contains(QLatin1String(text))) << text;
}

TEST_F(GermanTool, hasAGermanMenuEntry)
{
    EXPECT_EQ(menu().label, QStringLiteral("Netz aus Kurven erzeugen..."));
}

TEST_F(GermanTool, saysInGermanThatThereAreNoCurves)
{
    speak("de");
    EXPECT_EQ(missingCurves(), QStringLiteral("Keine gültige 3D-Kurve in der Szene"));
    speak("en");
    EXPECT_EQ(missingCurves(), QStringLiteral("No valid 3d curve in scene"));
}

TEST_F(GermanTool, saysInGermanWhyNoMeshWasMade)
{
    const char *const operation = "ManualRetopoOperation";
    speak("de");
    const QMap<QString, QString> texts = failures();
    EXPECT_EQ(texts.size(), 6);
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        QString source = text.key();
        source.replace(QLatin1Char('3'), QLatin1String("%1"));
        QString reason = translationOf(german, operation, qPrintable(source));
        reason.replace(QLatin1String("%1"), QLatin1String("3"));
        EXPECT_EQ(text.value(), QStringLiteral("Es wurde nichts erzeugt: ") + reason);
    }
    EXPECT_EQ(texts.value(QStringLiteral("no two curves cross")),
              QStringLiteral("Es wurde nichts erzeugt: keine Kurven, die sich kreuzen"));
    EXPECT_TRUE(failedTransformation().startsWith(QStringLiteral("Es wurde nichts erzeugt: Geo")));

    speak("en");
    const QMap<QString, QString> english = failures();
    for (auto text = english.cbegin(); text != english.cend(); ++text)
        EXPECT_EQ(text.value(), QStringLiteral("Nothing was made: ") + text.key());
}

TEST_F(GermanTool, saysInGermanWhatWasMade)
{
    speak("de");
    const QString sentence =
        QStringLiteral("^Kreuzungen: \\d+\\. Flächen: 4\\. Löcher: 1\\. Dauer: [\\d.]+ s\\.$");
    const QString text = summary();
    EXPECT_TRUE(QRegularExpression(sentence).match(text).hasMatch()) << qPrintable(text);
    speak("en");
    EXPECT_TRUE(summary().startsWith(QStringLiteral("Crossings: ")));
}

TEST_F(GermanTool, namesEveryStepOfTheEditMenuInGerman)
{
    const QStringList names = operations();
    EXPECT_EQ(names.size(), 14);
    for (const QString &name : names) {
        speak("en");
        const QString english = undoText(name);
        speak("de");
        EXPECT_EQ(undoText(name),
                  translationOf(german, qPrintable(name),
                                qPrintable(orvane::ClassDesc::ByName(name)->DisplayName())));
        EXPECT_NE(undoText(name), english);
    }
}

TEST_F(GermanTool, namesItsOwnStepInBothLanguages)
{
    Sheet sheet;
    sheet.grid(2, 2);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(operationOn(sheet.curves()).get(), true, false));
    orvane::UndoQueue &queue = orvane::Kernel()->Undos();
    EXPECT_EQ(queue.UndoText(), QStringLiteral("ManualRetopoOperation"));
    speak("en");
    EXPECT_EQ(queue.UndoText(), QStringLiteral("Create Mesh from Curves"));
    speak("de");
    EXPECT_EQ(queue.UndoText(), QStringLiteral("Netz aus Kurven erzeugen"));
    ASSERT_TRUE(orvane::Kernel()->Undo());
    EXPECT_EQ(queue.RedoText(), QStringLiteral("Netz aus Kurven erzeugen"));
    speak("en");
    EXPECT_EQ(queue.RedoText(), QStringLiteral("Create Mesh from Curves"));
}
