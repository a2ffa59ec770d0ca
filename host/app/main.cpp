// SPDX-License-Identifier: MIT
#include "accessiblenames.h"
#include "exitcodes.h"
#include "files.h"
#include "messages.h"
#include "modes/modes.h"
#include "options.h"
#include "session.h"

#include <zvsdkbase/hostcontrol.h>

#include <QApplication>

#include <clocale>
#include <cstdio>

namespace {

/// Without anybody who would have to see something.
bool isUnattended(const Options &options)
{
    return drawsDialogs(options) || !options.scriptFile.isEmpty();
}

/// Sees to a platform that can start; the toolkit would abort the process. False if there is none.
bool choosePlatform(const Options &options)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return true;
    const bool display = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (options.batch || (!display && isUnattended(options)) || !options.sweepDirectory.isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    if (!display)
        complain(QStringLiteral("there is no display; --render DIR draws pictures of the dialogs without one"));
    return display;
}

int runHost(const Options &options)
{
    if (!options.sweepDirectory.isEmpty())
        return sweepLooks(options);
    Session session;
    if (!openSession(options, session))
        return Failure;
    if (options.batch)
        return runInBatch(session);
    if (!options.pictureDirectory.isEmpty())
        return drawPictures(options, session);
    if (!options.scriptFile.isEmpty())
        return playScript(options, session);
    if (!options.inspectionDirectory.isEmpty())
        return inspectLooks(options, session);
    return runInteractively(options, session);
}

bool reportLeaks()
{
    const std::vector<orvane::host::Unreleased> leaks = orvane::host::unreleased();
    for (const orvane::host::Unreleased &leak : leaks) {
        complain(
            QStringLiteral("not released: %1 x \"%2\", %3 bytes")
                .arg(QString::number(leak.count), QString::fromStdString(leak.label), QString::number(leak.bytes)));
    }
    return !leaks.empty();
}

} // namespace

int main(int argc, char **argv)
{
    // The application object does the same, but the command line is read before there is one.
    std::setlocale(LC_ALL, "");
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    rememberStartDirectory();
    QCoreApplication::setApplicationName(QStringLiteral("zelhost"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZELHOST_VERSION));

    // The toolkit sees the program's name only: what looks like one of its own options is ours, or a file.
    int nameOnly = 1;
    Options options;
    QString text;
    switch (readCommandLine(arguments, options, text)) {
    case CommandLine::Run:
        break;
    case CommandLine::Wrong:
        complain(text);
        return Failure;
    case CommandLine::Help:
    case CommandLine::Version:
        std::printf("%s", text.toLocal8Bit().constData());
        return Success;
    }
    if (!options.newAddOnDirectory.isEmpty()) {
        const AddOnLanguage language = options.newAddOnLanguage.value_or(AddOnLanguage::C);
        return writeNewAddOn(options.newAddOnDirectory, language, arguments.value(0));
    }
    if (!choosePlatform(options))
        return Failure;

    tameToolkitMessages();
    int exitCode = Success;
    {
        QApplication application(nameOnly, argv);
        new AccessibleNames(&application);
        exitCode = runHost(options);
    }
    // After the last window, which may hold memory until it goes. An error that was reported keeps its exit code.
    if (options.reportLeaks && reportLeaks() && exitCode == Success)
        exitCode = LeaksFound;
    const bool isMisused = orvane::host::observer() && orvane::host::observer()->finish() > 0;
    if (isMisused && (exitCode == Success || exitCode == LeaksFound))
        exitCode = MisuseFound;
    return exitCode;
}
