// SPDX-License-Identifier: MIT
#include "language.h"

#include "keys.h"
#include "nearest.h"

#include <QStringList>

namespace {

/// How a step is written. Words in capitals stand for any word; for NUMBER, KEY and SECONDS, see suits(). What is in
/// brackets may be left out, and what has dots may be repeated; both stand at the end only.
struct Form
{
    Action action;
    const char *pattern;
};

/// Of several that a line suits, the first one counts.
const Form Forms[] = {
    {Action::Launch, "launch NAME [NUMBER]"},
    {Action::Press, "press NAME"},
    {Action::Check, "check NAME"},
    {Action::Uncheck, "uncheck NAME"},
    {Action::Choose, "choose NAME"},
    {Action::ChooseItem, "choose NAME ITEM"},
    {Action::Type, "type NAME TEXT"},
    {Action::Insert, "insert NAME TEXT"},
    {Action::Cursor, "cursor NAME NUMBER NUMBER [NUMBER...]"},
    {Action::SelectAll, "select NAME all"},
    {Action::SelectNone, "select NAME none"},
    {Action::SelectRange, "select NAME ITEM to ITEM"},
    {Action::Select, "select NAME ITEM..."},
    {Action::Add, "add NAME ITEM..."},
    {Action::Deselect, "deselect NAME ITEM..."},
    {Action::Extend, "extend NAME ITEM"},
    {Action::Drag, "drag NAME NUMBER..."},
    {Action::Page, "page NAME up|down"},
    {Action::Arrow, "step NAME up|down [NUMBER]"},
    {Action::Wheel, "wheel NAME up|down [NUMBER]"},
    {Action::Menu, "menu PATH"},
    {Action::Tab, "tab NAME"},
    {Action::Key, "key KEY..."},
    {Action::Click, "click NAME"},
    {Action::Close, "close"},
    {Action::Picture, "picture FILE"},
    {Action::Wait, "wait SECONDS"},
    {Action::Patience, "patience SECONDS"},
    {Action::ExpectMessage, "expect message TEXT"},
    {Action::ExpectDialogClosed, "expect dialog closed"},
    {Action::ExpectNamedDialogClosed, "expect dialog TITLE closed"},
    {Action::ExpectDialog, "expect dialog TITLE"},
    {Action::ExpectLabel, "expect label TEXT"},
    {Action::ExpectTab, "expect tab NAME"},
    {Action::ExpectMenu, "expect menu PATH checked|unchecked|enabled|disabled"},
    {Action::ExpectText, "expect NAME text TEXT"},
    {Action::ExpectState, "expect NAME checked|unchecked|enabled|disabled|visible|hidden|focused"},
    {Action::ExpectChoice, "expect NAME choice ITEM"},
    {Action::ExpectNothingSelected, "expect NAME selected none"},
    {Action::ExpectSelected, "expect NAME selected ITEM..."},
    {Action::ExpectItemCount, "expect NAME items NUMBER"},
    {Action::ExpectItem, "expect NAME item NUMBER TEXT"},
    {Action::ExpectValue, "expect NAME value NUMBER"},
};

bool isDuration(const QString &text)
{
    bool ok = false;
    const double seconds = text.toDouble(&ok);
    return ok && seconds >= 0.0 && seconds <= 1e6;
}

bool suits(const Word &word, const QString &element)
{
    if (element == QLatin1String("NUMBER"))
        return word.isNumber();
    if (element == QLatin1String("KEY"))
        return keyFromText(word.text).key != Qt::Key_unknown;
    if (element == QLatin1String("SECONDS"))
        return isDuration(word.text);
    if (element[0].isUpper())
        return true;
    return !word.isQuoted && element.split(QLatin1Char('|')).contains(word.text);
}

bool isCaptured(const QString &element)
{
    return element[0].isUpper() || element.contains(QLatin1Char('|'));
}

/// Whether the words, of which the first `used` are read already, suit a pattern's elements behind its verb.
bool match(const QStringList &elements, const std::vector<Word> &words, std::size_t used, std::vector<Word> &captured)
{
    captured.clear();
    for (int i = 1; i < elements.size(); ++i) {
        QString element = elements[i];
        const bool isOptional = element.startsWith(QLatin1Char('['));
        if (isOptional)
            element = element.mid(1, element.size() - 2);
        const bool isRepeated = element.endsWith(QLatin1String("..."));
        if (isRepeated)
            element.chop(3);
        if (used == words.size() && !isOptional)
            return false;
        do {
            if (used == words.size())
                break;
            if (!suits(words[used], element))
                return false;
            if (isCaptured(element))
                captured.push_back(words[used]);
            ++used;
        } while (isRepeated);
    }
    return used == words.size();
}

/// What to write instead of words that suit no pattern.
QString advice(const Word &verb)
{
    QStringList verbs;
    QStringList usages;
    for (const Form &form : Forms) {
        const QString pattern = QString::fromLatin1(form.pattern);
        const QString formVerb = pattern.section(QLatin1Char(' '), 0, 0);
        if (!verbs.contains(formVerb))
            verbs.append(formVerb);
        if (formVerb == verb.text)
            usages.append(pattern);
    }
    if (usages.isEmpty() || verb.isQuoted)
        return QStringLiteral("there is no step %1%2").arg(verb.written(), whatThereIs(verb.text, verbs));
    return QStringLiteral("expected: %1").arg(usages.join(QLatin1String("; ")));
}

/// Whether "in TITLE" before a step has an effect.
bool canNameDialog(Action action)
{
    switch (action) {
    case Action::Launch:
    case Action::Wait:
    case Action::Patience:
    case Action::ExpectMessage:
    case Action::ExpectDialogClosed:
    case Action::ExpectNamedDialogClosed:
    case Action::ExpectDialog:
        return false;
    default:
        return true;
    }
}

QString readStep(const std::vector<Word> &words, Step &step)
{
    std::size_t verb = 0;
    if (words[0].text == QLatin1String("in") && !words[0].isQuoted) {
        if (words.size() < 3)
            return QStringLiteral("expected: in TITLE STEP");
        step.dialog = words[1].text;
        verb = 2;
    }
    for (const Form &form : Forms) {
        const QStringList elements = QString::fromLatin1(form.pattern).split(QLatin1Char(' '));
        if (elements[0] != words[verb].text || words[verb].isQuoted)
            continue;
        if (match(elements, words, verb + 1, step.words)) {
            if (verb > 0 && !canNameDialog(form.action))
                return QStringLiteral("\"in\" has no effect before: %1").arg(QString::fromLatin1(form.pattern));
            step.action = form.action;
            return {};
        }
    }
    return advice(words[verb]);
}

} // namespace

QString readSteps(const QString &text, std::vector<Step> &steps)
{
    int number = 0;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        ++number;
        std::vector<Word> words;
        Step step;
        step.line = number;
        step.source = line.trimmed();
        QString failure = splitLine(line, words);
        if (failure.isEmpty() && words.empty())
            continue;
        if (failure.isEmpty())
            failure = readStep(words, step);
        if (!failure.isEmpty())
            return QStringLiteral("%1: %2: %3").arg(QString::number(number), step.source, failure);
        steps.push_back(step);
    }
    return {};
}
