// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_WORDS_H
#define ZELGUI_TRACE_WORDS_H

#include "call.h"

#include <string>

/// Values as a person reads them, in UTF-8 and in one line.
namespace orvane::trace {

/// A text in quotes, cut where it gets long.
std::string quoted(const char *text, bool isLatin1);

/// What a call passes, "(0, 100, null)", outputs by their parameters' names.
std::string argumentsText(const Call &call);
/// What a call gives back, such as " = 1, value 2.5"; empty where there is nothing.
std::string resultText(const Call &call);

/// Whether resultText() will have something to say.
bool willHaveResult(const Call &call);

/// What a callback is told, and what it answers.
std::string argumentsText(const Run &run);
std::string answerText(const Run &run);

} // namespace orvane::trace

#endif
