// SPDX-License-Identifier: MIT
#include "options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <array>
#include <cmath>
#include <limits>

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

/// The parser's help asks the application object for the program's name.
QString helpText(const QCommandLineParser &parser)
{
    std::array<char, 8> name{"zelhost"};
    std::array<char *, 2> arguments{name.data(), nullptr};
    int count = 1;
    const QCoreApplication application(count, arguments.data());
    return parser.helpText();
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments, Options &options, QString &text)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A host for add-ons: loads the modules ADDON and offers what they register in its menu.\n\n"
                       "The exit code is 0, 1 after an error, or 3 if --report-leaks has found something."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this help."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Shows the version."));
    const QCommandLineOption batch(
        QStringLiteral("batch"),
        QStringLiteral("Runs without a window, as if there were no user, does what --launch says and ends."));
    const QCommandLineOption dotsPerInch(QStringLiteral("dpi"),
                                         QStringLiteral("Tells add-ons that the screen has H by V dots per inch."),
                                         QStringLiteral("H,V"));
    const QCommandLineOption fontOption(QStringLiteral("font"), QStringLiteral("Uses this font everywhere."),
                                        QStringLiteral("FAMILY,POINTS"));
    const QCommandLineOption launch(QStringLiteral("launch"),
                                    QStringLiteral("Launches what is registered as NAME. May be given several times."),
                                    QStringLiteral("NAME"));
    const QCommandLineOption render(
        QStringLiteral("render"),
        QStringLiteral("Launches every entry, or those of --launch, saves a picture of its dialog in DIR and ends. "
                       "Needs no display."),
        QStringLiteral("DIR"));
    const QCommandLineOption reportLeaks(
        QStringLiteral("report-leaks"),
        QStringLiteral("Lists, when the program ends, what the add-ons have not released."));
    const QCommandLineOption timeout(
        QStringLiteral("timeout"),
        QStringLiteral("Ends the program when an entry takes longer than this with --render; 20 if not given."),
        QStringLiteral("SECONDS"));
    parser.addOptions({help, version, batch, dotsPerInch, fontOption, launch, render, reportLeaks, timeout});
    parser.addPositionalArgument(QStringLiteral("ADDON"), QStringLiteral("File of an add-on."),
                                 QStringLiteral("ADDON..."));

    const auto wrong = [&text](const QString &message) {
        text = message;
        return CommandLine::Wrong;
    };
    const auto wrongValue = [&parser, &wrong](const QCommandLineOption &option, const QString &expected) {
        return wrong(
            QStringLiteral("--%1 %2: expected %3").arg(option.names().constLast(), parser.value(option), expected));
    };

    if (!parser.parse(arguments))
        return wrong(parser.errorText());
    if (parser.isSet(help)) {
        text = helpText(parser);
        return CommandLine::Help;
    }
    if (parser.isSet(version)) {
        text = QStringLiteral("zelhost " ZELHOST_VERSION "\n");
        return CommandLine::Version;
    }

    options.addOnFiles = parser.positionalArguments();
    options.launches = parser.values(launch);
    options.batch = parser.isSet(batch);
    options.reportLeaks = parser.isSet(reportLeaks);
    if (parser.isSet(dotsPerInch)) {
        options.dotsPerInch = resolution(parser.value(dotsPerInch));
        if (!options.dotsPerInch)
            return wrongValue(dotsPerInch, QStringLiteral("two numbers greater than 0 with a comma between them"));
    }
    if (parser.isSet(fontOption)) {
        options.font = font(parser.value(fontOption));
        if (!options.font)
            return wrongValue(fontOption, QStringLiteral("a font's name, a comma and a size from 0 to 1000"));
    }
    if (parser.isSet(render)) {
        options.pictureDirectory = parser.value(render);
        if (options.pictureDirectory.isEmpty())
            return wrongValue(render, QStringLiteral("a directory"));
        if (options.batch)
            return wrong(QStringLiteral("--batch shows nothing that --render could draw"));
    }
    if (parser.isSet(timeout)) {
        const std::optional<double> seconds = positiveNumber(parser.value(timeout), 1e6);
        if (!seconds)
            return wrongValue(timeout, QStringLiteral("a number of seconds greater than 0, at most a million"));
        if (options.pictureDirectory.isEmpty())
            return wrong(QStringLiteral("--timeout has an effect only with --render"));
        options.timeoutSeconds = *seconds;
    }
    if (options.addOnFiles.isEmpty())
        return wrong(QStringLiteral("no add-on given; --help tells more"));
    return CommandLine::Run;
}
