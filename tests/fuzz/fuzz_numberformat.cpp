// SPDX-License-Identifier: MIT
// The format in which an add-on wants a number shown.
#include "fuzz/fuzzhost.h"
#include "fuzz/fuzzinput.h"

#include <zelgui/zelgui.h>

#include <QLabel>
#include <QRegularExpression>

#include <array>
#include <cmath>
#include <cstdio>

using FuzzHost::require;

namespace {

// Of the formats that do something, those in ASCII which C understands as the toolkit does: not "%a", for example, nor
// zeros before "nan".
bool isPlainFormat(const QString &format)
{
    static const QRegularExpression plain(QStringLiteral(
        R"(\A(?:[ -$&-~]|%%)*+%[-+ 0]*+(?:[0-9]{1,3}|1000)?(?:\.(?:[0-9]{1,3}|1000)?)?[eEfFgG](?:[ -$&-~]|%%)*+\z)"));
    return plain.match(format).hasMatch();
}

// None of these may do more than nothing.
bool isDangerous(const QString &format)
{
    static const QRegularExpression dangerous(QStringLiteral(R"(\A[^%]*%[-+ #0-9.]*(?:[hlLqjzt]*[diouxXcspn]|\*))"));
    return dangerous.match(format).hasMatch();
}

QString formatted(const std::string &format, double value)
{
    // Room for 309 digits before the point, a precision of 1000, and what surrounds them.
    static std::array<char, 100000> text;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(text.data(), text.size(), format.c_str(), value);
#pragma GCC diagnostic pop
    return QString::fromLatin1(text.data());
}

// Of two texts that are as near, C takes the even one and the toolkit the one further from zero.
bool isWrittenAs(const QString &text, const std::string &format, double value)
{
    const double further = std::nextafter(value, std::copysign(HUGE_VAL, value));
    return text == formatted(format, value) || text == formatted(format, further);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const FuzzDialog *const dialog = new FuzzDialog;
    static const int label = ZelGUILabelAdd(dialog->id(), 100, 100, "");
    static const int field = ZelGUITextFieldAdd(dialog->id(), 100, 300, 1000, 100, nullptr);
    static const int spin = ZelGUISpinTextFieldAdd(dialog->id(), 100, 500, 1000, 100, nullptr, nullptr, nullptr);
    FuzzInput input(data, size);
    const std::string format = input.text();
    const auto value = input.number<double>();
    ZelGUILabelSetText(label, "before");
    ZelGUITextFieldSetString(field, "before");
    ZelGUITextFieldSetString(spin, "1");

    ZelGUILabelSetDouble(label, value, format.c_str());
    ZelGUITextFieldSetDouble(field, value, format.c_str());
    ZelGUISpinTextFieldIncDouble(spin, format.c_str(), value, -1e300, value);

    const QString shown = FuzzHost::object<QLabel>(label)->text();
    const QString asText = FuzzHost::fromUtf8(format.c_str());
    if (std::isfinite(value) && isPlainFormat(asText))
        require(isWrittenAs(shown, format, value), "a number is shown in its format");
    if (isDangerous(asText))
        require(shown == QLatin1String("before") && FuzzHost::textOf(field) == QLatin1String("before"),
                "what is no format for a number changes nothing");
    FuzzHost::endInput();
    return 0;
}
