// SPDX-License-Identifier: MIT
#include "tests/ui/faultdialog.h"
#include "ui/validatemeshfeedbackmdialog.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QTextDocument>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

const int AllFaults = 0xf0f0f;

struct Reading
{
    const char *title;
    const char *text;
};

// What people read, row by row.
const Reading Rows[] = {
    {"High-valence vertex",
     "At least one vertex has more than 16 adjacent edges. You can use this mesh, but if you use "
     "it for a map extraction with Mesh Smoothing turned on, there will be artifacts in the "
     "resulting map."},
    {"Non-manifold (T-shape)",
     "At least one edge in this mesh is shared by more than two faces. This must be corrected "
     "before the mesh can be used in Orvane."},
    {"Non-manifold (vertex splice)",
     "At least one vertex in this mesh is shared by faces that are not a part of the same fan. "
     "This must be corrected before the mesh can be used in Orvane."},
    {"Two-sided faces",
     "There is at least one face in this mesh whose boundary is made up of only two edges. Using "
     "this mesh in Orvane will cause errors when sculpting and painting."},
    {"Too many sides in a face",
     "The boundary of at least one face in the mesh comprises more than 16 edges. This mesh will "
     "not subdivide properly, and will show visible artifacts near this face if painted."},
    {"Boundary Vertex has Too Many Edges",
     "A vertex is shared by more than two boundary edges. This must be corrected before the mesh "
     "can be used in Orvane."},
    {"Interior Vertex has Valence Two",
     "A vertex on the interior of the mesh has exactly two edges connecting it. This mesh cannot "
     "be subdivided, and will cause problems when sculpting."},
    {"Zero-length edges",
     "At least one edge in this mesh is zero-length. If painted, this mesh will show visible "
     "artifacts. This can be corrected by subdividing the mesh once with Smooth Positions turned "
     "on."},
    {"Lamina Faces",
     "Some faces in this mesh lie exactly on top of other faces. This mesh will not subdivide "
     "properly, and will have visible artifacts if painted."},
    {"UV Faces Crossing Tile Boundaries",
     "The UV coordinates of some faces on this mesh cross tile boundaries. (In Orvane, UV tiles "
     "are bounded by integer UV values, such as 0-1, 1-2, 2-3, etc.) This mesh cannot be painted "
     "properly. To see the problem, go to the UV View tab."},
    {"Incomplete UV Set",
     "This mesh has an incomplete set of UVs. You must fix this problem before you can subdivide "
     "or paint the mesh properly. To replace the UVs, use \"Create UVs...\" in the \"UVs and "
     "Maps\" menu."},
    {"Degenerated Face",
     "This mesh has some triangles where three corners lie on the same line, the normal of this "
     "kind of face may not be calculated properly."},
};

// Turns every text of the dialog into its first letters and a mark.
class MarkingTranslator : public QTranslator
{
public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        if (qstrcmp(context, "ValidateMeshFeedbackmDialog") != 0)
            return QString();
        return QString(QLatin1String(source)).left(16) + QLatin1Char('#');
    }
};

QString read(const QString &richText)
{
    QTextDocument document;
    document.setHtml(richText);
    return document.toPlainText().simplified();
}

} // namespace

TEST(FaultTexts, areReadWordForWord)
{
    const ValidateMeshFeedbackmDialog dialog(nullptr, QString(), AllFaults);
    for (int row = 0; row < 12; ++row) {
        ASSERT_NE(rowText(dialog, row), nullptr) << "row " << row;
        EXPECT_EQ(read(rowText(dialog, row)->text()), QLatin1String(Rows[row].title)
                                                          + QLatin1Char(' ')
                                                          + QLatin1String(Rows[row].text));
    }
    EXPECT_EQ(rowText(dialog, 12), nullptr);
}

TEST(FaultTexts, areAllTranslated)
{
    const MarkingTranslator translator;
    const ValidateMeshFeedbackmDialog dialog(nullptr, QString(), AllFaults);
    const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
    int texts = 0;
    for (const QLabel *label : labels) {
        if (label->text().isEmpty())
            continue; // a picture
        ++texts;
        EXPECT_TRUE(label->text().endsWith(QLatin1Char('#'))) << qPrintable(label->text());
    }
    EXPECT_EQ(texts, 2 + 12);
    for (const QLatin1String name : {QLatin1String("accept"), QLatin1String("close")}) {
        const auto *button = dialog.findChild<QPushButton *>(name);
        ASSERT_NE(button, nullptr);
        EXPECT_TRUE(button->text().endsWith(QLatin1Char('#')));
        EXPECT_TRUE(button->toolTip().endsWith(QLatin1Char('#')));
    }
}
