// SPDX-License-Identifier: MIT
#include "core/text.h"
#include "widgets/fieldvalue.h"

#include <QLineEdit>

namespace orvane::zelgui {

namespace {

/// Says why a text is not valid. A field without a name is validated in silence.
class Complaint
{
public:
    explicit Complaint(const char *name) : m_name(name) {}

    /// Shows a message with the field's name for %1 and the numbers, as they are written, for the rest. All are
    /// replaced in one pass, since a name may hold a '%' of its own. Answers false, the result of the validation.
    template <typename... Numbers>
    bool operator()(const char *message, const Numbers &...numbers) const
    {
        if (m_name)
            ZelUtilDialogErrMsg(fromLatin1(message).arg(fromLatin1(m_name), numbers...).toUtf8().constData());
        return false;
    }

private:
    const char *m_name;
};

bool isValidDouble(const QLineEdit &field, const char *name, double min, double max)
{
    const Complaint complain(name);
    const auto value = readDouble(field);
    if (!value)
        return complain("Invalid value specified for %1.");
    if (min <= *value && *value <= max)
        return true;
    return complain("Invalid value for %1. Expected a value between %2 and %3.", QString::number(min),
                    QString::number(max));
}

bool isValidLgIndex(const QLineEdit &field, const char *name, LgIndex min, LgIndex max, bool allowMX)
{
    const Complaint complain(name);
    if (field.text().trimmed().isEmpty())
        return complain("Value not specified for %1.");
    const bool isMX = containsMX(field);
    if (isMX && !allowMX)
        return complain("MX syntax may not be used for %1.");
    const auto value = readLgIndex(field);
    if (!value)
        return complain("Invalid value specified for %1.");

    const QString minText = QString::number(min);
    const QString maxText = QString::number(max);
    if (!isMX) {
        return (min <= *value && *value <= max) ||
               complain("Invalid value for %1. Expected a value between %2 and %3.", minText, maxText);
    }
    const LgIndex sum = saturatingSum(*value, max);
    return min <= sum || complain("Invalid value for %1. Expected a value between %2 and %3 but MX%4 evaluates to %5",
                                  minText, maxText, QString::number(*value), QString::number(sum));
}

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

ZelBoolean ZelGUITextFieldValidateDouble(int fieldId, const char *name, double min, double max)
{
    return withLineEdit(fieldId, ZelBoolean{0},
                        [=](const QLineEdit &field) -> ZelBoolean { return isValidDouble(field, name, min, max); });
}

ZelBoolean ZelGUITextFieldValidateLgIndex(int fieldId, const char *name, LgIndex min, LgIndex max, ZelBoolean allowMX)
{
    return withLineEdit(fieldId, ZelBoolean{0}, [=](const QLineEdit &field) -> ZelBoolean {
        return isValidLgIndex(field, name, min, max, allowMX != 0);
    });
}
