// SPDX-License-Identifier: MIT
#include "words.h"

#include <QRegularExpression>

namespace {

/// Reads the rest of a text in quotes, behind the first one; false if the line ends before it does.
bool readQuoted(const QString &line, int &i, QString &text)
{
    for (; i < line.size(); ++i) {
        if (line[i] == QLatin1Char('"')) {
            ++i;
            return true;
        }
        if (line[i] != QLatin1Char('\\')) {
            text += line[i];
            continue;
        }
        if (++i == line.size())
            return false;
        const QChar escaped = line[i];
        if (escaped == QLatin1Char('n'))
            text += QLatin1Char('\n');
        else if (escaped == QLatin1Char('t'))
            text += QLatin1Char('\t');
        else
            text += escaped;
    }
    return false;
}

bool startsComment(const QString &line, int i, bool isFirst)
{
    return line[i] == QLatin1Char('#') && (isFirst || i + 1 == line.size() || line[i + 1].isSpace());
}

} // namespace

bool Word::isNumber() const
{
    bool ok = false;
    text.toInt(&ok);
    return ok && !isQuoted;
}

bool Word::isIdentifier() const
{
    static const QRegularExpression pattern(QStringLiteral("^#[0-9]+$"));
    return !isQuoted && pattern.match(text).hasMatch();
}

QString Word::written() const
{
    return isQuoted ? quoted(text) : text;
}

QString splitLine(const QString &line, std::vector<Word> &words)
{
    int i = 0;
    while (i < line.size()) {
        if (line[i].isSpace()) {
            ++i;
            continue;
        }
        if (startsComment(line, i, words.empty()))
            break;
        Word word;
        if (line[i] == QLatin1Char('"')) {
            word.isQuoted = true;
            if (!readQuoted(line, ++i, word.text))
                return QStringLiteral("a quotation mark is missing at the end");
            if (i < line.size() && !line[i].isSpace())
                return QStringLiteral("a blank is missing after %1").arg(quoted(word.text));
        } else {
            while (i < line.size() && !line[i].isSpace())
                word.text += line[i++];
        }
        words.push_back(word);
    }
    return {};
}

QString quoted(const QString &text)
{
    QString result = QStringLiteral("\"");
    for (const QChar c : text) {
        if (c == QLatin1Char('\n')) {
            result += QLatin1String("\\n");
        } else if (c == QLatin1Char('\t')) {
            result += QLatin1String("\\t");
        } else {
            if (c == QLatin1Char('"') || c == QLatin1Char('\\'))
                result += QLatin1Char('\\');
            result += c;
        }
    }
    return result + QLatin1Char('"');
}
