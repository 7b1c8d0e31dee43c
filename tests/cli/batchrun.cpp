// SPDX-License-Identifier: MIT
#include "tests/cli/batchrun.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace {

const int PlaneSide = 10;       // quads
const int Timeout = 120 * 1000; // milliseconds

} // namespace

BatchTest::BatchTest()
{
    EXPECT_TRUE(m_folder.isValid());
}

BatchResult BatchTest::run(const QStringList &words) const
{
    return start(QStringLiteral(QUILLMESH_PROGRAM), words);
}

BatchResult BatchTest::runWithFileLimit(int kibibytes, const QStringList &words) const
{
    return runInShell(QStringLiteral("ulimit -f %1; exec \"$0\" \"$@\"").arg(kibibytes), words);
}

BatchResult BatchTest::runInto(const QString &report, const QStringList &words) const
{
    return runInShell(QStringLiteral("exec \"$0\" \"$@\" >'%1'").arg(report), words);
}

// $0 is the program, "$@" its words: none of them passes through the shell's reading.
BatchResult BatchTest::runInShell(const QString &script, const QStringList &words) const
{
    return start(QStringLiteral("bash"),
                 QStringList{QStringLiteral("-c"), script, QStringLiteral(QUILLMESH_PROGRAM)}
                     + words);
}

BatchResult BatchTest::start(const QString &program, const QStringList &words) const
{
    QProcess process;
    process.setWorkingDirectory(m_folder.path());
    process.start(program, words);
    BatchResult result;
    if (!process.waitForFinished(Timeout)) {
        ADD_FAILURE() << "the program did not finish";
        return result;
    }
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError());
    return result;
}

bool BatchTest::exists(const QString &name) const
{
    return QFile::exists(path(name));
}

QByteArray BatchTest::read(const QString &name) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    return file.readAll();
}

void BatchTest::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QStringList BatchTest::files() const
{
    return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

void BatchTest::writePlane() const
{
    QByteArray text;
    for (int y = 0; y <= PlaneSide; ++y) {
        for (int x = 0; x <= PlaneSide; ++x)
            text += "v " + QByteArray::number(x) + ' ' + QByteArray::number(y) + " 0\n";
    }
    for (int y = 0; y < PlaneSide; ++y) {
        for (int x = 0; x < PlaneSide; ++x) {
            const int corner = y * (PlaneSide + 1) + x + 1;
            for (int step : {0, 1, PlaneSide + 2, PlaneSide + 1})
                text += (step == 0 ? "f " : " ") + QByteArray::number(corner + step);
            text += '\n';
        }
    }
    write(QStringLiteral("plane.obj"), text);
}

void BatchTest::writeStrokes(const QString &name, const QVector<QVector<double>> &strokes,
                             bool closed) const
{
    QJsonArray curves;
    for (const QVector<double> &stroke : strokes) {
        QJsonArray points;
        for (int i = 0; i + 1 < stroke.size(); i += 2)
            points.append(QJsonArray{stroke[i], stroke[i + 1], 0.0});
        curves.append(
            QJsonObject{{QStringLiteral("closed"), closed}, {QStringLiteral("points"), points}});
    }
    write(name, QJsonDocument(QJsonObject{{QStringLiteral("curves"), curves}}).toJson());
}

void BatchTest::writeNet() const
{
    QVector<QVector<double>> strokes;
    for (double at : {2.1, 4.3, 6.7}) {
        strokes.append({1.05, at, 8.95, at});
        strokes.append({at, 1.15, at, 8.85});
    }
    writeStrokes(QStringLiteral("net.json"), strokes);
}

BatchResult BatchTest::build(const QString &curves, const QStringList &more) const
{
    return run(QStringList{QStringLiteral("build"), QStringLiteral("plane.obj"), curves,
                           QStringLiteral("-o"), QStringLiteral("out.obj")}
               + more);
}
