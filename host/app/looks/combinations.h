// SPDX-License-Identifier: MIT
#ifndef ZELHOST_LOOKS_COMBINATIONS_H
#define ZELHOST_LOOKS_COMBINATIONS_H

#include "../options.h"

#include <QStringList>

#include <vector>

/// One set of circumstances in which dialogs have to look right.
struct Combination
{
    QString style;
    Options::Font font;
    Options::Resolution resolution;
};

/// All circumstances that a sweep goes through: every installed style, a narrow and a wide family in several sizes, and
/// square and oblong pixels. What the options say about one of these is kept.
std::vector<Combination> combinationsFor(const Options &options);

/// "Fusion, DejaVu Sans 10, 96x96 dpi", for people.
QString titleOf(const Combination &combination);

/// The command line options that bring these circumstances about.
QStringList argumentsFor(const Combination &combination);

#endif
