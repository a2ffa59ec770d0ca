// SPDX-License-Identifier: MIT
#include <zvsdkbase/zelutil.h>

#include <array>
#include <cstddef>

namespace {

/// Red, green and blue as 0xRRGGBB.
constexpr std::array<unsigned, 16> BasicColors = {
    0x000000, 0xC0C0C0, 0x808080, 0xFFFFFF, // black, silver, gray, white
    0x800000, 0xFF0000, 0x800080, 0xFF00FF, // maroon, red, purple, fuchsia
    0x008000, 0x00FF00, 0x808000, 0xFFFF00, // green, lime, olive, yellow
    0x000080, 0x0000FF, 0x008080, 0x00FFFF, // navy, blue, teal, aqua
};

} // namespace

void ZelUtilColorMapGetBasicColorRGB(int color, unsigned char *red, unsigned char *green, unsigned char *blue)
{
    const bool known = color >= 0 && static_cast<std::size_t>(color) < BasicColors.size();
    const unsigned rgb = known ? BasicColors[static_cast<std::size_t>(color)] : 0;
    if (red)
        *red = static_cast<unsigned char>(rgb >> 16);
    if (green)
        *green = static_cast<unsigned char>(rgb >> 8 & 0xFF);
    if (blue)
        *blue = static_cast<unsigned char>(rgb & 0xFF);
}
