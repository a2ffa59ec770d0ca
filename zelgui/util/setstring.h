// SPDX-License-Identifier: MIT
#ifndef ZELGUI_UTIL_SETSTRING_H
#define ZELGUI_UTIL_SETSTRING_H

#include <zvsdkbase/zelutil.h>

#include <cstddef>

/// Index sets as text: members and runs in ascending order, separated by commas, such as "1-3,5,7-9", optionally in
/// brackets. What is read may have blanks, ranges with a step ("1-10:3"), and no commas.
///
/// All strings are the host's, from ZelUtilStringAlloc.
namespace orvane::zelgui {

/// Appends the text of a set to *text, which may be null and becomes null when the host has no memory. A null set is
/// an empty one. False, and *text is left alone, if the set's text has more than `longest` characters; that is found
/// out in time for so many, however large the set is.
bool setToString(IndexSet set, bool includeBrackets, std::size_t longest, char **text);

/// Makes a new set, the caller's, of what the text says. False, with *set null, if that is no set, or if the host has
/// no memory. With brackets expected, the text has to begin with '[' and is over at ']'.
bool stringToSet(const char *text, IndexSet *set, bool expectBrackets);

} // namespace orvane::zelgui

#endif
