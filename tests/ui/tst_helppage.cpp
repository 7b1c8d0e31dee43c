// SPDX-License-Identifier: MIT
// The page that "Tell me more..." shows keeps step with the dialogs.
#include "ui/manualretopodialog.h"
#include "ui/meshfaultrows.h"

#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QDir resources()
{
    return QDir(QStringLiteral(QUILLMESH_RESOURCES));
}

QString page()
{
    QFile file(resources().filePath(QStringLiteral("Help/ManualRetopoHelp.md")));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("there is no page");
    return QString::fromUtf8(file.readAll());
}

} // namespace

TEST(HelpPage, explainsEverySettingUnderItsLabel)
{
    const ManualRetopoDialog dialog(nullptr);
    const auto *grid = qobject_cast<QGridLayout *>(dialog.layout()->itemAt(0)->layout());
    for (int row = 0; row < grid->rowCount(); ++row) {
        const auto *label = qobject_cast<QLabel *>(grid->itemAtPosition(row, 0)->widget());
        QString name = label->text().trimmed();
        name.remove(QLatin1Char(':'));
        EXPECT_TRUE(page().contains(QStringLiteral("\n### %1\n").arg(name))) << qPrintable(name);
    }
}

TEST(HelpPage, explainsEveryFaultUnderItsTitle)
{
    const QRegularExpression bold(QStringLiteral("<strong>(.*)</strong>"));
    for (const MeshFaultRow &row : meshFaultRows()) {
        const QString title = bold.match(QLatin1String(row.text)).captured(1);
        ASSERT_FALSE(title.isEmpty());
        EXPECT_TRUE(page().contains(QStringLiteral("\n| %1 | ").arg(title))) << qPrintable(title);
    }
}

TEST(HelpPage, showsOnlyPicturesThatThereAre)
{
    const QRegularExpression picture(QStringLiteral("!\\[[^\\n]*\\]\\(\\.\\./(.*)\\.png\\)"));
    QRegularExpressionMatchIterator found = picture.globalMatch(page());
    int count = 0;
    for (; found.hasNext(); ++count) {
        // Drawn, or taken of the screen.
        const QString name = found.next().captured(1);
        EXPECT_TRUE(resources().exists(name + QStringLiteral(".svg"))
                    || resources().exists(name + QStringLiteral(".png")))
            << qPrintable(name);
    }
    EXPECT_EQ(count, page().count(QLatin1String("![")));
    EXPECT_GT(count, 0);
}
