// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_LANGUAGE_H
#define ZELHOST_SCRIPT_LANGUAGE_H

#include "step.h"

/// Reads the text of a script. Returns what is wrong, after the line's number, or an empty string.
QString readSteps(const QString &text, std::vector<Step> &steps);

/// "up" and "down" of scales, arrows and wheels.
inline bool isUp(const Word &word)
{
    return word.text == QLatin1String("up");
}

#endif
