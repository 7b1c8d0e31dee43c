// SPDX-License-Identifier: MIT
#include "cli/commandline.h"
#include "cli/parameters.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace {

const QStringList Files{QStringLiteral("head.obj"), QStringLiteral("curves.json"),
                        QStringLiteral("-o"), QStringLiteral("out.obj")};

QStringList withFiles(const char *words)
{
    return Files + QString::fromUtf8(words).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

ParseResult parse(const char *words)
{
    BuildOptions options;
    return parseBuild(withFiles(words), options);
}

struct BadOption
{
    const char *words;
    const char *named; // what the sentence must name
};

void PrintTo(const BadOption &bad, std::ostream *stream)
{
    *stream << bad.words;
}

class BadBuildOption : public testing::TestWithParam<BadOption>
{};

} // namespace

TEST(CommandLine, defaultsAreTheSettingsDialogs)
{
    BuildOptions options;
    ASSERT_EQ(parseBuild(Files, options).kind, ParseResult::Run);
    EXPECT_EQ(options.mesh, QStringLiteral("head.obj"));
    EXPECT_EQ(options.curves, QStringLiteral("curves.json"));
    EXPECT_EQ(options.output, QStringLiteral("out.obj"));
    EXPECT_EQ(options.bindPercent, 2.0f);
    EXPECT_TRUE(options.acceptFaults);
    EXPECT_FALSE(options.json);
    EXPECT_EQ(options.pictureSize, QSize(1600, 1200));
    const Parameters parameters(options);
    EXPECT_EQ(parameters.maximumEdges, 5);
    EXPECT_EQ(parameters.mergeDistance, 0.3f);
    EXPECT_EQ(parameters.intersectionTolerance, 0.05f);
    EXPECT_EQ(parameters.overrunTolerance, 0.35f);
    EXPECT_FALSE(parameters.useSelfIntersections);
}

TEST(CommandLine, everyOptionArrives)
{
    BuildOptions options;
    const ParseResult result = parseBuild(
        withFiles("--max-edges 7 --merge 12.5 --tolerance 1 --overrun 0 --self-intersections "
                  "--on-faults discard --bind-tolerance 0.5 --dump d.json --picture p.png "
                  "--size 640x480 --json"),
        options);
    ASSERT_EQ(result.kind, ParseResult::Run) << qPrintable(result.text);
    EXPECT_EQ(options.maximumEdges, 7);
    EXPECT_EQ(options.mergePercent, 12.5f);
    EXPECT_EQ(options.tolerancePercent, 1.0f);
    EXPECT_EQ(options.overrunPercent, 0.0f);
    EXPECT_TRUE(options.useSelfIntersections);
    EXPECT_FALSE(options.acceptFaults);
    EXPECT_EQ(options.bindPercent, 0.5f);
    EXPECT_EQ(options.dump, QStringLiteral("d.json"));
    EXPECT_EQ(options.picture, QStringLiteral("p.png"));
    EXPECT_EQ(options.pictureSize, QSize(640, 480));
    EXPECT_TRUE(options.json);
}

TEST(CommandLine, numbersAreReadWithAPointInEveryLanguage)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    BuildOptions options;
    EXPECT_EQ(parseBuild(withFiles("--merge 12.5"), options).kind, ParseResult::Run);
    EXPECT_EQ(options.mergePercent, 12.5f);
    EXPECT_EQ(parse("--merge 12,5").kind, ParseResult::Wrong);
    QLocale::setDefault(before);
}

TEST_P(BadBuildOption, isNamedInOneSentence)
{
    const ParseResult result = parse(GetParam().words);
    ASSERT_EQ(result.kind, ParseResult::Wrong);
    EXPECT_TRUE(result.text.contains(QString::fromUtf8(GetParam().named)))
        << qPrintable(result.text);
    EXPECT_TRUE(result.text.endsWith(QStringLiteral("See \"quillmesh build --help\".")));
    EXPECT_FALSE(result.text.contains(QLatin1Char('\n')));
}

INSTANTIATE_TEST_SUITE_P(
    CommandLine, BadBuildOption,
    testing::Values(BadOption{"--max-edges 2", "\"2\" is not a whole number of at least 3"},
                    BadOption{"--max-edges 4.5", "\"4.5\""}, BadOption{"--max-edges x", "\"x\""},
                    BadOption{"--max-edges 99999999999", "\"99999999999\""},
                    BadOption{"--merge abc", "--merge"}, BadOption{"--merge=-1", "\"-1\""},
                    BadOption{"--merge 1,500", "\"1,500\""},
                    BadOption{"--merge 10001", "from 0 to 10000"},
                    BadOption{"--tolerance nan", "\"nan\""}, BadOption{"--overrun inf", "\"inf\""},
                    BadOption{"--bind-tolerance 101", "from 0 to 100"},
                    BadOption{"--on-faults maybe", "neither accept nor discard"},
                    BadOption{"--size 640", "\"640\""}, BadOption{"--size 0x0", "\"0x0\""},
                    BadOption{"--size 1x2x3", "\"1x2x3\""}, BadOption{"--nonsense", "nonsense"},
                    BadOption{"third.obj", "\"third.obj\" is one file too many"},
                    BadOption{"--merge", "--merge"}));

TEST(CommandLine, missingFilesAndOutputAreNamed)
{
    BuildOptions options;
    EXPECT_TRUE(parseBuild({QStringLiteral("head.obj")}, options)
                    .text.contains(QStringLiteral("file is missing")));
    EXPECT_TRUE(parseBuild({QStringLiteral("head.obj"), QStringLiteral("curves.json")}, options)
                    .text.contains(QStringLiteral("-o FILE is missing")));
}

TEST(CommandLine, everyCommandHasHelpWithAnExample)
{
    BuildOptions build;
    PictureOptions picture;
    QString mesh;
    const QStringList help{QStringLiteral("--help")};
    const struct
    {
        ParseResult result;
        const char *example;
    } helps[] = {{parseBuild(help, build), "quillmesh build head.obj"},
                 {parseCheck(help, mesh), "quillmesh check head"},
                 {parsePicture(help, picture), "quillmesh picture head.obj"}};
    for (const auto &entry : helps) {
        EXPECT_EQ(entry.result.kind, ParseResult::ShowHelp);
        EXPECT_TRUE(entry.result.text.startsWith(QStringLiteral("Usage: quillmesh ")));
        EXPECT_TRUE(entry.result.text.contains(QStringLiteral("Example:\n")));
        EXPECT_TRUE(entry.result.text.contains(QString::fromUtf8(entry.example)));
    }
    for (const char *option :
         {"--max-edges", "--merge", "--tolerance", "--overrun", "--self-intersections",
          "--on-faults", "--bind-tolerance", "--dump", "--picture", "--size", "--json"})
        EXPECT_TRUE(helps[0].result.text.contains(QString::fromUtf8(option))) << option;
}

TEST(CommandLine, pictureTakesOneOrTwoFiles)
{
    PictureOptions options;
    const QStringList output{QStringLiteral("-o"), QStringLiteral("p.png")};
    EXPECT_EQ(parsePicture(QStringList(QStringLiteral("a.obj")) + output, options).kind,
              ParseResult::Run);
    EXPECT_TRUE(options.curves.isEmpty());
    EXPECT_EQ(parsePicture(QStringList{QStringLiteral("a.obj"), QStringLiteral("b.json")} + output,
                           options)
                  .kind,
              ParseResult::Run);
    EXPECT_EQ(options.curves, QStringLiteral("b.json"));
    EXPECT_EQ(parsePicture(output, options).kind, ParseResult::Wrong);
}
