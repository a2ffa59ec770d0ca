// SPDX-License-Identifier: MIT
#include "models/setmodel.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <set>

namespace SetModel {

namespace {

// Each matches where the one before has ended (\G) and gives nothing back (++, *+): an item is as long as it can be.
const QRegularExpression &item()
{
    static const QRegularExpression expression(QStringLiteral(
        R"(\G[ \t]*+(?<first>[0-9]{1,10})(?![0-9]))"
        R"((?:[ \t]*-[ \t]*+(?<last>[0-9]{1,10})(?![0-9])(?:[ \t]*:[ \t]*+(?<step>[0-9]{1,10})(?![0-9]))?)?)"
        R"([ \t]*+(?:,[ \t]*+)?)"));
    return expression;
}

const QRegularExpression &opening()
{
    static const QRegularExpression expression(QStringLiteral(R"(\G[ \t]*+\[)"));
    return expression;
}

const QRegularExpression &closing()
{
    static const QRegularExpression expression(QStringLiteral(R"(\G[ \t]*+\])"));
    return expression;
}

LgIndex numberOr(const QString &digits, LgIndex otherwise)
{
    return digits.isEmpty() ? otherwise : digits.toLongLong();
}

std::optional<Range> rangeOf(const QRegularExpressionMatch &match)
{
    const LgIndex first = numberOr(match.captured(QStringLiteral("first")), 0);
    const Range range = {first, numberOr(match.captured(QStringLiteral("last")), first),
                         numberOr(match.captured(QStringLiteral("step")), 1)};
    const bool isSound = range.first >= 1 && range.last >= range.first && range.step >= 1;
    return isSound ? std::optional<Range>(range) : std::nullopt;
}

} // namespace

Reading read(const QString &text)
{
    const bool hasBrackets = text.contains(QLatin1Char('['));
    static const QRegularExpression blanks(QStringLiteral("\\G[ \\t]*"));
    auto end = (hasBrackets ? opening() : blanks).match(text).capturedEnd();
    Reading reading = {end >= 0, {}};
    while (reading.isSet && end < text.size() && !(hasBrackets && closing().match(text, end).hasMatch())) {
        const auto match = item().match(text, end);
        const auto range = match.hasMatch() ? rangeOf(match) : std::nullopt;
        reading.isSet = range.has_value();
        if (range)
            reading.ranges.push_back(*range);
        end = match.capturedEnd();
    }
    return reading;
}

LgIndex mentions(const std::vector<Range> &ranges)
{
    LgIndex count = 0;
    for (const Range &range : ranges)
        count += (range.last - range.first) / range.step + 1;
    return count;
}

std::vector<LgIndex> members(const std::vector<Range> &ranges)
{
    std::set<LgIndex> all;
    for (const Range &range : ranges) {
        for (LgIndex member = range.first; member <= range.last; member += range.step)
            all.insert(member);
    }
    return {all.begin(), all.end()};
}

QString write(const std::vector<LgIndex> &members, bool includeBrackets)
{
    QStringList items;
    for (auto first = members.begin(); first != members.end();) {
        const auto last =
            std::adjacent_find(first, members.end(), [](LgIndex left, LgIndex right) { return right - left > 1; });
        const auto end = last == members.end() ? last : last + 1;
        const QString start = QString::number(*first);
        items << (end - first == 1 ? start : start + QLatin1Char('-') + QString::number(*(end - 1)));
        first = end;
    }
    const QString text = items.join(QLatin1Char(','));
    return includeBrackets ? QLatin1Char('[') + text + QLatin1Char(']') : text;
}

} // namespace SetModel
