// SPDX-License-Identifier: MIT
#include "models/textgenerator.h"

#include <QStringList>

#include <limits>
#include <set>

namespace {

// The parts of a sum may be made in any order, those in braces are made from left to right.
QString joined(const QStringList &parts)
{
    return parts.join(QString());
}

} // namespace

QString TextGenerator::oneOf(std::initializer_list<const char *> choices)
{
    return QString::fromUtf8(choices.begin()[below(choices.size())]);
}

QString TextGenerator::digits()
{
    if (oneIn(12))
        return oneOf({"0", "9999999999", "9999999998", "10000000000", "0000000007", "00000000007", "2147483647",
                      "2147483648", "99999999999999999999"});
    const quint64 least = oneIn(20) ? 0 : 1;
    return QString::number(least + below(oneIn(3) ? 3000 : 40));
}

QString TextGenerator::blanks()
{
    return oneOf({"", "", "", "", " ", "  ", "\t", " \t "});
}

QString TextGenerator::range()
{
    QString first = digits();
    if (oneIn(2))
        return first;
    // Ranges that are too long to be compared come from digits() often enough.
    const LgIndex start = first.toLongLong();
    const QString last = oneIn(6) ? digits() : QString::number(start + LgIndex(below(60)));
    const QString text = joined({first, blanks(), QStringLiteral("-"), blanks(), last});
    return oneIn(3) ? joined({text, blanks(), QStringLiteral(":"), blanks(), digits()}) : text;
}

void TextGenerator::spoil(QString &text, const char *characters)
{
    const QString all = QString::fromUtf8(characters);
    const int place = int(below(quint64(text.size()) + 1));
    const QChar character = all.at(int(below(quint64(all.size()))));
    switch (below(3)) {
    case 0:
        text.insert(place, character);
        break;
    case 1:
        text.remove(place, 1);
        break;
    default:
        text.replace(place, 1, character);
    }
}

QString TextGenerator::setText()
{
    const bool hasBrackets = oneIn(2);
    QString text = joined({blanks(), hasBrackets ? QStringLiteral("[") : QString(), blanks()});
    for (quint64 count = below(6); count > 0; --count)
        text += joined({range(), blanks(), oneOf({",", ",", ",", " ", "\t"}), blanks()});
    if (!oneIn(4))
        text += range();
    if (hasBrackets && !oneIn(5))
        text += joined({blanks(), QStringLiteral("]"), oneOf({"", "", "", "", "", "", "x", " ", "]", ",1"})});
    for (quint64 count = oneIn(3) ? below(3) : 0; count > 0; --count)
        spoil(text, "0123456789---,,::[]  \t;.+x\nMé\u00a0\u0663\uff11");
    return text;
}

QString TextGenerator::integerText()
{
    const auto space = [this] { return oneOf({"", "", "", " ", "\t", "\u00a0", "\u2003", "\u3000 ", "\n"}); };
    const bool isMX = oneIn(2);
    QString text = space();
    if (oneIn(4))
        text += oneOf({"-", "+", "about ", "ß", "M", "1.5 ", "MX", "\u0663"});
    if (isMX)
        text += joined({oneOf({"MX", "mx", "Mx", "mX"}), space(), oneOf({"-", "-", "-", "+", "", "--"}), space()});
    if (!isMX || !oneIn(4))
        text += digits();
    if (oneIn(4))
        text += oneOf({" ", "MX", "mx-2", ".5", "e3", "\u0663", "\U0001d7d8", "x", " - 4"});
    text += space();
    for (quint64 count = oneIn(3) ? below(3) : 0; count > 0; --count)
        spoil(text, "0123456789MmXx--  \t+.,aİıß\u00a0\u0663\uff11");
    return text;
}

std::vector<LgIndex> TextGenerator::members()
{
    std::set<LgIndex> all;
    for (quint64 runs = below(6); runs > 0; --runs) {
        const LgIndex most = oneIn(8) ? std::numeric_limits<LgIndex>::max() - 8 : LgIndex(oneIn(3) ? 9999999990 : 60);
        const LgIndex first = 1 + LgIndex(below(quint64(most)));
        for (LgIndex member = first; member <= first + LgIndex(below(6)); ++member)
            all.insert(member);
    }
    return {all.begin(), all.end()};
}

LgIndex TextGenerator::integer()
{
    using Limits = std::numeric_limits<LgIndex>;
    static const LgIndex extremes[] = {
        Limits::min(), Limits::min() + 1, Limits::max() - 1, Limits::max(), 2147483647, 2147483648, -2147483648LL, 0,
    };
    return oneIn(5) ? extremes[below(8)] : LgIndex(below(90)) - 30;
}
