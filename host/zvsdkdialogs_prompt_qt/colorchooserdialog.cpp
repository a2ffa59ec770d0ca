// SPDX-License-Identifier: MIT
#include <zvsdkdialogs_prompt_qt/colorchooserdialog.h>

#include <zvsdkbase/zelutil.h>

#include <array>
#include <cstddef>
#include <cstdio>

namespace orvane {
namespace dialogs {
namespace prompt {

namespace {

constexpr std::array<const char *, 16> Names = {
    "Black", "Silver", "Gray",  "White",  "Maroon", "Red",  "Purple", "Fuchsia",
    "Green", "Lime",   "Olive", "Yellow", "Navy",   "Blue", "Teal",   "Aqua",
};

} // namespace

std::string ColorChooserDialog::colorToString(int color, bool longName)
{
    if (color < 0)
        return "None";
    if (static_cast<std::size_t>(color) >= Names.size())
        return "Unknown";
    if (longName)
        return Names[static_cast<std::size_t>(color)];
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;
    ZelUtilColorMapGetBasicColorRGB(color, &red, &green, &blue);
    std::array<char, sizeof("#rrggbb")> number{};
    std::snprintf(number.data(), number.size(), "#%02x%02x%02x", red, green, blue);
    return number.data();
}

} // namespace prompt
} // namespace dialogs
} // namespace orvane
