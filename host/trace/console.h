// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_CONSOLE_H
#define ZELGUI_TRACE_CONSOLE_H

#include <string>

/// The standard error, shared by what writes there. Everything appears at once, so that it is there after a crash.
namespace orvane::trace::console {

/// Begins a line, which stays open until it is continued or anything else is written.
void begin(const std::string &text);
/// Ends the open line with a text.
void finish(const std::string &text);
/// Whether a begun line still is the last thing written.
bool isOpen();
/// A whole line.
void write(const std::string &text);

} // namespace orvane::trace::console

#endif
