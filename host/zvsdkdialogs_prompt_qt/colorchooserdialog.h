// SPDX-License-Identifier: MIT
#ifndef ZVSDKDIALOGS_PROMPT_QT_COLORCHOOSERDIALOG_H
#define ZVSDKDIALOGS_PROMPT_QT_COLORCHOOSERDIALOG_H

#include <string>

namespace orvane {
namespace dialogs {
namespace prompt {

/// The host's choice of one of its basic colours.
class ColorChooserDialog
{
public:
    /// How the host writes a basic colour, in Latin-1: its name ("Navy") or, in short, its number of the form
    /// "#000080". A negative colour is "None", one beyond the last "Unknown".
    static std::string colorToString(int color, bool longName);
};

} // namespace prompt
} // namespace dialogs
} // namespace orvane

#endif
