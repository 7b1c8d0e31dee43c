// SPDX-License-Identifier: MIT
#include "tests/ui/faultdialog.h"
#include "ui/meshfaultrows.h"
#include "ui/validatemeshfeedbackmdialog.h"

#include <QApplication>
#include <QDir>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const int AllFaults = 0xf0f0f;

QString meshName()
{
    return QStringLiteral("Body-Retopo");
}

// A folder with one picture for each icon, all of different colours, as the working directory.
class FaultDialogPictures : public testing::Test
{
protected:
    FaultDialogPictures() : m_before(QDir::currentPath())
    {
        QDir::setCurrent(m_folder.path());
        QDir().mkdir(QStringLiteral("Icons"));
        for (const MeshFaultRow &row : meshFaultRows())
            picture(row).save(QLatin1String(row.icon));
    }
    ~FaultDialogPictures() override { QDir::setCurrent(m_before); }

    static QImage picture(const MeshFaultRow &row)
    {
        QImage image(32, 32, QImage::Format_RGB32);
        image.fill(0xff000000u | qHash(QLatin1String(row.icon)));
        return image;
    }
    static QImage shown(const QLabel *label)
    {
        return label->pixmap(Qt::ReturnByValue).toImage().convertToFormat(QImage::Format_RGB32);
    }

private:
    QTemporaryDir m_folder;
    QString m_before;
};

} // namespace

TEST(FaultDialog, highValenceAndDegenerateFaceAreTwoRows)
{
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), 0x00001 | 0x80000);
    EXPECT_EQ(rowTitles(dialog), (QStringList{QStringLiteral("High-valence vertex"),
                                              QStringLiteral("Degenerated Face")}));
    EXPECT_EQ(rowPicture(dialog, 2), nullptr);
}

TEST_F(FaultDialogPictures, theDegenerateFaceHasThePictureOfTheZeroLengthEdge)
{
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), 0x00001 | 0x80000);
    EXPECT_EQ(shown(rowPicture(dialog, 0)), picture(meshFaultRows()[0]));
    ASSERT_EQ(meshFaultRows()[7].bit, 0x00100);
    EXPECT_EQ(shown(rowPicture(dialog, 1)), picture(meshFaultRows()[7]));
}

TEST(FaultDialog, theTShapeComesBeforeTheVertexSpliceThoughItsBitIsHigher)
{
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), 0x10000 | 0x00008);
    EXPECT_EQ(rowTitles(dialog), (QStringList{QStringLiteral("Non-manifold (T-shape)"),
                                              QStringLiteral("Non-manifold (vertex splice)")}));
}

TEST(FaultDialog, aFaultWithoutARowShowsAnEmptyListAndAcceptKeepsTheMesh)
{
    ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), 0x00010);
    EXPECT_EQ(faultGrid(dialog)->count(), 0);
    const DialogVisitor visitor(clickAccept);
    dialog.exec();
    EXPECT_TRUE(visitor.hasVisited());
    EXPECT_TRUE(dialog.isAccepted());
}

TEST_F(FaultDialogPictures, everyFaultHasItsRowWithItsPictureAndText)
{
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), AllFaults);
    ASSERT_EQ(rowTitles(dialog).size(), 12);
    for (int row = 0; row < 12; ++row) {
        const MeshFaultRow &expected = meshFaultRows()[size_t(row)];
        EXPECT_EQ(rowText(dialog, row)->text(), QLatin1String(expected.text));
        EXPECT_EQ(shown(rowPicture(dialog, row)), picture(expected)) << expected.icon;
    }
}

TEST(FaultDialog, eachFaultAloneIsInTheFirstRow)
{
    for (const MeshFaultRow &row : meshFaultRows()) {
        const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), row.bit);
        ASSERT_EQ(rowTitles(dialog).size(), 1) << row.icon;
        EXPECT_EQ(rowText(dialog, 0)->text(), QLatin1String(row.text));
    }
}

TEST(FaultDialog, aMissingPictureLeavesItsRow)
{
    ASSERT_FALSE(QFile::exists(QStringLiteral("Icons/mesh_zerolength.png")));
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), 0x00100);
    ASSERT_NE(rowPicture(dialog, 0), nullptr);
    EXPECT_TRUE(rowPicture(dialog, 0)->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(rowTitles(dialog), QStringList{QStringLiteral("Zero-length edges")});
}

TEST(FaultDialog, textsWrapBesideThePictureAndStandAtTheTopLeft)
{
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), AllFaults);
    QGridLayout *grid = faultGrid(dialog);
    for (int i = 0; i < 12; ++i) {
        int row = -1;
        int column = -1;
        int rows = -1;
        int columns = -1;
        grid->getItemPosition(grid->indexOf(rowText(dialog, i)), &row, &column, &rows, &columns);
        EXPECT_EQ((QVector<int>{row, column, rows, columns}), (QVector<int>{i, 1, 1, 4}));
        EXPECT_TRUE(rowText(dialog, i)->wordWrap());
        EXPECT_EQ(rowText(dialog, i)->alignment(), Qt::AlignTop | Qt::AlignLeft);
    }
}

