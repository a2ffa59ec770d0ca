// SPDX-License-Identifier: MIT
#include "options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace {

/// A finite number greater than zero and not beyond `maximum`.
std::optional<double> positiveNumber(const QString &text, double maximum)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (!ok || !std::isfinite(number) || number <= 0.0 || number > maximum)
        return std::nullopt;
    return number;
}

std::optional<Options::Resolution> resolution(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != 2)
        return std::nullopt;
    const double unlimited = std::numeric_limits<double>::max();
    const std::optional<double> horizontal = positiveNumber(parts[0], unlimited);
    const std::optional<double> vertical = positiveNumber(parts[1], unlimited);
    if (!horizontal || !vertical)
        return std::nullopt;
    return Options::Resolution{*horizontal, *vertical};
}

std::optional<Options::Font> font(const QString &text)
{
    const auto comma = text.lastIndexOf(QLatin1Char(','));
    const QString family = text.left(comma).trimmed();
    const std::optional<double> points = positiveNumber(text.mid(comma + 1), 1000.0);
    if (comma < 0 || family.isEmpty() || !points)
        return std::nullopt;
    return Options::Font{family, *points};
}

std::optional<AddOnLanguage> language(const QString &text)
{
    if (text == QLatin1String("C"))
        return AddOnLanguage::C;
    if (text == QLatin1String("C++"))
        return AddOnLanguage::Cxx;
    return std::nullopt;
}

/// The parser's help asks the application object for the program's name.
QString helpText(const QCommandLineParser &parser)
{
    std::array<char, 8> name{"zelhost"};
    std::array<char *, 2> arguments{name.data(), nullptr};
    int count = 1;
    const QCoreApplication application(count, arguments.data());
    return parser.helpText();
}

/// One option: how the help presents it, and what it does.
struct Declaration
{
    QCommandLineOption option;
    /// Takes in one value, empty for an option without values; returns what should have been there, or an empty string.
    QString (*take)(Options &options, const QString &value);
};

QCommandLineOption flag(const char *name, const char *description)
{
    return QCommandLineOption(QString::fromLatin1(name), QString::fromLatin1(description));
}

QCommandLineOption valued(const char *name, const char *valueName, const char *description)
{
    return QCommandLineOption(QString::fromLatin1(name), QString::fromLatin1(description),
                              QString::fromLatin1(valueName));
}

/// In the order in which the help shows them.
std::vector<Declaration> declarations()
{
    return {
        {flag("batch", "Runs without a window, as if there were no user, does what --launch says and ends."),
         [](Options &options, const QString &) {
             options.batch = true;
             return QString();
         }},
        {valued("dpi", "H,V", "Tells add-ons that the screen has H by V dots per inch."),
         [](Options &options, const QString &value) {
             options.dotsPerInch = resolution(value);
             return options.dotsPerInch ? QString()
                                        : QStringLiteral("two numbers greater than 0 with a comma between them");
         }},
        {valued("font", "FAMILY,POINTS", "Uses this font everywhere."),
         [](Options &options, const QString &value) {
             options.font = font(value);
             return options.font ? QString() : QStringLiteral("a font's name, a comma and a size from 0 to 1000");
         }},
        {valued("inspect", "DIR",
                "Like --render, for every page of tabs and forms, and tells what is wrong with how the dialogs look: "
                "text that is cut off, widgets that overlap or leave what they stand in, controls without a name."),
         [](Options &options, const QString &value) {
             options.inspectionDirectory = value;
             return value.isEmpty() ? QStringLiteral("a directory") : QString();
         }},
        {valued("language", "LANGUAGE", "With --new-addon: C, which is meant without this option, or C++."),
         [](Options &options, const QString &value) {
             options.newAddOnLanguage = language(value);
             return options.newAddOnLanguage ? QString() : QStringLiteral("C or C++");
         }},
        {valued("launch", "NAME", "Launches what is registered as NAME. May be given several times."),
         [](Options &options, const QString &value) {
             options.launches.append(value);
             return QString();
         }},
        {valued("new-addon", "DIR",
                "Writes the project of a new add-on, with a dialog and a test of it, into DIR, which has to be empty "
                "or missing."),
         [](Options &options, const QString &value) {
             options.newAddOnDirectory = value;
             return value.isEmpty() ? QStringLiteral("a directory") : QString();
         }},
        {valued("record", "FILE", "Writes what the user does into FILE, a script for --script."),
         [](Options &options, const QString &value) {
             options.recordFile = value;
             return value.isEmpty() ? QStringLiteral("a file") : QString();
         }},
        {valued("render", "DIR",
                "Launches every entry, or those of --launch, saves a picture of its dialog in DIR and ends. Needs no "
                "display."),
         [](Options &options, const QString &value) {
             options.pictureDirectory = value;
             return value.isEmpty() ? QStringLiteral("a directory") : QString();
         }},
        {flag("report-leaks", "Lists, when the program ends, what the add-ons have not released."),
         [](Options &options, const QString &) {
             options.reportLeaks = true;
             return QString();
         }},
        {valued("script", "FILE", "Does what FILE says, step by step, and ends. Needs no display."),
         [](Options &options, const QString &value) {
             options.scriptFile = value;
             return value.isEmpty() ? QStringLiteral("a file") : QString();
         }},
        {flag("strict", "Names every wrong use that the add-ons make of the interface, in a line with what to do."),
         [](Options &options, const QString &) {
             options.strict = true;
             return QString();
         }},
        {valued("style", "NAME", "Draws everything in this style of the toolkit."),
         [](Options &options, const QString &value) {
             options.style = value;
             return value.isEmpty() ? QStringLiteral("the name of a style") : QString();
         }},
        {valued("sweep", "DIR",
                "Does what --inspect does with narrow and wide fonts of several sizes, two resolutions and all styles, "
                "except where --font, --dpi or --style choose one, and makes a page of all pictures, DIR/index.html."),
         [](Options &options, const QString &value) {
             options.sweepDirectory = value;
             return value.isEmpty() ? QStringLiteral("a directory") : QString();
         }},
        {valued("timeout", "SECONDS",
                "Ends the program when an entry takes longer than this with --render, --inspect or --sweep, or a step "
                "with --script; 20 if not given."),
         [](Options &options, const QString &value) {
             options.timeoutSeconds = positiveNumber(value, 1e6);
             return options.timeoutSeconds ? QString()
                                           : QStringLiteral("a number of seconds greater than 0, at most a million");
         }},
        {flag("trace", "Prints every call of the interface and every callback on the standard error."),
         [](Options &options, const QString &) {
             options.trace = true;
             return QString();
         }},
    };
}

