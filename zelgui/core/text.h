// SPDX-License-Identifier: MIT
#ifndef ZELGUI_CORE_TEXT_H
#define ZELGUI_CORE_TEXT_H

#include <QString>

#include <boost/range/iterator_range.hpp>

/// Text on its way between add-ons and the toolkit.
namespace orvane::zelgui {

using Characters = boost::iterator_range<const char *>;

/// Latin-1 text of an add-on; null is empty.
QString fromLatin1(const char *text);

/// Latin-1 text without the white space at its ends; null is empty. The global locale says what that is, but letters
/// and digits of ASCII at both ends are never looked up.
QString fromTrimmedLatin1(const char *text);
QString fromTrimmedLatin1(Characters text);

/// UTF-8 text of an add-on, a byte order mark at its start included; null is empty.
QString fromUtf8(const char *text);

/// Text for an add-on. A null character, which users can paste, would end it early: U+FFFD stands in its place.
QByteArray toUtf8(const QString &text);

/// `value` written in a printf format of the add-on's. Null unless the format holds exactly one floating-point
/// conversion, whose width and precision are at most 1000 and not taken from arguments.
QString formatDouble(const char *format, double value);

/// A UTF-8 copy in memory of the host, released with ZelUtilStringDealloc; null when the host has no memory.
char *allocHostString(const QString &text);

} // namespace orvane::zelgui

#endif