TEST(FaultDialog, headingNamesTheMeshAboveTheListAndTheButtons)
{
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), AllFaults);
    EXPECT_EQ(dialog.windowTitle(), QString());
    auto *layout = qobject_cast<QVBoxLayout *>(dialog.layout());
    ASSERT_NE(layout, nullptr);
    ASSERT_EQ(layout->count(), 4);
    const auto *header = qobject_cast<QLabel *>(layout->itemAt(0)->widget());
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(header->text(),
              QStringLiteral("<strong><font size=\"5\">Retopologizing Problem</font></strong>"));
    EXPECT_TRUE(header->alignment() & Qt::AlignHCenter);
    const auto *message = qobject_cast<QLabel *>(layout->itemAt(1)->widget());
    ASSERT_NE(message, nullptr);
    EXPECT_EQ(message->text(), QStringLiteral("The mesh Body-Retopo contains errors. "));
    EXPECT_NE(qobject_cast<QScrollArea *>(layout->itemAt(2)->widget()), nullptr);
    EXPECT_NE(qobject_cast<QHBoxLayout *>(layout->itemAt(3)->layout()), nullptr);
}

TEST(FaultDialog, aNameThatLooksLikeMarkupIsShownAsItIs)
{
    const QString name = QStringLiteral("<b>%1</b>");
    const ValidateMeshFeedbackmDialog dialog(nullptr, name, AllFaults);
    const auto *message = qobject_cast<QLabel *>(dialog.layout()->itemAt(1)->widget());
    EXPECT_EQ(message->text(),
              QStringLiteral("The mesh ") + name + QStringLiteral(" contains errors. "));
    EXPECT_EQ(message->textFormat(), Qt::PlainText);
}

TEST(FaultDialog, theListScrollsInAPlainFrame)
{
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), AllFaults);
    const auto *list = dialog.findChild<QScrollArea *>();
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->frameStyle(), 0);
    const auto *frame = qobject_cast<QFrame *>(list->widget());
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->minimumWidth(), 400);
}

TEST(FaultDialog, theButtonsMeetInTheMiddle)
{
    const ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), AllFaults);
    auto *row = qobject_cast<QHBoxLayout *>(dialog.layout()->itemAt(3)->layout());
    ASSERT_EQ(row->count(), 2);
    const auto *accept = qobject_cast<QPushButton *>(row->itemAt(0)->widget());
    const auto *close = qobject_cast<QPushButton *>(row->itemAt(1)->widget());
    ASSERT_TRUE(accept && close);
    EXPECT_EQ(accept->text(), QStringLiteral("Accept"));
    EXPECT_EQ(accept->toolTip(), QStringLiteral("Accept the mesh and close dialog."));
    EXPECT_EQ(row->itemAt(0)->alignment(), Qt::AlignRight);
    EXPECT_EQ(close->text(), QStringLiteral("Close"));
    EXPECT_EQ(close->toolTip(), QStringLiteral("Close this dialog and return to Orvane."));
    EXPECT_EQ(row->itemAt(1)->alignment(), Qt::AlignLeft);
}

TEST(FaultDialog, hasTwoPrivateSlotsAndNoSignal)
{
    const QMetaObject &meta = ValidateMeshFeedbackmDialog::staticMetaObject;
    EXPECT_STREQ(meta.className(), "ValidateMeshFeedbackmDialog");
    EXPECT_EQ(meta.superClass(), &QDialog::staticMetaObject);
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 2);
    const char *const names[] = {"OnClose()", "OnAccept()"};
    for (int i = 0; i < 2; ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        EXPECT_EQ(method.methodSignature(), names[i]);
        EXPECT_EQ(method.methodType(), QMetaMethod::Slot);
        EXPECT_EQ(method.access(), QMetaMethod::Private);
    }
}

TEST(FaultDialog, onlyAcceptSetsTheFlagAndEveryEndHasTheSameResult)
{
    const auto endedBy = [](void (*end)(QDialog &)) {
        ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), AllFaults);
        EXPECT_FALSE(dialog.isAccepted());
        const DialogVisitor visitor(end);
        EXPECT_EQ(dialog.exec(), 0);
        EXPECT_TRUE(visitor.hasVisited());
        EXPECT_FALSE(dialog.isVisible());
        return dialog.isAccepted();
    };
    EXPECT_TRUE(endedBy(clickAccept));
    EXPECT_FALSE(endedBy(clickClose));
    EXPECT_FALSE(endedBy(pressEscape));
    EXPECT_FALSE(endedBy(closeWindow));
}

TEST(FaultDialog, showsAFewFaultsWholeAndScrollsManyDownwardsOnly)
{
    for (int faults : {0x00001, 0x00001 | 0x80000, AllFaults}) {
        ValidateMeshFeedbackmDialog dialog(nullptr, meshName(), faults);
        dialog.show();
        QApplication::processEvents();
        const auto *list = dialog.findChild<QScrollArea *>();
        EXPECT_EQ(list->horizontalScrollBar()->maximum(), 0) << faults;
        EXPECT_EQ(list->verticalScrollBar()->maximum() > 0, faults == AllFaults) << faults;
    }
}
