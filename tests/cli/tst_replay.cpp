// SPDX-License-Identifier: MIT
#include "tests/cli/batchrun.h"

namespace {

const QString Scene = QStringLiteral("a.orvane");
const QString Out = QStringLiteral("b.orvane");
const QString Commands = QStringLiteral("commands.txt");

class Replay : public BatchTest
{
protected:
    Replay()
    {
        writePlane();
        writeNet();
        build(QStringLiteral("net.json"), {QStringLiteral("--scene"), Scene});
    }

    BatchResult replay(const QByteArray &commands, const QStringList &more = {},
                       const QString &out = Out) const
    {
        write(Commands, commands);
        return run(QStringList{QStringLiteral("replay"), Scene, Commands, QStringLiteral("-o"), out}
                   + more);
    }
};

} // namespace

TEST_F(Replay, aRecordedLineMakesAMeshAndLeavesAScene)
{
    const BatchResult result = replay("manualretopo 5 0.3 0.05 35 0\n");
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
    EXPECT_EQ(result.output, QStringLiteral("line 1: manualretopo 5 0.3 0.05 35 0\n"
                                            "  plane-Retopo: 4 faces\n"
                                            "wrote b.orvane\n"));
    EXPECT_TRUE(result.errors.isEmpty()) << qPrintable(result.errors);
    EXPECT_TRUE(exists(Out));
}

TEST_F(Replay, theSceneItLeavesCanBeReplayedOnAgain)
{
    replay("manualretopo 5 0.3 0.05 35 0\n");
    write(Commands, "manualretopo 5 0.3\n");
    const BatchResult result = run({QStringLiteral("replay"), Out, Commands, QStringLiteral("-o"),
                                    QStringLiteral("c.orvane")});
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
    EXPECT_TRUE(exists(QStringLiteral("c.orvane")));
}

TEST_F(Replay, theSameLinesGiveTheSameBytes)
{
    replay("manualretopo 5 0.3 0.05 35 0\nmanualretopo 4 0.3 0.05 35 1\n");
    const QByteArray first = read(Out);
    replay("manualretopo 5 0.3 0.05 35 0\nmanualretopo 4 0.3 0.05 35 1\n");
    EXPECT_EQ(read(Out), first);
}

TEST_F(Replay, commentsEmptyLinesAndForeignLineEndsAreNoCommands)
{
    const BatchResult result =
        replay("\xef\xbb\xbf# a net\r\n\r\n   \r\nmanualretopo 5 0.3 0.05 35 0\r\n");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.startsWith(QStringLiteral("line 4: manualretopo 5 0.3 0.05 35 0\n")))
        << qPrintable(result.output);
    EXPECT_TRUE(result.errors.isEmpty()) << qPrintable(result.errors);
}

TEST_F(Replay, aCommandThatNoToolKnowsIsNamedAndTheOthersGoOn)
{
    const BatchResult result = replay("ManualRetopo 5\nmanualretopo 5 0.3 0.05 35 0\n");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, QStringLiteral("commands.txt: line 1: no tool knows this command; it "
                                            "was ignored.\n"));
}

TEST_F(Replay, linesEndInAnyOfTheUsualWays)
{
    const BatchResult result = replay("# one\rmanualretopo 5 0.3 0.05 35 0\r");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.output.startsWith(QStringLiteral("line 2: ")));
}

TEST_F(Replay, aFieldThatIsNoNumberIsWarnedOf)
{
    const BatchResult result = replay("manualretopo 5 0,3 0.05 35 0\n");
    EXPECT_TRUE(result.errors.startsWith(
        QStringLiteral("commands.txt: line 1: \"0,3\" is no number and reads as 0.\n")))
        << qPrintable(result.errors);
    EXPECT_TRUE(replay("manualretopo 5.5 0.3 0.05 35 0\n")
                    .errors.contains(QStringLiteral("\"5.5\" is no whole number and reads as 0.")));
    EXPECT_TRUE(replay("manualretopo 5 0.3 0.05 35 0 7\n")
                    .errors.contains(QStringLiteral("what follows the fifth field is ignored.")));
    EXPECT_TRUE(replay("manualretopo  0.3 0.05 35 0\n").errors.isEmpty()) << "an empty field";
}

