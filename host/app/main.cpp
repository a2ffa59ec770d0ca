// SPDX-License-Identifier: MIT
#include "addonloader.h"
#include "hostwindow.h"
#include "messages.h"
#include "options.h"
#include "renderer.h"

#include <zvsdkbase/hostcontrol.h>

#include <QApplication>
#include <QFileInfo>
#include <QTimer>

#include <clocale>
#include <cstdio>
#include <memory>

using orvane::host::AddOn;

namespace {

const int Failure = 1;
const int LeaksFound = 3;

/// Sees to a platform that can start; the toolkit would abort the process. False if there is none.
bool choosePlatform(const Options &options)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return true;
    const bool display = !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (options.batch || (!display && !options.pictureDirectory.isEmpty())) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return true;
    }
    if (!display)
        complain(QStringLiteral("there is no display; --render DIR draws pictures of the dialogs without one"));
    return display;
}

/// False, after a message, if something that could be called `name` is not registered.
bool appendEntries(const QString &name, const std::vector<AddOn> &registered, std::vector<AddOn> &entries)
{
    QStringList names;
    bool found = false;
    for (const AddOn &addOn : registered) {
        const QString registeredName = QString::fromStdString(addOn.name);
        names.append(QStringLiteral("\"%1\"").arg(registeredName));
        if (registeredName == name) {
            entries.push_back(addOn);
            found = true;
        }
    }
    if (!found) {
        const QString all = names.isEmpty() ? QStringLiteral("nothing") : names.join(QLatin1String(", "));
        complain(QStringLiteral("--launch: no add-on has registered \"%1\"; there is %2").arg(name, all));
    }
    return found;
}

int renderEntries(const Options &options, const std::vector<AddOn> &entries)
{
    const QDir directory(options.pictureDirectory);
    if (!directory.mkpath(QStringLiteral(".")) || !QFileInfo(directory.absolutePath()).isWritable()) {
        complain(QStringLiteral("--render %1: not a directory that can be written to").arg(options.pictureDirectory));
        return Failure;
    }
    if (entries.empty()) {
        complain(QStringLiteral("--render: the add-ons have registered nothing to draw"));
        return Failure;
    }
    // Only the renderer knows when the last dialog is closed.
    QApplication::setQuitOnLastWindowClosed(false);
    Renderer renderer(directory, options.timeoutSeconds);
    return renderer.run(entries);
}

int runHost(const Options &options)
{
    if (options.font) {
        QFont font(options.font->family);
        font.setPointSizeF(options.font->points);
        QApplication::setFont(font);
    }
    if (options.dotsPerInch)
        orvane::host::overrideDotsPerInch(options.dotsPerInch->horizontal, options.dotsPerInch->vertical);
    orvane::host::setBatchModeActive(options.batch);

    // Before the add-ons are loaded: they may look for it.
    const auto window = options.batch ? nullptr : std::make_unique<HostWindow>();
    for (const QString &file : options.addOnFiles) {
        const QString failure = loadAddOn(file);
        if (!failure.isEmpty()) {
            complain(failure);
            return Failure;
        }
    }

    const std::vector<AddOn> registered = orvane::host::registeredAddOns();
    std::vector<AddOn> entries;
    for (const QString &name : options.launches) {
        if (!appendEntries(name, registered, entries))
            return Failure;
    }
    const auto launchEntries = [entries] {
        for (const AddOn &entry : entries)
            entry.launch();
    };
    if (!window) {
        launchEntries();
        return 0;
    }

    window->setAddOns(registered);
    window->show();
    if (!options.pictureDirectory.isEmpty())
        return renderEntries(options, options.launches.isEmpty() ? registered : entries);
    QTimer::singleShot(0, window.get(), launchEntries);
    return QApplication::exec();
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
        return 0;
    }
    if (!choosePlatform(options))
        return Failure;

    tameToolkitMessages();
    int exitCode = 0;
    {
        const QApplication application(nameOnly, argv);
        exitCode = runHost(options);
    }
    // After the last window, which may hold memory until it goes. An error that was reported keeps its exit code.
    if (options.reportLeaks && reportLeaks() && exitCode == 0)
        exitCode = LeaksFound;
    return exitCode;
}
