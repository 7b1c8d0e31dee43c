// SPDX-License-Identifier: MIT
#include "tests/translations/spokentool.h"

#include "graph/curvecollection.h"
#include "operation/manualretopooperation.h"
#include "operation/reportsummary.h"
#include "operation/runreport.h"

#include <orvane/geometry/geometry.h>
#include <orvane/kernel/kernel.h>
#include <orvane/kernel/language.h>
#include <orvane/operations/transformoperation.h>

#include <cmath>

using orvane::Vector;

namespace {

void drawNothing(Sheet &) {}

void drawApart(Sheet &sheet)
{
    sheet.straight({1, 1, 0}, {4, 1, 0});
    sheet.straight({1, 2, 0}, {4, 2, 0});
}

void drawCross(Sheet &sheet)
{
    sheet.straight({2, 3.5f, 0}, {5, 3.5f, 0});
    sheet.straight({3.5f, 2, 0}, {3.5f, 5, 0});
}

void drawSquare(Sheet &sheet)
{
    sheet.straight({1, 2, 0}, {7, 2, 0});
    sheet.straight({1, 6, 0}, {7, 6, 0});
    sheet.straight({2, 1, 0}, {2, 7, 0});
    sheet.straight({6, 1, 0}, {6, 7, 0});
}

// Into the square from two of its corners, each ending in a crossing of its own.
void drawLooseEnds(Sheet &sheet)
{
    drawSquare(sheet);
    sheet.stroke({{1.9f, 1.95f, 0}, {3, 3.05f, 0}});
    sheet.stroke({{6.1f, 6.05f, 0}, {5, 4.95f, 0}});
    sheet.straight({2.5f, 3, 0}, {3, 2.5f, 0});
    sheet.straight({5, 5.5f, 0}, {5.5f, 5, 0});
}

// Nine strokes through one place inside a circle: a vertex of 18 edges, which is a fault.
void drawWheel(Sheet &sheet)
{
    const Vector center(5, 5, 0);
    sheet.circle(center, 3.0f, 90);
    for (int i = 0; i < 9; ++i) {
        const float angle = 0.05f + 3.14159265f * float(i) / 9.0f;
        const Vector out = Vector(std::cos(angle), std::sin(angle), 0.0f) * 3.5f;
        sheet.straight(center - out, center + out * 1.01f);
    }
}

// Four cells, one of which has a fifth edge: more than the limit, so a hole.
void drawHole(Sheet &sheet)
{
    drawSquare(sheet);
    sheet.straight({4, 1, 0}, {4, 7, 0});
    sheet.straight({1, 4, 0}, {7, 4, 0});
    sheet.straight({1, 3, 0}, {4.5f, 3, 0});
}

struct Failing
{
    const char *reason;
    void (*draw)(Sheet &);
    int maximumEdges;
};

const Failing Failures[] = {
    {"there are no curves", drawNothing, 5},
    {"no two curves cross", drawApart, 5},
    {"the curves cross, but close no cell", drawCross, 5},
    {"no closed cell of the curves has at most 3 edges", drawSquare, 3},
    {"loose ends keep every cell of the curves from closing", drawLooseEnds, 5},
    {"every mesh was discarded for its faults", drawWheel, 5},
};

} // namespace

SpokenTool::SpokenTool() : OperationScene(QStringLiteral("close")), m_locale(QLocale()) {}

SpokenTool::~SpokenTool()
{
    orvane::setLanguage(QString(), QStringLiteral("en"));
    QLocale::setDefault(m_locale);
}

void SpokenTool::speak(const char *language)
{
    ASSERT_TRUE(
        orvane::setLanguage(QStringLiteral(QUILLMESH_TRANSLATIONS), QLatin1String(language)));
}

QString SpokenTool::messageOf(orvane::Operation &operation)
{
    interface.messages.clear();
    EXPECT_FALSE(orvane::Kernel()->DoOperation(&operation, true, false));
    EXPECT_EQ(interface.messages.size(), 1);
    return interface.messageTexts().value(0);
}

QMap<QString, QString> SpokenTool::failures()
{
    QMap<QString, QString> texts;
    for (const Failing &failing : Failures) {
        orvane::Kernel()->NewScene();
        Sheet sheet;
        failing.draw(sheet);
        ManualRetopoOperation operation(sheet.curves(), failing.maximumEdges, 0.3f, 0.05f, 0.0f,
                                        false);
        texts.insert(QLatin1String(failing.reason), messageOf(operation));
    }
    orvane::Kernel()->NewScene();
    return texts;
}

QString SpokenTool::summary()
{
    orvane::Kernel()->NewScene();
    Sheet sheet;
    drawHole(sheet);
    ManualRetopoOperation operation(sheet.curves(), 4, 0.1f, 0.05f, 0.0f, false);
    EXPECT_TRUE(orvane::Kernel()->DoOperation(&operation, true, false));
    orvane::Kernel()->NewScene();
    return summaryOf(lastRunReport());
}

QString SpokenTool::failedTransformation()
{
    const Sheet sheet;
    orvane::TransformOperation operation(sheet.geometry(), orvane::Matrix::Scaling({1, 1, 0}));
    return messageOf(operation);
}

QString SpokenTool::missingCurves()
{
    orvane::Kernel()->NewScene();
    interface.messages.clear();
    EXPECT_TRUE(collectCurves().isEmpty());
    EXPECT_EQ(interface.messages.size(), 1);
    return interface.messageTexts().value(0);
}

QString SpokenTool::undoText(const QString &className)
{
    orvane::UndoQueue queue;
    queue.Restore({{{className, QByteArray()}}}, 1);
    return queue.UndoText();
}
