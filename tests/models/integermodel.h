// SPDX-License-Identifier: MIT
#ifndef TESTS_MODELS_INTEGERMODEL_H
#define TESTS_MODELS_INTEGERMODEL_H

#include <zvsdkbase/zelutil.h>

#include <QString>

/// What users may type for an integer, with "MX" for an unknown maximum, and what they are told if it isn't valid: a
/// second time and without regular expressions, to be compared with the library.
namespace IntegerModel {

struct Reading
{
    bool isInteger = false;
    LgIndex value = 0;
};

Reading read(const QString &text);

/// `text` as ZelGUITextFieldSetLgIndex shows it.
QString write(LgIndex value, bool displayAsMX);

struct Limits
{
    LgIndex min;
    LgIndex max;
    bool allowsMX;
};

struct Verdict
{
    bool isValid;
    /// Empty where there is none.
    QString message;
};

Verdict validate(const QString &text, const QString &name, const Limits &limits);

} // namespace IntegerModel

#endif
