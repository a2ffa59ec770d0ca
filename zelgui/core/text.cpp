// SPDX-License-Identifier: MIT
#include "core/text.h"

#include <zvsdkbase/zelutil.h>

#include <QByteArray>
#include <QRegularExpression>

#include <boost/algorithm/string/trim.hpp>
#include <boost/range/as_literal.hpp>

#include <algorithm>
#include <cstring>
#include <limits>
#include <locale>

namespace orvane::zelgui {

namespace {

/// Longer paddings and more digits than this are an add-on's mistake, and would only cost memory.
constexpr int kLongestFormatNumber = 1000;

bool isFormatNumberTooLong(const QString &digits)
{
    bool isNumber = false;
    const int number = digits.toInt(&isNumber);
    return !digits.isEmpty() && (!isNumber || number > kLongestFormatNumber);
}

/// The format as it is to be used; null if it is none for a number.
QByteArray usableFormat(const char *format)
{
    // The format is the add-on's, so whatever might make asprintf read an argument that isn't there has to be kept from
    // it. 'l' has no effect on a double, 'L' would read a longer one.
    // Never deleted, here and below: add-ons may still call while the process ends.
    static const auto &pattern = *new QRegularExpression(
        QStringLiteral(R"(\A[^%]*+(?:%%[^%]*+)*+%[-+ #0']*+(\d*+)(?:\.(\d*+))?l?[aefgAEFG][^%]*+(?:%%[^%]*+)*+\z)"));
    // Only ASCII has a meaning here, and Latin-1 keeps every other byte a character of its own.
    const QRegularExpressionMatch match = pattern.match(fromLatin1(format));
    if (!match.hasMatch() || isFormatNumberTooLong(match.captured(1)) || isFormatNumberTooLong(match.captured(2)))
        return {};
    QByteArray precise(format);
    // A point without digits means none behind it; Qt 5 takes it for no precision at all.
    if (match.capturedStart(2) >= 0 && match.capturedLength(2) == 0)
        precise.insert(match.capturedStart(2), '0');
    return precise;
}

/// What no locale of the system takes for white space, since POSIX keeps these classes apart. Most texts begin and end
/// with it.
bool isAsciiLetterOrDigit(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

Characters trimByLocale(Characters text)
{
    const std::locale locale;
    // Boost's own predicate looks the facet up anew for each character.
    const auto &types = std::use_facet<std::ctype<char>>(locale);
    const auto isSpace = [&types](char character) { return types.is(std::ctype_base::space, character); };
    return boost::algorithm::trim_copy_if(text, isSpace);
}

} // namespace

QString fromLatin1(const char *text)
{
    return QString::fromLatin1(text);
}

QString fromTrimmedLatin1(Characters text)
{
    const bool mayHaveSpace = text.empty() || !isAsciiLetterOrDigit(text.front()) || !isAsciiLetterOrDigit(text.back());
    const Characters trimmed = mayHaveSpace ? trimByLocale(text) : text;
    constexpr std::size_t kLongest = std::numeric_limits<int>::max();
    return QString::fromLatin1(trimmed.begin(), static_cast<int>(std::min<std::size_t>(trimmed.size(), kLongest)));
}

QString fromTrimmedLatin1(const char *text)
{
    return fromTrimmedLatin1(boost::as_literal(text ? text : ""));
}

QString fromUtf8(const char *text)
{
    static constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
    // The toolkit takes a mark at the start as a note on the encoding and drops it; to us it is text.
    int marks = 0;
    for (; text && std::strncmp(text, kByteOrderMark, 3) == 0; text += 3)
        ++marks;
    const QString decoded = QString::fromUtf8(text);
    return marks == 0 ? decoded : QString(marks, QChar(QChar::ByteOrderMark)) + decoded;
}

QString formatDouble(const char *format, double value)
{
    if (!format)
        return {};
    // Add-ons write many numbers in few formats, and to look at one takes longer than to use it.
    struct Format
    {
        QByteArray given;
        QByteArray usable;
    };
    static Format &last = *new Format;
    if (last.given != format)
        last = Format{format, usableFormat(format)};
    return last.usable.isNull() ? QString() : QString::asprintf(last.usable.constData(), value);
}

QByteArray toUtf8(const QString &text)
{
    QByteArray utf8 = text.toUtf8();
    if (utf8.contains('\0'))
        utf8.replace('\0', "\xEF\xBF\xBD");
    return utf8;
}

char *allocHostString(const QString &text)
{
    const QByteArray utf8 = toUtf8(text);
    const auto size = static_cast<std::size_t>(utf8.size()) + 1;
    char *const copy = ZelUtilStringAlloc(size, "ZelGUITextFieldGetStringQt");
    if (copy)
        std::memcpy(copy, utf8.constData(), size);
    return copy;
}

} // namespace orvane::zelgui
