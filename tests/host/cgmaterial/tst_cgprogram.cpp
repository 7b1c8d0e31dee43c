// SPDX-License-Identifier: MIT
#include "host/cgmaterial/cgprogram.h"
#include "host/cgmaterial/programfile.h"
#include "tests/support/logcatcher.h"
#include "tests/support/workingfolder.h"

#include <orvane/kernel/language.h>

#include <gtest/gtest.h>

#include <Cg/cg.h>
#include <QDir>
#include <QFile>

using namespace orvane;

namespace {

const QString Curves = QStringLiteral("Shaders/Curves/%1.bin");
const char *const Plain = "float4 shade(uniform float4 tint) : COLOR { return tint; }";

class CgProgramTest : public testing::Test
{
protected:
    // A file of its own for each test, so that none knows another's complaints.
    QString write(const QByteArray &bytes)
    {
        const QString path = QDir::current().absoluteFilePath(QStringLiteral("programs.bin"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return path;
    }

    QString write(const char *text) { return write(packPrograms({{7008, "shade", text}})); }

    bool create(const QString &path)
    {
        return program.CreateFromFile(path, CG_PROFILE_GLSLF, QStringLiteral("shade"));
    }

    WorkingFolder folder;
    LogCatcher log;
    CgProgram program;
};

} // namespace

TEST_F(CgProgramTest, everyProgramOfTheOverlayIsMadeFromItsFile)
{
    EXPECT_TRUE(program.CreateFromFile(Curves.arg(QStringLiteral("CurvesVertex")), CG_PROFILE_GLSLV,
                                       QStringLiteral("vertex_shader")));
    EXPECT_NE(cgGetNamedParameter(program.Handle(), "modelViewProj"), nullptr);
    for (const char *entry : {"lines_fragment", "points_fragment"}) {
        EXPECT_TRUE(program.CreateFromFile(Curves.arg(QStringLiteral("CurvesFragment")),
                                           CG_PROFILE_GLSLF, QLatin1String(entry)));
        EXPECT_NE(cgGetNamedParameter(program.Handle(), "diffuseColor"), nullptr);
    }
    EXPECT_EQ(log.text().toStdString(), "");
}

TEST_F(CgProgramTest, twoProgramsCanBeCombinedAndThenGo)
{
    CGprogram combined = nullptr;
    {
        CgProgram vertex;
        ASSERT_TRUE(vertex.CreateFromFile(Curves.arg(QStringLiteral("CurvesVertex")),
                                          CG_PROFILE_GLSLV, QStringLiteral("vertex_shader")));
        ASSERT_TRUE(create(write(Plain)));
        const CGprogram parts[] = {program.Handle(), vertex.Handle()};
        combined = cgCombinePrograms(2, parts);
    }
    ASSERT_FALSE(create(QStringLiteral("none")));
    ASSERT_NE(combined, nullptr);
    EXPECT_NE(cgGetNamedParameter(combined, "modelViewProj"), nullptr);
    EXPECT_NE(cgGetNamedParameter(combined, "tint"), nullptr);
    cgDestroyProgram(combined);
}

TEST_F(CgProgramTest, thereIsNoneAtFirst)
{
    EXPECT_EQ(program.Handle(), nullptr);
}

TEST_F(CgProgramTest, aMissingFileIsToldOnceAndCostsTheProgramThatWas)
{
    ASSERT_TRUE(create(write(Plain)));
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(create(QDir::current().absoluteFilePath(QStringLiteral("none.bin"))));
        EXPECT_EQ(program.Handle(), nullptr);
    }
    ASSERT_EQ(log.count(), 1);
    EXPECT_TRUE(log.text().contains(QLatin1String("none.bin")));
    EXPECT_TRUE(log.text().contains(QLatin1String("cannot be read")));
}

TEST_F(CgProgramTest, aDamagedFileIsToldOnceForEachDamage)
{
    const QByteArray whole = packPrograms({{7008, "shade", Plain}});
    QByteArray bytes = whole;
    bytes[bytes.size() - 5] = '?';
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(create(write(bytes)));
    EXPECT_EQ(log.count(), 1);
    bytes[bytes.size() - 6] = '?';
    EXPECT_FALSE(create(write(bytes)));
    EXPECT_EQ(log.count(), 2);
    EXPECT_TRUE(create(write(whole)));
    EXPECT_EQ(log.count(), 2);
}

TEST_F(CgProgramTest, anEntryOrProfileThatTheFileHasNotIsTold)
{
    const QString path = write(Plain);
    EXPECT_FALSE(program.CreateFromFile(path, CG_PROFILE_GLSLF, QStringLiteral("other")));
    EXPECT_FALSE(program.CreateFromFile(path, CG_PROFILE_GLSLV, QStringLiteral("shade")));
    ASSERT_EQ(log.count(), 2);
    EXPECT_TRUE(log.texts()[0].contains(QLatin1String("no \"other\" for profile 7008")));
    EXPECT_TRUE(log.texts()[1].contains(QLatin1String("no \"shade\" for profile 7007")));
}

TEST_F(CgProgramTest, whatCgRefusesIsToldInOneLine)
{
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(create(write("float4 shade() : COLOR { return nothing; }")));
    ASSERT_EQ(log.count(), 1);
    EXPECT_TRUE(log.text().contains(QLatin1String("nothing"))) << log.text().toStdString();
    EXPECT_FALSE(log.text().contains(QLatin1Char('\n')));
    EXPECT_EQ(program.Handle(), nullptr);
}

TEST_F(CgProgramTest, anEmptyTextIsRefused)
{
    EXPECT_FALSE(create(write("")));
    EXPECT_EQ(log.count(), 1);
}
