// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_FIELDVALUE_H
#define ZELGUI_WIDGETS_FIELDVALUE_H

#include "core/entrypoint.h"

#include <zelgui/zelgui.h>

#include <optional>

class QLineEdit;

/// Numbers in text fields and in the text part of spin text fields.
///
/// An integer may be written with "MX", the maximum of a range that only the add-on knows. Such an expression is held
/// as its offset from the maximum: 0 for "MX", -n for "MX-n".
namespace orvane::zelgui {

/// The line edit that an identifier stands for: a text field itself, or the text part of a spin text field.
QLineEdit *lineEditOf(int id);

/// The answer of `action` for that line edit, or `neutral` where there is none.
template <typename Result, typename Action>
Result withLineEdit(int id, Result neutral, Action &&action) noexcept
{
    return withGui(neutral, [&]() -> Result {
        QLineEdit *const field = lineEditOf(id);
        return field ? std::forward<Action>(action)(*field) : neutral;
    });
}

std::optional<double> readDouble(const QLineEdit &field);
/// The first run of digits anywhere in the text, which may have 32 bits, or an MX expression.
std::optional<LgIndex> readLgIndex(const QLineEdit &field);
bool containsMX(const QLineEdit &field);

/// All of these set the text without a report; false where a number format makes no sense, or yields more than the
/// field can hold.
bool writeText(QLineEdit &field, const QString &text);
bool writeDouble(QLineEdit &field, double value, const char *format);
bool writeLgIndex(QLineEdit &field, LgIndex value, bool displayAsMX);

/// Writes a value, 0 for none, through an add-on's pointer unless that is null; true if there is a value.
template <typename Number>
bool handOut(const std::optional<Number> &value, Number *out)
{
    if (out)
        *out = value.value_or(0);
    return value.has_value();
}

/// The sum, or the limit that it would go beyond.
LgIndex saturatingSum(LgIndex a, LgIndex b);

} // namespace orvane::zelgui

#endif
