// SPDX-License-Identifier: MIT
#include "cli/commandline.h"

#include <QCommandLineParser>
#include <QLocale>

#include <cmath>

namespace {

const int MinimumEdges = 3;
const float MaximumPercent = 10000.0f;
const float MaximumBindPercent = 100.0f;
const int MinimumSide = 16;    // pixels
const int MaximumSide = 16384; // pixels

QString text(const char *words)
{
    return QString::fromUtf8(words);
}

// The options of one command, and the first thing that is wrong with what was given for them.
class Words
{
public:
    Words(const QString &command, const char *description)
    {
        m_command = command;
        m_parser.setApplicationDescription(text(description));
        m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        m_parser.addOption(
            {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")});
    }

    void argument(const char *name, const char *description, const char *syntax)
    {
        m_parser.addPositionalArgument(text(name), text(description), text(syntax));
    }
    void flag(const char *name, const char *description)
    {
        m_parser.addOption({text(name), text(description)});
    }
    void option(const QStringList &names, const char *description, const char *value,
                const char *standard = "")
    {
        m_parser.addOption({names, text(description), text(value), text(standard)});
    }
    void option(const char *name, const char *description, const char *value,
                const char *standard = "")
    {
        option(QStringList(text(name)), description, value, standard);
    }

    // Reads the words; the file arguments must be as many as least to most.
    bool read(const QStringList &words, int least, int most)
    {
        if (!m_parser.parse(QStringList(QStringLiteral("quillmesh ") + m_command) + words)) {
            fail(m_parser.errorText());
            return false;
        }
        m_wantsHelp = m_parser.isSet(QStringLiteral("help"));
        const int count = m_parser.positionalArguments().size();
        if (!m_wantsHelp && count < least)
            fail(QStringLiteral("A file is missing."));
        if (!m_wantsHelp && count > most)
            fail(QStringLiteral("\"%1\" is one file too many.")
                     .arg(m_parser.positionalArguments().at(most)));
        return m_error.isEmpty() && !m_wantsHelp;
    }

    QString file(int index) const { return m_parser.positionalArguments().value(index); }
    QString value(const char *name) const { return m_parser.value(text(name)); }
    QStringList values(const char *name) const { return m_parser.values(text(name)); }
    bool isSet(const char *name) const { return m_parser.isSet(text(name)); }

    int integer(const char *name, int minimum)
    {
        bool ok = false;
        const int number = value(name).toInt(&ok);
        if (!ok || number < minimum)
            fail(QStringLiteral("--%1: \"%2\" is not a whole number of at least %3.")
                     .arg(text(name), value(name))
                     .arg(minimum));
        return number;
    }

    float percent(const char *name, float maximum)
    {
        bool ok = false;
        const float number = value(name).toFloat(&ok);
        if (!ok || !std::isfinite(number) || number < 0.0f || number > maximum)
            fail(QStringLiteral("--%1: \"%2\" is not a number from 0 to %3.")
                     .arg(text(name), value(name))
                     .arg(double(maximum)));
        return number;
    }

    QSize size(const char *name)
    {
        const QStringList sides = value(name).split(QLatin1Char('x'));
        const QSize result(sides.value(0).toInt(), sides.value(1).toInt());
        const auto fits = [](int side) {
            return side >= MinimumSide && side <= MaximumSide;
        };
        if (sides.size() != 2 || !fits(result.width()) || !fits(result.height()))
            fail(QStringLiteral("--%1: \"%2\" is not a size like 1600x1200, sides from %3 to %4.")
                     .arg(text(name), value(name))
                     .arg(MinimumSide)
                     .arg(MaximumSide));
        return result;
    }

    bool choice(const char *name, const char *yes, const char *no)
    {
        if (value(name) != text(yes) && value(name) != text(no))
            fail(QStringLiteral("--%1: \"%2\" is neither %3 nor %4.")
                     .arg(text(name), value(name), text(yes), text(no)));
        return value(name) == text(yes);
    }

    QString language()
    {
        const QString code = value("language");
        if (QLocale(code).language() == QLocale::C)
            fail(QStringLiteral("--language: \"%1\" is no language; expected a code like de or "
                                "en.")
                     .arg(code));
        return code;
    }

    QString required(const char *name)
    {
        if (value(name).isEmpty())
            fail(QStringLiteral("-%1 FILE is missing: say where the result goes.").arg(text(name)));
        return value(name);
    }

    ParseResult result() const
    {
        if (m_wantsHelp)
            return {ParseResult::ShowHelp, help()};
        if (m_error.isEmpty())
            return {ParseResult::Run, {}};
        return {ParseResult::Wrong,
                QStringLiteral("%1 See \"quillmesh %2 --help\".").arg(m_error, m_command)};
    }

private:
    void fail(const QString &error)
    {
        if (m_error.isEmpty())
            m_error = error.endsWith(QLatin1Char('.')) ? error : error + QLatin1Char('.');
    }

    // Qt names the program by its path; people type its name.
    QString help() const
    {
        QString help = m_parser.helpText();
        const int end = help.indexOf(QLatin1Char('\n'));
        const QString usage = help.left(end);
        const int options = usage.indexOf(QLatin1String(" [options]"));
        return QStringLiteral("Usage: quillmesh ") + m_command + usage.mid(options) + help.mid(end);
    }

    QString m_command;
    QCommandLineParser m_parser;
    QString m_error;
    bool m_wantsHelp = false;
};

const char *const BuildDescription =
    "Makes a new mesh whose edges run where the curves run.\n\n"
    "Example:\n"
    "  quillmesh build head.obj head_curves.json -o head_light.obj --picture head.png";

const char *const CheckDescription =
    "Says what is wrong with a mesh, in words and as bits.\n"
    "Exit code 0: nothing; 4: it has faults. Vertices and faces count from 0.\n\n"
    "Example:\n"
    "  quillmesh check head_light.obj";

const char *const PictureDescription = "Draws a mesh, and curves on it, as a picture.\n\n"
                                       "Example:\n"
                                       "  quillmesh picture head.obj head_curves.json -o head.png";

const char *const ReplayDescription =
    "Runs recorded commands on a scene, as the desktop would: every curve that is not hidden is\n"
    "used. A command file has one command a line; empty lines and lines that begin with # are\n"
    "comments. The scene may be its own output.\n\n"
    "Example:\n"
    "  quillmesh build head.obj head_curves.json -o head_light.obj --scene head.orvane\n"
    "  echo manualretopo 4 0.3 0.05 35 0 > commands.txt\n"
    "  quillmesh replay head.orvane commands.txt -o head_quads.orvane";

const char *const SizeDescription = "Size of the picture in pixels (1600x1200).";

void declareOnFaults(Words &words)
{
    words.option("on-faults", "Keep a mesh with faults, or discard it: accept or discard (accept).",
                 "ANSWER", "accept");
}

void declareLanguage(Words &words)
{
    words.option("language", "Language of what the tool itself says, not of the report (en).",
                 "CODE", "en");
}

void declareBuild(Words &words)
{
    words.argument("MESH", "The mesh that the curves are drawn on.", "MESH");
    words.argument("CURVES", "The curves: JSON, or the polylines of an OBJ file.", "CURVES");
    words.option({QStringLiteral("o"), QStringLiteral("output")}, "Where the new mesh goes.",
                 "FILE");
    words.option("max-edges", "Most edges of a face; a larger cell stays a hole (5).", "N", "5");
    words.option("merge",
                 "Linked crossings closer than this become one; % of the average edge length (30).",
                 "PERCENT", "30");
    words.option("tolerance",
                 "How far apart two curves may pass and still cross; % of the average edge "
                 "length (5).",
                 "PERCENT", "5");
    words.option("overrun", "How far open curves are lengthened; % of their end segment (35).",
                 "PERCENT", "35");
    words.flag("self-intersections", "Crossings of a curve with itself become vertices too.");
    declareOnFaults(words);
    words.option("bind-tolerance",
                 "How far a curve point may lie off the mesh; % of its diagonal (2).", "PERCENT",
                 "2");
    words.option("dump", "Write what the run used and made, as JSON.", "FILE");
    words.option("picture", "Draw the result as a PNG picture.", "FILE.png");
    words.option("size", SizeDescription, "WxH", "1600x1200");
    words.option("scene",
                 "Leave everything as a scene, to open in Orvane or to replay commands on.",
                 "FILE.orvane");
    words.flag("json", "Give the report as JSON.");
    declareLanguage(words);
}

} // namespace

ParseResult parseBuild(const QStringList &arguments, BuildOptions &options)
{
    Words words(QStringLiteral("build"), BuildDescription);
    declareBuild(words);
    if (!words.read(arguments, 2, 2))
        return words.result();
    options.mesh = words.file(0);
    options.curves = words.file(1);
    options.output = words.required("o");
    options.maximumEdges = words.integer("max-edges", MinimumEdges);
    options.mergePercent = words.percent("merge", MaximumPercent);
    options.tolerancePercent = words.percent("tolerance", MaximumPercent);
    options.overrunPercent = words.percent("overrun", MaximumPercent);
    options.bindPercent = words.percent("bind-tolerance", MaximumBindPercent);
    options.useSelfIntersections = words.isSet("self-intersections");
    options.acceptFaults = words.choice("on-faults", "accept", "discard");
    options.json = words.isSet("json");
    options.dump = words.value("dump");
    options.picture = words.value("picture");
    options.pictureSize = words.size("size");
    options.scene = words.value("scene");
    options.language = words.language();
    return words.result();
}

ParseResult parseCheck(const QStringList &arguments, QString &mesh)
{
    Words words(QStringLiteral("check"), CheckDescription);
    words.argument("MESH", "The mesh to check.", "MESH");
    if (words.read(arguments, 1, 1))
        mesh = words.file(0);
    return words.result();
}

ParseResult parsePicture(const QStringList &arguments, PictureOptions &options)
{
    Words words(QStringLiteral("picture"), PictureDescription);
    words.argument("MESH", "The mesh to draw.", "MESH");
    words.argument("CURVES", "Curves to draw on it.", "[CURVES]");
    words.option({QStringLiteral("o"), QStringLiteral("output")}, "Where the picture goes.",
                 "FILE.png");
    words.option("size", SizeDescription, "WxH", "1600x1200");
    if (!words.read(arguments, 1, 2))
        return words.result();
    options.mesh = words.file(0);
    options.curves = words.file(1);
    options.output = words.required("o");
    options.size = words.size("size");
    return words.result();
}

ParseResult parseReplay(const QStringList &arguments, ReplayOptions &options)
{
    Words words(QStringLiteral("replay"), ReplayDescription);
    words.argument("SCENE", "The scene: an .orvane file.", "SCENE");
    words.argument("COMMANDS", "The commands: a text file.", "COMMANDS.txt");
    words.option({QStringLiteral("o"), QStringLiteral("output")}, "Where the scene goes.",
                 "SCENE.orvane");
    declareOnFaults(words);
    words.flag("salvage", "Go on with what can be read of a damaged scene.");
    words.option("plugins", "A folder with more plug-ins; may be given several times.", "FOLDER");
    declareLanguage(words);
    if (!words.read(arguments, 2, 2))
        return words.result();
    options.scene = words.file(0);
    options.commands = words.file(1);
    options.output = words.required("o");
    options.acceptFaults = words.choice("on-faults", "accept", "discard");
    options.salvage = words.isSet("salvage");
    options.pluginFolders = words.values("plugins");
    options.language = words.language();
    return words.result();
}

QString programHelp()
{
    return text(
        "Usage: quillmesh COMMAND ...\n"
        "Turns curves drawn on a mesh into a clean new mesh.\n\n"
        "Commands:\n"
        "  build MESH CURVES -o OUT     make a new mesh from curves drawn on a mesh\n"
        "  check MESH                   say what is wrong with a mesh\n"
        "  picture MESH [CURVES] -o OUT draw a mesh and curves as a picture\n"
        "  replay SCENE COMMANDS -o OUT run recorded commands on a scene\n\n"
        "Options:\n"
        "  -h, --help     show this help; each command has its own: quillmesh build --help\n"
        "  -v, --version  show the version\n\n"
        "Exit codes: 0 done; 1 no mesh was made; 2 wrong usage; 3 a file cannot be read\n"
        "or written; 4 faults: they cost every mesh, or a checked mesh has some.\n");
}
