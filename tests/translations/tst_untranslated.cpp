// SPDX-License-Identifier: MIT
// What stays as it is in every language, on purpose: it goes past the translations.
#include "operation/manualretopooperation.h"
#include "tests/plugin/toolscene.h"
#include "tests/support/logcatcher.h"
#include "tests/support/shapes.h"
#include "tests/translations/messages.h"
#include "tests/translations/shown.h"
#include "tests/translations/spokentool.h"
#include "tests/ui/bracketing.h"

#include <orvane/base/nodetable.h>
#include <orvane/geometry/geometry.h>
#include <orvane/geometry/orvanecurve.h>
#include <orvane/geometry/subdivisionlevel.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>
#include <orvane/kernel/scene.h>

#include <QScopedPointer>

namespace {

const char *const SettingsLabels[] = {
    "Maximum Edges in a Face: ", "Merge vertices closer than ", "Intersection Tolerance: ",
    "Overrun Tolerance: ",       "Ignore Self-intersections: ", "Render Intersections: ",
    "% of average edge length",
};

QSet<QString> settingsLabels()
{
    QSet<QString> texts;
    for (const char *label : SettingsLabels)
        texts.insert(QLatin1String(label));
    return texts;
}

// Of the points only; no geometry need hold the mesh.
void bindTo(const orvane::Mesh &mesh, orvane::OrvaneCurve &curve)
{
    QVector<orvane::CurvePoint> points;
    for (const orvane::CurvePoint &point : curve.Points()) {
        const orvane::SurfacePoint &on = point.surfacePoint;
        points.append(
            orvane::CurvePoint(orvane::SurfacePoint(mesh, on.FaceIndex(), on.U(), on.V())));
    }
    curve.SetPoints(points);
}

class Untranslated : public SpokenTool
{
protected:
    void createFrom(const Sheet &sheet)
    {
        ASSERT_TRUE(orvane::Kernel()->DoOperation(operationOn(sheet.curves()).get(), true, false));
    }
    static const orvane::Geometry *created()
    {
        return orvane::Kernel()->Scene()->Geometries().last();
    }
};

class UntranslatedTool : public ToolScene
{
protected:
    UntranslatedTool() : m_locale(QLocale())
    {
        orvane::setLanguage(QStringLiteral(QUILLMESH_TRANSLATIONS), QStringLiteral("de"));
        makeTool();
    }
    ~UntranslatedTool() override
    {
        orvane::setLanguage(QString(), QStringLiteral("en"));
        QLocale::setDefault(m_locale);
    }

private:
    QLocale m_locale;
};

} // namespace

TEST_F(Untranslated, areTheRowAndUnitLabelsOfTheSettings)
{
    const Bracketing brackets("ManualRetopoDialog");
    QSet<QString> plain;
    for (const QString &text : textsOfSettings()) {
        if (!text.startsWith(QLatin1Char('[')))
            plain.insert(text);
    }
    EXPECT_EQ(plain, settingsLabels());
}

TEST_F(Untranslated, areNoOtherTextsOfTheWindows)
{
    speak("de");
    QSet<QString> texts = textsOfSettings() + textsOfHelp() + textsOfFaults(QStringLiteral("%1"));
    for (const Message &message : messagesIn(QStringLiteral("de")))
        texts.remove(message.translation);
    EXPECT_EQ(texts, settingsLabels());
}

TEST_F(Untranslated, areTheTextsOfProgress)
{
    const Bracketing brackets("");
    Sheet sheet;
    sheet.grid(2, 2);
    ManualRetopoOperation operation(sheet.curves(), 5, 0.1f, 0.05f, 0.0f, true);
    ASSERT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_EQ(interface.phaseTexts(), (QStringList{QStringLiteral("sample curves..."),
                                                   QStringLiteral("self intersections..."),
                                                   QStringLiteral("cross intersections...")}));
}

TEST_F(Untranslated, areTheNamesOfNewObjects)
{
    const Bracketing brackets("");
    Sheet sheet;
    sheet.grid(2, 2);
    createFrom(sheet);
    EXPECT_EQ(created()->Name(), QStringLiteral("Sheet-Retopo"));
    EXPECT_EQ(created()->CurrentLevel()->Name(), QStringLiteral("Sketched Mesh"));
}

TEST_F(Untranslated, isTheNameOfAnObjectFromCurvesOnNoGeometry)
{
    const Bracketing brackets("");
    Sheet sheet;
    sheet.grid(2, 2);
    const QScopedPointer<orvane::SubdivisionLevel> mesh(gridOfQuads(10, 10));
    orvane::NodeTable::Instance().Enter(mesh.data());
    for (orvane::OrvaneCurve *curve : sheet.curves())
        bindTo(*mesh, *curve);
    createFrom(sheet);
    orvane::NodeTable::Instance().Leave(mesh.data());
    EXPECT_EQ(created()->Name(), QStringLiteral("manual-Retopo"));
}

TEST_F(Untranslated, isTheLog)
{
    const Bracketing brackets("");
    LogCatcher log;
    EXPECT_TRUE(failedTransformation().startsWith(QLatin1Char('[')));
    orvane::UndoQueue queue;
    queue.Restore({{{QStringLiteral("Nobody"), QByteArray()}}}, 1);
    EXPECT_FALSE(queue.Undo());
    for (const char *text : {"\"Sheet\" cannot be moved there and back.",
                             "No operation class named Nobody: the step cannot be run."})
        EXPECT_TRUE(log.texts().contains(QLatin1String(text))) << text;
    EXPECT_FALSE(log.text().contains(QLatin1Char('['))) << qPrintable(log.text());
}

TEST_F(UntranslatedTool, isTheCommandWithItsNumbers)
{
    Sheet sheet;
    sheet.grid(2, 2);
    type("mergeDistance", QStringLiteral("12.5"));
    createMesh();
    EXPECT_EQ(lastCommand(), QStringLiteral("manualretopo 5 0.125 0.05 35 0"));
    EXPECT_EQ(undoSteps(), 1);
    EXPECT_EQ(orvane::Kernel()->Undos().UndoText(), QStringLiteral("Netz aus Kurven erzeugen"));
}
