// SPDX-License-Identifier: MIT
#include "tests/support/workingfolder.h"

#include <orvane/widgets/picture.h>

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

using orvane::loadPicture;

namespace {

QImage square(int size, const QColor &colour)
{
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

QString path()
{
    return QStringLiteral("Icons/tooltips/step.one.png");
}

class Picture : public testing::Test
{
protected:
    void writePlain() { m_folder.write(path(), square(16, Qt::red)); }
    void writeDoubled()
    {
        m_folder.write(QStringLiteral("Icons/tooltips/step.one@2x.png"), square(32, Qt::blue));
    }

    WorkingFolder m_folder;
};

} // namespace

TEST_F(Picture, aPlainScreenTakesThePlainFile)
{
    writePlain();
    writeDoubled();
    const QPixmap picture = loadPicture(path(), 1.0);
    EXPECT_EQ(picture.size(), QSize(16, 16));
    EXPECT_EQ(picture.devicePixelRatio(), 1.0);
    EXPECT_EQ(picture.toImage().pixelColor(8, 8), QColor(Qt::red));
}

TEST_F(Picture, aFinerScreenTakesTheDoubledFileAtHalfItsSize)
{
    writePlain();
    writeDoubled();
    for (const double ratio : {1.25, 2.0, 3.0}) {
        const QPixmap picture = loadPicture(path(), ratio);
        EXPECT_EQ(picture.size(), QSize(32, 32)) << ratio;
        EXPECT_EQ(picture.devicePixelRatio(), 2.0) << ratio;
        EXPECT_EQ(picture.toImage().pixelColor(8, 8), QColor(Qt::blue)) << ratio;
    }
}

TEST_F(Picture, aFinerScreenTakesThePlainFileWhenThereIsNoDoubledOne)
{
    writePlain();
    const QPixmap picture = loadPicture(path(), 2.0);
    EXPECT_EQ(picture.size(), QSize(16, 16));
    EXPECT_EQ(picture.devicePixelRatio(), 1.0);
}

TEST_F(Picture, aDoubledFileThatIsNoPictureIsPassedOver)
{
    writePlain();
    m_folder.write(QStringLiteral("Icons/tooltips/step.one@2x.png"), QStringLiteral("no picture"));
    EXPECT_EQ(loadPicture(path(), 2.0).size(), QSize(16, 16));
}

TEST_F(Picture, aMissingFileGivesANullPicture)
{
    EXPECT_TRUE(loadPicture(path(), 1.0).isNull());
    EXPECT_TRUE(loadPicture(path(), 2.0).isNull());
    EXPECT_TRUE(loadPicture(QString(), 2.0).isNull());
}

TEST_F(Picture, aFullPathIsTakenAsItIs)
{
    writePlain();
    writeDoubled();
    const QString full = QDir::current().filePath(path());
    QDir::setCurrent(QDir::rootPath());
    EXPECT_EQ(loadPicture(full, 1.0).width(), 16);
    EXPECT_EQ(loadPicture(full, 2.0).width(), 32);
}
