// SPDX-License-Identifier: MIT
#ifndef TESTS_MODELS_SETMODEL_H
#define TESTS_MODELS_SETMODEL_H

#include <zvsdkbase/zelutil.h>

#include <QString>

#include <vector>

/// What users may type for an index set and what is shown for one, told a second time: with regular expressions and
/// whole sets in memory, where the library walks over the text. Made to be compared with, not to be fast.
namespace SetModel {

/// first, first + step, ... up to last.
struct Range
{
    LgIndex first;
    LgIndex last;
    LgIndex step;
};

struct Reading
{
    /// Whether the text stands for a set.
    bool isSet;
    /// All of its ranges, or those before the place where it is wrong.
    std::vector<Range> ranges;
};

Reading read(const QString &text);

/// How often a member is named. Ten digits allow more of them than memory does.
LgIndex mentions(const std::vector<Range> &ranges);

/// Ascending, each once.
std::vector<LgIndex> members(const std::vector<Range> &ranges);

/// @param members  ascending, each once
QString write(const std::vector<LgIndex> &members, bool includeBrackets);

} // namespace SetModel

#endif
