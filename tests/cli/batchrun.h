// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

//! What a run of the program left behind.
struct BatchResult
{
    int exitCode = -1; // -1: it crashed
    QString output;
    QString errors;
};

//! Runs `quillmesh` in a folder of its own that goes with the test.
class BatchTest : public testing::Test
{
protected:
    BatchTest();

    BatchResult run(const QStringList &words) const;
    //! As run, but no file may grow beyond the limit: what a full disk looks like to a program.
    BatchResult runWithFileLimit(int kibibytes, const QStringList &words) const;

    //! As run, with the report going to a file of any path.
    BatchResult runInto(const QString &report, const QStringList &words) const;

    QString path(const QString &name) const { return m_folder.filePath(name); }
    bool exists(const QString &name) const;
    QByteArray read(const QString &name) const;
    void write(const QString &name, const QByteArray &bytes) const;
    //! Names of all files in the folder.
    QStringList files() const;

    //! plane.obj: a flat square from 0 to 10 in x and y, 10 x 10 quads, looking at +z.
    void writePlane() const;
    //! A file of straight strokes, each of two points or more on the plane, given as x y x y ...
    void writeStrokes(const QString &name, const QVector<QVector<double>> &strokes,
                      bool closed = false) const;
    //! net.json: three strokes along x and three along y: 9 crossings, 4 quads.
    void writeNet() const;

    //! build plane.obj CURVES -o out.obj and more words.
    BatchResult build(const QString &curves, const QStringList &more = {}) const;

private:
    BatchResult runInShell(const QString &script, const QStringList &words) const;
    BatchResult start(const QString &program, const QStringList &words) const;

    QTemporaryDir m_folder;
};
