// SPDX-License-Identifier: MIT
#include "strict/texts.h"

#include "words.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QString>

#include <algorithm>

namespace orvane::trace {

namespace {

bool isAscii(const QByteArray &text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool isUtf8(QByteArray text)
{
    // The toolkit drops a mark at the beginning, which is valid.
    if (text.startsWith("\xef\xbb\xbf"))
        text.remove(0, 3);
    return QString::fromUtf8(text).toUtf8() == text;
}

bool isNumberFormat(const char *format)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(\A(?:[^%]|%%)*%[-+ #0]*(\d*)(?:\.(\d*))?l?[aefgAEFG](?:[^%]|%%)*\z)"),
        QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(format));
    const auto isSmall = [&match](int group) {
        const QString digits = match.captured(group);
        const int most = 1000;
        bool isNumber = false;
        const int number = digits.toInt(&isNumber);
        return digits.isEmpty() || (isNumber && number <= most);
    };
    return match.hasMatch() && isSmall(1) && isSmall(2);
}

} // namespace

void Texts::called(const Call &call)
{
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
        const Parameter &parameter = call.function.parameters[i];
        if (parameter.kind == Kind::Format)
            checkFormat(call, call.argument<const char *>(i));
        if (parameter.kind != Kind::Latin1 && parameter.kind != Kind::Utf8)
            continue;
        checkText(call, parameter, call.argument<const char *>(i));
        StringList_s *const list = call.argument<StringList_s *>(i);
        for (LgIndex position = 1; position <= ZelUtilStringListGetCount(list); ++position) {
            char *text = ZelUtilStringListGetString(list, position);
            checkText(call, parameter, text);
            ZelUtilStringDealloc(&text);
        }
    }
}

void Texts::checkText(const Call &call, const Parameter &parameter, const char *text)
{
    const QByteArray bytes(text);
    if (isAscii(bytes))
        return;
    const bool isLatin1 = parameter.kind == Kind::Latin1;
    if (isLatin1 == isUtf8(bytes)) {
        const char *const read = isLatin1 ? "Latin-1" : "UTF-8";
        const char *const given = isLatin1 ? "UTF-8" : "not UTF-8";
        m_faults.add(call.addOn, call.function.name,
                     std::string(parameter.name) + " " + quoted(text, !isLatin1) + " is " + given + ", but read as " +
                         read,
                     std::string("convert it to ") + read);
    }
}

void Texts::checkFormat(const Call &call, const char *format)
{
    if (!format || !isNumberFormat(format))
        m_faults.add(call.addOn, call.function.name, "format " + quoted(format, true) + " is none for one number",
                     "use exactly one of %e, %f, %g and %a, such as \"%.3f mm\"");
}

} // namespace orvane::trace
