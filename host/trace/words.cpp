// SPDX-License-Identifier: MIT
#include "words.h"

#include "closure.h"

#include <zvsdkbase/hostcontrol.h>

#include <QString>

#include <algorithm>

namespace orvane::trace {

namespace {

const qsizetype LongestText = 40;
const LgIndex MostItems = 10;

std::string join(const std::vector<std::string> &parts)
{
    std::string text;
    for (const std::string &part : parts)
        text += (text.empty() ? "" : ", ") + part;
    return text;
}

/// `item(i)` for i from 0, in braces, cut where there are many.
template <typename Item>
std::string itemsText(LgIndex count, Item item)
{
    std::vector<std::string> parts;
    for (LgIndex i = 0; i < std::min(count, MostItems); ++i)
        parts.push_back(item(i));
    if (count > MostItems)
        parts.emplace_back("... " + std::to_string(count) + " in all");
    return "{" + join(parts) + "}";
}

std::string arrayText(const int *values, LgIndex count)
{
    return values ? itemsText(count, [values](LgIndex i) { return std::to_string(values[i]); }) : "null";
}

std::string positionsText(const int *values)
{
    LgIndex count = 0;
    while (values && values[count] != 0)
        ++count;
    return arrayText(values, count);
}

std::string setText(IndexSet set)
{
    if (!set)
        return "null";
    std::vector<std::string> runs;
    LgIndex last = 0;
    while (const LgIndex first = ZelUtilSetGetNextMember(set, last)) {
        if (runs.size() == static_cast<std::size_t>(MostItems)) {
            runs.emplace_back("...");
            break;
        }
        last = ZelUtilSetGetRunEnd(set, first);
        runs.push_back(std::to_string(first) + (last > first ? "-" + std::to_string(last) : ""));
    }
    return "{" + join(runs) + "}";
}

std::string listText(StringList_s *list, bool isLatin1)
{
    if (!list)
        return "null";
    return itemsText(ZelUtilStringListGetCount(list), [list, isLatin1](LgIndex i) {
        char *item = ZelUtilStringListGetString(list, i + 1);
        std::string text = quoted(item, isLatin1);
        ZelUtilStringDealloc(&item);
        return text;
    });
}

std::string numberText(double number)
{
    return QString::number(number, 'g', 10).toStdString();
}

/// An argument, of which an input is shown and an output only named.
struct ArgumentText
{
    const Call &call;
    std::size_t index;

    const Parameter &parameter() const { return call.function.parameters[index]; }
    bool isLatin1() const { return parameter().kind == Kind::Latin1; }

    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(int value) const { return std::to_string(value); }
    std::string operator()(ZelBoolean value) const { return std::to_string(value); }
    std::string operator()(LgIndex value) const { return std::to_string(value); }
    std::string operator()(double value) const { return numberText(value); }
    std::string operator()(const char *value) const { return quoted(value, isLatin1()); }
    std::string operator()(const unsigned char *value) const { return value ? "pixels" : "null"; }
    std::string operator()(const int *value) const { return arrayText(value, call.argument<int>(index + 1)); }
    std::string operator()(IndexSet value) const { return setText(value); }
    std::string operator()(StringList_s *value) const { return listText(value, isLatin1()); }
    template <typename R, typename... P>
    std::string operator()(R (*value)(P...)) const
    {
        return callbackName(reinterpret_cast<void (*)()>(value));
    }
    template <typename T>
    std::string operator()(T *value) const
    {
        return value ? std::string("&") + parameter().name : "null";
    }
};

/// What an output argument holds after the call; empty for everything else.
struct OutputText
{
    const Call &call;
    std::size_t index;

