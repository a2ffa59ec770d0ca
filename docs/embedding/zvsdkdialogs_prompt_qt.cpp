// SPDX-License-Identifier: MIT
#include <zvsdkdialogs_prompt_qt/colorchooserdialog.h>

std::string orvane::dialogs::prompt::ColorChooserDialog::colorToString(int color, bool)
{
    return color < 0 ? "None" : "Colour " + std::to_string(color);
}
