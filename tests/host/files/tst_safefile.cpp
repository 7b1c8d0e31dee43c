// SPDX-License-Identifier: MIT
#include "tests/host/files/filetest.h"

#include "host/files/safefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

using namespace orvane;

namespace {

class SafeFile : public FileTest
{
protected:
    QString writeError(const QString &path, const QByteArray &bytes)
    {
        QString error;
        EXPECT_FALSE(writeWhole(path, bytes, &error));
        return error;
    }

    QString readError(const QString &path)
    {
        QString error;
        QByteArray bytes;
        EXPECT_FALSE(readWhole(path, &bytes, &error));
        return error;
    }
};

} // namespace

TEST_F(SafeFile, whatIsWrittenIsReadBack)
{
    const QByteArray bytes("\0\1two\n", 6);
    QString error;
    ASSERT_TRUE(writeWhole(path(QStringLiteral("a.bin")), bytes, &error)) << qPrintable(error);
    QByteArray read;
    ASSERT_TRUE(readWhole(path(QStringLiteral("a.bin")), &read, &error)) << qPrintable(error);
    EXPECT_EQ(read, bytes);
    EXPECT_EQ(filesInFolder(), QStringList(QStringLiteral("a.bin")));
}

TEST_F(SafeFile, fullDiskLeavesTheOldFileAndNothingElse)
{
    const QString old = file(QStringLiteral("old.txt"), "old");
    const QByteArray large(1 << 20, 'x');
    QString error;
    {
        const FileSizeLimit limit(1 << 16);
        error = writeError(old, large);
    }
    EXPECT_TRUE(error.startsWith(QStringLiteral("old.txt: it cannot be written: ")))
        << qPrintable(error);
    EXPECT_TRUE(error.endsWith(QLatin1Char('.')));
    EXPECT_EQ(bytesOf(old), "old");
    EXPECT_EQ(filesInFolder(), QStringList(QStringLiteral("old.txt")));
}

TEST_F(SafeFile, fullDiskIsNoticedWhenOnlyTheLastBytesAreMissing)
{
    QString error;
    {
        const FileSizeLimit limit(100);
        error = writeError(path(QStringLiteral("new.txt")), QByteArray(101, 'x'));
    }
    EXPECT_TRUE(error.startsWith(QStringLiteral("new.txt: it cannot be written: ")))
        << qPrintable(error);
    EXPECT_TRUE(filesInFolder().isEmpty());
}

TEST_F(SafeFile, missingFolderIsNamed)
{
    const QString folder = path(QStringLiteral("missing"));
    EXPECT_EQ(writeError(folder + QStringLiteral("/a.txt"), "x"),
              QStringLiteral("%1/a.txt: the folder %1 does not exist; expected one that does.")
                  .arg(folder));
}

TEST_F(SafeFile, parentThatIsAFileIsNamed)
{
    const QString parent = file(QStringLiteral("parent"), "x");
    EXPECT_EQ(
        writeError(parent + QStringLiteral("/a.txt"), "x"),
        QStringLiteral("%1/a.txt: %1 is a file; expected a folder to write into.").arg(parent));
    EXPECT_EQ(bytesOf(parent), "x");
}

TEST_F(SafeFile, folderIsNoPlaceForAFile)
{
    ASSERT_TRUE(QDir().mkdir(path(QStringLiteral("folder"))));
    const QString text = QStringLiteral("folder: this is a folder; expected the name of a file.");
    EXPECT_EQ(writeError(path(QStringLiteral("folder")), "x"), text);
    EXPECT_TRUE(writeError(QString(), "x").contains(QStringLiteral("expected the name of a file")));
}

TEST_F(SafeFile, deviceOrPipeIsNeverReplaced)
{
    const QString pipe = path(QStringLiteral("pipe"));
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(writeError(pipe, "x"),
              QStringLiteral("pipe: this is a device or a pipe; expected a file."));
    ASSERT_TRUE(QFile::link(pipe, path(QStringLiteral("link"))));
    EXPECT_EQ(writeError(path(QStringLiteral("link")), "x"),
              QStringLiteral("link: this is a device or a pipe; expected a file."));
    EXPECT_FALSE(QFileInfo(pipe).isFile());
    EXPECT_TRUE(QFileInfo::exists(pipe));
}

TEST_F(SafeFile, missingFileIsNamed)
{
    EXPECT_EQ(readError(path(QStringLiteral("nothere.obj"))),
              QStringLiteral("nothere.obj: no such file."));
}

TEST_F(SafeFile, emptyFileIsRefused)
{
    EXPECT_EQ(readError(file(QStringLiteral("empty.obj"), QByteArray())),
              QStringLiteral("empty.obj: the file is empty."));
}

TEST_F(SafeFile, folderAndDeviceAreNoFilesToRead)
{
    ASSERT_TRUE(QDir().mkdir(path(QStringLiteral("folder"))));
    EXPECT_EQ(readError(path(QStringLiteral("folder"))),
              QStringLiteral("folder: this is a folder or a device; expected a file."));
    EXPECT_EQ(readError(QStringLiteral("/dev/zero")),
              QStringLiteral("/dev/zero: this is a folder or a device; expected a file."));
}