    std::string operator()(double *value) const { return numberText(*value); }
    std::string operator()(LgIndex *value) const { return std::to_string(*value); }
    std::string operator()(int *value) const { return std::to_string(*value); }
    std::string operator()(IndexSet *value) const { return setText(*value); }
    std::string operator()(int **value) const
    {
        // A call without effect has left pointer and count as they were, which may be anything.
        const int *const count = call.argument<int *>(index + 1);
        const auto held = static_cast<LgIndex>(host::heldBytes(*value) / sizeof(int));
        return held > 0 ? arrayText(*value, count ? std::clamp<LgIndex>(*count, 0, held) : held) : "null";
    }
    template <typename T>
    std::string operator()(T) const
    {
        return {};
    }
};

/// Whether an argument points to where the function writes a result.
struct IsOutput
{
    template <typename T>
    bool operator()(T value) const
    {
        if constexpr (std::is_same_v<T, double *> || std::is_same_v<T, LgIndex *> || std::is_same_v<T, int *> ||
                      std::is_same_v<T, IndexSet *> || std::is_same_v<T, int **>)
            return value != nullptr;
        else
            return false;
    }
};

bool isOutput(const Call &call, std::size_t index)
{
    return call.function.parameters[index].kind != Kind::Unread && std::visit(IsOutput(), call.arguments[index]);
}

std::string plainText(const Value &value, bool hasPositions)
{
    if (const auto *const number = std::get_if<const int *>(&value))
        return hasPositions ? positionsText(*number) : *number ? std::to_string(**number) : "null";
    if (const auto *const text = std::get_if<char *>(&value))
        return quoted(*text, false);
    if (const auto *const text = std::get_if<const char *>(&value))
        return quoted(*text, false);
    if (const auto *const number = std::get_if<int>(&value))
        return std::to_string(*number);
    if (const auto *const boolean = std::get_if<ZelBoolean>(&value))
        return std::to_string(*boolean);
    return {};
}

} // namespace

std::string quoted(const char *text, bool isLatin1)
{
    if (!text)
        return "null";
    const QString whole = isLatin1 ? QString::fromLatin1(text) : QString::fromUtf8(text);
    QString result;
    for (const QChar c : whole.left(LongestText)) {
        if (c == QLatin1Char('\n'))
            result += QLatin1String("\\n");
        else if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
            result += QLatin1Char('\\') + QString(c);
        else
            result += c.category() == QChar::Other_Control ? QChar(QLatin1Char('?')) : c;
    }
    return '"' + result.toStdString() + (whole.size() > LongestText ? "\"..." : "\"");
}

std::string argumentsText(const Call &call)
{
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
        const bool isPointerUnread = call.function.parameters[i].kind == Kind::Unread &&
                                     !std::holds_alternative<int>(call.arguments[i]) &&
                                     !std::holds_alternative<ZelBoolean>(call.arguments[i]);
        texts.push_back(isPointerUnread ? "unread" : std::visit(ArgumentText{call, i}, call.arguments[i]));
    }
    return "(" + join(texts) + ")";
}

std::string resultText(const Call &call)
{
    std::vector<std::string> texts;
    if (!std::holds_alternative<std::monostate>(call.result))
        texts.push_back(plainText(call.result, false));
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
        if (isOutput(call, i)) {
            texts.push_back(std::string(call.function.parameters[i].name) + " " +
                            std::visit(OutputText{call, i}, call.arguments[i]));
        }
    }
    return texts.empty() ? std::string() : " = " + join(texts);
}

bool willHaveResult(const Call &call)
{
    bool result = call.hasResult;
    for (std::size_t i = 0; i < call.arguments.size(); ++i)
        result = result || isOutput(call, i);
    return result;
}

std::string argumentsText(const Run &run)
{
    std::vector<std::string> texts;
    for (const Value &argument : run.arguments)
        texts.push_back(plainText(argument, run.hasPositions));
    return "(" + join(texts) + ")";
}

std::string answerText(const Run &run)
{
    if (run.hasThrown)
        return " has thrown an exception";
    return std::holds_alternative<std::monostate>(run.answer) ? std::string() : " = " + plainText(run.answer, false);
}

} // namespace orvane::trace
