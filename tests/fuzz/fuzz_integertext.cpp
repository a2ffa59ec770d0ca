// SPDX-License-Identifier: MIT
// A text that a user types for a number: read, validated and stepped as an integer, compared with the model; and the
// same with floating-point numbers.
#include "fuzz/fuzzhost.h"
#include "fuzz/fuzzinput.h"
#include "models/integermodel.h"

#include <zelgui/zelgui.h>

#include <cmath>

using FuzzHost::require;

namespace {

void readInteger(int field)
{
    const auto told = IntegerModel::read(FuzzHost::textOf(field));
    LgIndex value = 77;
    const bool isInteger = ZelGUITextFieldGetLgIndex(field, &value) == 1;
    require(isInteger == told.isInteger && value == told.value, "an integer is read as the model tells");
}

void validateInteger(int field, const IntegerModel::Limits &limits)
{
    const QString name = QStringLiteral("%2");
    const auto told = IntegerModel::validate(FuzzHost::textOf(field), name, limits);
    FuzzHost::messages().clear();
    const bool isValid = ZelGUITextFieldValidateLgIndex(field, "%2", limits.min, limits.max, limits.allowsMX) == 1;
    require(isValid == told.isValid, "an integer is valid where the model tells so");
    require(FuzzHost::messages() == (isValid ? QStringList() : QStringList(told.message)),
            "the user is told what the model tells");
}

void stepInteger(int spin, LgIndex increment, const IntegerModel::Limits &limits)
{
    if (!ZelGUISpinTextFieldIncLgIndex(spin, increment, limits.min, limits.max) || limits.min > limits.max)
        return;
    const LgIndex value = FuzzHost::textOf(spin).toLongLong();
    require(limits.min <= value && value <= limits.max, "a step ends within its limits");
}

void useDouble(int field, double min, double max)
{
    double value = 77;
    const bool isNumber = ZelGUITextFieldGetDouble(field, &value) == 1;
    require(isNumber || value == 0, "what is no number is read as 0");
    const bool isValid = ZelGUITextFieldValidateDouble(field, nullptr, min, max) == 1;
    require(isValid == (isNumber && min <= value && value <= max), "a valid number is one within its limits");
    ZelGUISpinTextFieldIncDouble(field, "%.17g", max, min, max);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const FuzzDialog *const dialog = new FuzzDialog;
    static const int line = ZelGUITextFieldAdd(dialog->id(), 100, 100, 1000, 100, nullptr);
    static const int spin = ZelGUISpinTextFieldAdd(dialog->id(), 100, 300, 1000, 100, nullptr, nullptr, nullptr);
    FuzzInput input(data, size);
    const std::string text = input.text();
    const auto increment = input.number<LgIndex>();
    const IntegerModel::Limits limits = {input.number<LgIndex>(), input.number<LgIndex>(), input.byte() % 2 == 1};
    const auto min = input.number<double>();
    const auto max = input.number<double>();
    for (const int field : {line, spin}) {
        ZelGUITextFieldSetString(field, text.c_str());
        readInteger(field);
        validateInteger(field, limits);
        useDouble(field, min, max);
    }
    ZelGUITextFieldSetString(spin, text.c_str());
    stepInteger(spin, increment, limits);
    FuzzHost::endInput();
    return 0;
}
