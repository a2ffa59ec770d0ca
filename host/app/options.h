// SPDX-License-Identifier: MIT
#ifndef ZELHOST_OPTIONS_H
#define ZELHOST_OPTIONS_H

#include "newaddon.h"

#include <QStringList>

#include <optional>

/// What the command line asks for.
struct Options
{
    struct Resolution
    {
        double horizontal;
        double vertical;
    };
    struct Font
    {
        QString family;
        double points;
    };

    QStringList addOnFiles;
    /// Names of entries, in the order in which to launch them.
    QStringList launches;
    bool batch = false;
    bool reportLeaks = false;
    bool trace = false;
    bool strict = false;
    std::optional<Resolution> dotsPerInch;
    std::optional<Font> font;
    /// Where the pictures go; empty if none are to be drawn.
    QString pictureDirectory;
    /// The script to play; empty if there is none.
    QString scriptFile;
    /// Of the toolkit; empty for the default one.
    QString style;
    /// Where pictures of all pages go and what is wrong with them; empty if they are not to be looked at.
    QString inspectionDirectory;
    /// The same for many fonts, resolutions and styles.
    QString sweepDirectory;
    /// Where what the user does is written to; empty if it is not.
    QString recordFile;
    /// How long one entry, or one step of a script, may take.
    std::optional<double> timeoutSeconds;
    /// Where to write the project of a new add-on; empty if none is to be written.
    QString newAddOnDirectory;
    std::optional<AddOnLanguage> newAddOnLanguage;
};

const double DefaultTimeoutSeconds = 20.0;

/// Whether the host is to look at dialogs itself, which needs no display.
bool drawsDialogs(const Options &options);

enum class CommandLine { Run, Help, Version, Wrong };

/// Reads the command line into `options`; for anything but Run, `text` is what to tell the user. To be called before
/// there is an application object, whose platform depends on the options.
CommandLine readCommandLine(const QStringList &arguments, Options &options, QString &text);

#endif
