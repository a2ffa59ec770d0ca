// SPDX-License-Identifier: MIT
#include "widgets/fieldvalue.h"

#include "core/text.h"
#include "widgets/spintextfield.h"
#include "widgets/textfield.h"

#include <QLineEdit>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace orvane::zelgui {

namespace {

QString mx()
{
    return QStringLiteral("MX");
}

bool isAsciiDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

std::optional<LgIndex> toLgIndex(const QString &digits)
{
    bool isNumber = false;
    const LgIndex number = digits.toInt(&isNumber);
    return isNumber ? std::optional<LgIndex>(number) : std::nullopt;
}

/// The number or MX expression somewhere in a text.
std::optional<LgIndex> findLgIndex(const QString &typed)
{
    // Digits and blanks of every script match, though only ASCII digits convert: a text with others is no number,
    // rather than the number made of its ASCII digits alone.
    static const auto kOptions = QRegularExpression::UseUnicodePropertiesOption;
    // Never deleted: add-ons may still call while the process ends.
    static const auto &kPlain = *new QRegularExpression(QStringLiteral(R"((\d+))"), kOptions);
    static const auto &kOffset = *new QRegularExpression(QStringLiteral(R"(MX\s*-\s*(\d+))"), kOptions);

    const QString text = typed.toUpper().trimmed();
    if (text == mx())
        return 0;
    const bool isMX = text.contains(mx());
    const QRegularExpressionMatch match = (isMX ? kOffset : kPlain).match(text);
    const std::optional<LgIndex> number = toLgIndex(match.captured(1));
    return number && isMX ? -*number : number;
}

} // namespace

QLineEdit *lineEditOf(int id)
{
    const auto *const repository = ZelGUIWidgetRepository::instance();
    if (auto *const field = repository->widgetAs<QLineEdit>(id))
        return field;
    const auto *const spin = repository->widgetAs<ZelGUISpinTextField>(id);
    return spin ? spin->textField() : nullptr;
}

std::optional<double> readDouble(const QLineEdit &field)
{
    bool isNumber = false;
    const double value = field.text().toDouble(&isNumber);
    return isNumber ? std::optional<double>(value) : std::nullopt;
}

bool containsMX(const QLineEdit &field)
{
    return field.text().contains(mx(), Qt::CaseInsensitive);
}

std::optional<LgIndex> readLgIndex(const QLineEdit &field)
{
    const QString text = field.text();
    // What a field mostly holds; the search would find the same.
    const bool isPlain = !text.isEmpty() && std::all_of(text.begin(), text.end(), isAsciiDigit);
    return isPlain ? toLgIndex(text) : findLgIndex(text);
}

bool writeText(QLineEdit &field, const QString &text)
{
    const CallbackSuppressor suppressor;
    field.setText(text);
    return true;
}

bool writeDouble(QLineEdit &field, double value, const char *format)
{
    const QString text = formatDouble(format, value);
    // What the field would cut could read as another number.
    return !text.isNull() && text.size() <= field.maxLength() && writeText(field, text);
}

bool writeLgIndex(QLineEdit &field, LgIndex value, bool displayAsMX)
{
    const QString number = QString::number(value);
    if (!displayAsMX || value > 0)
        return writeText(field, number);
    const QString maximum = QStringLiteral("Mx");
    return writeText(field, value == 0 ? maximum : maximum + number);
}

LgIndex saturatingSum(LgIndex a, LgIndex b)
{
    using Limits = std::numeric_limits<LgIndex>;
    if (b > 0 && a > Limits::max() - b)
        return Limits::max();
    if (b < 0 && a < Limits::min() - b)
        return Limits::min();
    return a + b;
}

} // namespace orvane::zelgui
