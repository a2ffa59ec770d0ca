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

// Where the conversion of a format stands, as a letter; -1 unless it is one of the formats in ASCII that C understands
// as the toolkit does: not "%a", for example, nor zeros before "nan".
int plainConversion(const QString &format)
{
    static const QRegularExpression plain(QStringLiteral(
        R"(\A(?:[ -$&-~]|%%)*+%[-+ 0]*+(?:[0-9]{1,3}|1000)?(?:\.(?:[0-9]{1,3}|1000)?)?([eEfFgG])(?:[ -$&-~]|%%)*+\z)"));
    return int(plain.match(format).capturedStart(1));
}

// None of these may do more than nothing.
bool isDangerous(const QString &format)
{
    static const QRegularExpression dangerous(QStringLiteral(R"(\A[^%]*%[-+ #0-9.]*(?:[hlLqjzt]*[diouxXcspn]|\*))"));
    return dangerous.match(format).hasMatch();
}

template <typename Number>
QString formatted(const std::string &format, Number value)
{
    // Room for 309 digits before the point, a precision of 1000, and what surrounds them.
    static std::array<char, 100000> text;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    std::snprintf(text.data(), text.size(), format.c_str(), value);
#pragma GCC diagnostic pop
    return QString::fromLatin1(text.data());
}

// Of two texts that are equally near, C takes the even one and the toolkit the one further from zero. A number that is
// further by less than any double has only that one nearest to it.
bool isWrittenAs(const QString &text, const std::string &format, int conversion, double value)
{
    if (text == formatted(format, value))
        return true;
    const long double exact = value;
    std::string longer = format;
    longer.insert(std::size_t(conversion), 1, 'L');
    return value != 0 && text == formatted(longer, std::nextafter(exact, exact * 2));
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
    const int conversion = plainConversion(asText);
    if (std::isfinite(value) && conversion >= 0)
        require(isWrittenAs(shown, format, conversion, value), "a number is shown in its format");
    if (isDangerous(asText))
        require(shown == QLatin1String("before") && FuzzHost::textOf(field) == QLatin1String("before"),
                "what is no format for a number changes nothing");
    FuzzHost::endInput();
    return 0;
}
