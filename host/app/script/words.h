// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_WORDS_H
#define ZELHOST_SCRIPT_WORDS_H

#include <QString>

#include <vector>

/// One word of a script's line. Words in quotes are text and nothing else: neither keyword nor position nor identifier.
struct Word
{
    QString text;
    bool isQuoted = false;

    /// A position, counted from 1, or another whole number; without quotes.
    bool isNumber() const;
    /// `#7`, without quotes: the identifier that the library has given.
    bool isIdentifier() const;
    /// For messages: as it stands in the script.
    QString written() const;
};

/// Takes a line apart; a comment starts with `#`, unless a digit follows and other words precede it. Returns what is
/// wrong with the line, or an empty string.
QString splitLine(const QString &line, std::vector<Word> &words);

/// In quotes, so that splitLine() gives it back.
QString quoted(const QString &text);

#endif
