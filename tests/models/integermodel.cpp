// SPDX-License-Identifier: MIT
#include "models/integermodel.h"

#include <QVector>

#include <algorithm>
#include <limits>

namespace IntegerModel {

namespace {

using CodePoints = QVector<uint>;
using Position = CodePoints::const_iterator;

bool isDigit(uint character)
{
    return QChar::category(character) == QChar::Number_DecimalDigit;
}

bool isSpace(uint character)
{
    return QChar::isSpace(character);
}

// The number that the digits make; none if one of them isn't 0 to 9 or if it is beyond 31 bits.
Reading valueOf(Position first, Position last)
{
    LgIndex value = 0;
    for (; first != last; ++first) {
        value = value * 10 + (LgIndex(*first) - '0');
        const bool isWesternDigit = *first <= '9';
        if (!isWesternDigit || value > std::numeric_limits<qint32>::max())
            return {};
    }
    return {true, value};
}

bool startsMX(Position at, Position end)
{
    return end - at >= 2 && (at[0] == 'M' || at[0] == 'm') && (at[1] == 'X' || at[1] == 'x');
}

// What follows an "MX": blanks, a minus sign, blanks and digits.
bool readOffset(Position at, Position end, Reading &reading)
{
    const Position minus = std::find_if_not(at, end, isSpace);
    if (minus == end || *minus != '-')
        return false;
    const Position digits = std::find_if_not(minus + 1, end, isSpace);
    const Position behind = std::find_if_not(digits, end, isDigit);
    if (digits == behind)
        return false;
    reading = valueOf(digits, behind);
    reading.value = -reading.value;
    return true;
}

bool hasMX(const CodePoints &text)
{
    for (Position at = text.begin(); at != text.end(); ++at) {
        if (startsMX(at, text.end()))
            return true;
    }
    return false;
}

Reading readMX(const CodePoints &text)
{
    if (text.size() == 2)
        return {true, 0};
    Reading reading;
    for (Position at = text.begin(); at != text.end(); ++at) {
        if (startsMX(at, text.end()) && readOffset(at + 2, text.end(), reading))
            return reading;
    }
    return {};
}

LgIndex sumWithin64Bits(LgIndex maximum, LgIndex offset)
{
    // An offset is never above 0.
    const LgIndex least = std::numeric_limits<LgIndex>::min();
    return maximum < least - offset ? least : maximum + offset;
}

QString outOfRange(const QString &name, const Limits &limits)
{
    return QStringLiteral("Invalid value for ") + name + QStringLiteral(". Expected a value between ") +
           QString::number(limits.min) + QStringLiteral(" and ") + QString::number(limits.max);
}

} // namespace

Reading read(const QString &text)
{
    const CodePoints characters = text.trimmed().toUcs4();
    if (hasMX(characters))
        return readMX(characters);
    const Position digits = std::find_if(characters.begin(), characters.end(), isDigit);
    const Position behind = std::find_if_not(digits, characters.end(), isDigit);
    return digits == behind ? Reading{} : valueOf(digits, behind);
}

QString write(LgIndex value, bool displayAsMX)
{
    QString text = QString::number(value);
    if (!displayAsMX || value > 0)
        return text;
    return QStringLiteral("Mx") + (value == 0 ? QString() : text);
}

Verdict validate(const QString &text, const QString &name, const Limits &limits)
{
    if (text.trimmed().isEmpty())
        return {false, QStringLiteral("Value not specified for ") + name + QLatin1Char('.')};
    const bool isMX = hasMX(text.toUcs4());
    if (isMX && !limits.allowsMX)
        return {false, QStringLiteral("MX syntax may not be used for ") + name + QLatin1Char('.')};
    const Reading reading = read(text);
    if (!reading.isInteger)
        return {false, QStringLiteral("Invalid value specified for ") + name + QLatin1Char('.')};
    if (!isMX) {
        const bool isInside = limits.min <= reading.value && reading.value <= limits.max;
        return {isInside, isInside ? QString() : outOfRange(name, limits) + QLatin1Char('.')};
    }
    const LgIndex sum = sumWithin64Bits(limits.max, reading.value);
    if (limits.min <= sum)
        return {true, {}};
    return {false, outOfRange(name, limits) + QStringLiteral(" but MX") + QString::number(reading.value) +
                       QStringLiteral(" evaluates to ") + QString::number(sum)};
}

} // namespace IntegerModel