/// What is wrong with the options together, or an empty string.
QString contradiction(const Options &options, const QStringList &given)
{
    if (!options.newAddOnDirectory.isEmpty()) {
        const bool alone = given.size() == (options.newAddOnLanguage ? 2 : 1) && options.addOnFiles.isEmpty();
        return alone ? QString() : QStringLiteral("--new-addon runs no add-ons; only --language goes with it");
    }
    if (options.newAddOnLanguage)
        return QStringLiteral("--language has an effect only with --new-addon");
    if (drawsDialogs(options) && options.batch)
        return QStringLiteral("--batch shows nothing that --render, --inspect or --sweep could draw");
    const int ways = int(!options.pictureDirectory.isEmpty()) + int(!options.inspectionDirectory.isEmpty()) +
                     int(!options.sweepDirectory.isEmpty());
    if (ways > 1)
        return QStringLiteral("only one of --render, --inspect and --sweep can be done at a time");
    if ((options.reportLeaks || options.strict || options.trace) && !options.sweepDirectory.isEmpty())
        return QStringLiteral("--report-leaks, --strict and --trace have no effect with --sweep, which runs add-ons in "
                              "other processes");
    if (options.timeoutSeconds && !drawsDialogs(options) && options.scriptFile.isEmpty())
        return QStringLiteral("--timeout has an effect only with --render, --inspect, --sweep or --script");
    if (!options.scriptFile.isEmpty() && (options.batch || drawsDialogs(options)))
        return QStringLiteral("--script goes neither with --batch nor with --render, --inspect or --sweep");
    if (!options.recordFile.isEmpty() && (options.batch || drawsDialogs(options)))
        return QStringLiteral("--record goes neither with --batch nor with --render, --inspect or --sweep");
    if (!options.scriptFile.isEmpty() && !options.launches.isEmpty())
        return QStringLiteral("--script leaves nothing to --launch: its steps launch");
    if (options.addOnFiles.isEmpty())
        return QStringLiteral("no add-on given; --help tells more");
    return {};
}

/// Takes in what the command line gives of one option; returns what is wrong with it, or an empty string.
QString takeValues(const QCommandLineParser &parser, const Declaration &declaration, Options &options)
{
    if (!parser.isSet(declaration.option))
        return {};
    const bool isFlag = declaration.option.valueName().isEmpty();
    const QStringList values = isFlag ? QStringList(QString()) : parser.values(declaration.option);
    for (const QString &value : values) {
        const QString expected = declaration.take(options, value);
        if (!expected.isEmpty())
            return QStringLiteral("--%1 %2: expected %3").arg(declaration.option.names().constLast(), value, expected);
    }
    return {};
}

} // namespace

bool drawsDialogs(const Options &options)
{
    return !options.pictureDirectory.isEmpty() || !options.inspectionDirectory.isEmpty() ||
           !options.sweepDirectory.isEmpty();
}

CommandLine readCommandLine(const QStringList &arguments, Options &options, QString &text)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "A host for add-ons: loads the modules ADDON and offers what they register in its menu.\n\n"
        "The exit code is 0; 1 after an error, or when time is up; 2 if a step of a script could not be done; 3 if "
        "--report-leaks has found something; 4 if --strict has, whatever --report-leaks has found; 5 if --inspect or "
        "--sweep has."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Shows the version."));
    parser.addOptions({help, version});
    const std::vector<Declaration> declared = declarations();
    for (const Declaration &declaration : declared)
        parser.addOption(declaration.option);
    parser.addPositionalArgument(QStringLiteral("ADDON"), QStringLiteral("File of an add-on."),
                                 QStringLiteral("ADDON..."));

    if (!parser.parse(arguments)) {
        text = parser.errorText();
        return CommandLine::Wrong;
    }
    if (parser.isSet(help)) {
        text = helpText(parser);
        return CommandLine::Help;
    }
    if (parser.isSet(version)) {
        text = QStringLiteral("zelhost " ZELHOST_VERSION "\n");
        return CommandLine::Version;
    }

    options.addOnFiles = parser.positionalArguments();
    for (const Declaration &declaration : declared) {
        text = takeValues(parser, declaration, options);
        if (!text.isEmpty())
            return CommandLine::Wrong;
    }
    text = contradiction(options, parser.optionNames());
    return text.isEmpty() ? CommandLine::Run : CommandLine::Wrong;
}
