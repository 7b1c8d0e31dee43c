// SPDX-License-Identifier: MIT
#include "tests/support/workingfolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

namespace {

void makeFolderOf(const QString &path)
{
    if (!QDir().mkpath(QFileInfo(path).path()))
        qFatal("the test cannot make the folder of %s", qPrintable(path));
}

} // namespace

WorkingFolder::WorkingFolder() : m_before(QDir::currentPath())
{
    if (!m_folder.isValid() || !QDir::setCurrent(m_folder.path()))
        qFatal("the test has no folder to work in");
}

WorkingFolder::~WorkingFolder()
{
    QDir::setCurrent(m_before);
}

void WorkingFolder::write(const QString &path, const QString &text)
{
    makeFolderOf(path);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        qFatal("the test cannot write %s", qPrintable(path));
}

void WorkingFolder::write(const QString &path, const QImage &image)
{
    makeFolderOf(path);
    if (!image.save(path))
        qFatal("the test cannot write %s", qPrintable(path));
}