TEST_F(Replay, aBlankInTheWrongPlaceIsPointedOut)
{
    for (const char *line : {" manualretopo 5\n", "manualretopo\t5 0.3\n"})
        EXPECT_EQ(
            replay(line).errors.section(QLatin1Char('\n'), 0, 0),
            QStringLiteral("commands.txt: line 1: no tool knows this command; it was ignored "
                           "(no blank may stand before the keyword, and one must follow it)."));
}

TEST_F(Replay, aFileThatIsNoTextIsRefused)
{
    const QString refusal =
        QStringLiteral("commands.txt: this is no text; expected commands, one a "
                       "line, in UTF-8.\n");
    EXPECT_EQ(replay(read(Scene)).errors, refusal);
    EXPECT_EQ(replay("manualretopo 5 \x1b]0;title\x07\n").errors, refusal);
    EXPECT_EQ(replay("manualretopo \xff\n").errors, refusal);
    EXPECT_EQ(replay(QByteArray("manualretopo 5\0 0.3\n", 20)).errors, refusal);
}

TEST_F(Replay, aLineTooLongIsRefusedAtOnce)
{
    const BatchResult result = replay("x\n" + QByteArray(70000, 'y') + "\n");
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.errors, QStringLiteral("commands.txt: line 2 is no command: it has 70000 "
                                            "characters, expected at most 65536.\n"));
}

TEST_F(Replay, aFolderOfPluginsThatIsNotThereIsNamed)
{
    const BatchResult result = replay("manualretopo 5 0.3 0.05 35 0\n",
                                      {QStringLiteral("--plugins"), QStringLiteral("nowhere")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors,
              QStringLiteral("WARNING: --plugins nowhere: there is no such folder.\n"));
}

TEST_F(Replay, needsNoDisplayWhateverTheEnvironmentSays)
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    const BatchResult result = replay("manualretopo 5 0.3 0.05 35 0\n");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    EXPECT_EQ(result.exitCode, 0) << qPrintable(result.errors);
    EXPECT_EQ(run({QStringLiteral("--version"), QStringLiteral("-platform")}).exitCode, 0);
    EXPECT_EQ(replay("x\n", {QStringLiteral("-style"), QStringLiteral("nonsense")}).exitCode, 2);
}

TEST_F(Replay, aLineThatMakesNothingSaysWhyAndLeavesNoScene)
{
    const BatchResult result = replay("manualretopo 3 0.3 0.05 35 0\n");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.output.contains(QStringLiteral("  nothing was made: ")))
        << qPrintable(result.output);
    EXPECT_EQ(result.errors, QStringLiteral("No mesh was made; b.orvane was not written.\n"));
    EXPECT_FALSE(exists(Out));
}

TEST_F(Replay, faultsCanBeDiscarded)
{
    writeStrokes(QStringLiteral("bowtie.json"), {{1.1, 5.1, 9.2, 5.1},
                                                 {5.2, 1.1, 5.2, 9.3},
                                                 {1.2, 2.1, 5.5, 2.1},
                                                 {2.2, 1.2, 2.2, 5.5},
                                                 {4.8, 8.1, 9.1, 8.1},
                                                 {8.2, 4.7, 8.2, 9.1}});
    build(QStringLiteral("bowtie.json"), {QStringLiteral("--scene"), Scene});
    const QByteArray line = "manualretopo 4 0.3 0.05 35 0\n";
    EXPECT_EQ(replay(line, {QStringLiteral("--on-faults"), QStringLiteral("discard")}).exitCode, 4);
    const BatchResult accepted = replay(line);
    EXPECT_EQ(accepted.exitCode, 0);
    EXPECT_TRUE(accepted.output.contains(QStringLiteral("    FAULT: ")));
    EXPECT_TRUE(accepted.errors.startsWith(QStringLiteral("WARNING: accepted a mesh with faults")));
}

TEST_F(Replay, theSceneMayBeItsOwnOutput)
{
    const QByteArray before = read(Scene);
    EXPECT_EQ(replay("manualretopo 5 0.3 0.05 35 0\n", {}, Scene).exitCode, 0);
    EXPECT_NE(read(Scene), before);
}

TEST_F(Replay, aDamagedSceneIsRefusedUnlessSalvageIsAskedFor)
{
    QByteArray bytes = read(Scene);
    bytes[bytes.size() - 3] = char(bytes[bytes.size() - 3] ^ 1); // in the undo history
    write(Scene, bytes);
    const QByteArray line = "manualretopo 5 0.3 0.05 35 0\n";
    const BatchResult refused = replay(line);
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_TRUE(refused.errors.contains(QStringLiteral("its checksum does not match")))
        << qPrintable(refused.errors);
    EXPECT_TRUE(refused.errors.endsWith(QStringLiteral(
        "a.orvane: it is damaged; expected --salvage to go on with the 8 objects that could be "
        "read.\n")))
        << qPrintable(refused.errors);
    const QString salvage = QStringLiteral("--salvage");
    EXPECT_EQ(replay(line, {salvage}, Scene).exitCode, 3)
        << "what was lost must not be overwritten";
    EXPECT_EQ(read(Scene), bytes);
    EXPECT_EQ(replay(line, {salvage}).exitCode, 0);
}

TEST_F(Replay, badInputsAreNamed)
{
    EXPECT_EQ(replay("# nothing\n").errors,
              QStringLiteral("commands.txt: there is no command in it; expected lines such as "
                             "\"manualretopo 5 0.3 0.05 35 0\".\n"));
    EXPECT_EQ(
        replay("x\n", {}, QStringLiteral("b.obj")).errors,
        QStringLiteral("b.obj: scenes are written as .orvane; expected a name that ends so.\n"));
    EXPECT_EQ(replay("x\n", {}, QStringLiteral("no/b.orvane")).exitCode, 3);
    EXPECT_EQ(run({QStringLiteral("replay"), QStringLiteral("plane.obj"), Commands,
                   QStringLiteral("-o"), Out})
                  .errors,
              QStringLiteral("plane.obj: this is no scene; expected a file that Orvane saved.\n"));
    EXPECT_EQ(run({QStringLiteral("replay"), Scene, QStringLiteral("none.txt"),
                   QStringLiteral("-o"), Out})
                  .errors,
              QStringLiteral("none.txt: no such file.\n"));
    EXPECT_EQ(replay("x\n", {QStringLiteral("--language"), QStringLiteral("klingon")}).exitCode, 2);
    EXPECT_FALSE(exists(Out));
}

TEST_F(Replay, aBrokenPluginIsNamedAndTheOthersAreUsed)
{
    write(QStringLiteral("libbroken.so"), "no library");
    const BatchResult result = replay("manualretopo 5 0.3 0.05 35 0\n",
                                      {QStringLiteral("--plugins"), QStringLiteral(".")});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_TRUE(result.errors.startsWith(QStringLiteral("WARNING: "))) << qPrintable(result.errors);
    EXPECT_TRUE(result.errors.contains(QStringLiteral("libbroken.so")));
}

TEST_F(Replay, theToolSpeaksTheLanguageThatWasAskedFor)
{
    writeStrokes(QStringLiteral("apart.json"), {{1.0, 1.0, 2.0, 1.0}, {1.0, 5.0, 2.0, 5.0}});
    const BatchResult english = build(QStringLiteral("apart.json"));
    const BatchResult german =
        build(QStringLiteral("apart.json"), {QStringLiteral("--language"), QStringLiteral("de")});
    EXPECT_EQ(english.exitCode, 1);
    EXPECT_EQ(german.exitCode, 1);
    EXPECT_NE(english.output, german.output);
    EXPECT_EQ(
        build(QStringLiteral("apart.json"), {QStringLiteral("--language"), QStringLiteral("fi")})
            .errors.contains(QStringLiteral("There is no translation to \"fi\".")),
        true);
}
