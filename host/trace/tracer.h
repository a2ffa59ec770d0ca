// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_TRACER_H
#define ZELGUI_TRACE_TRACER_H

#include "call.h"

#include <string>

namespace orvane::trace {

/// Prints what goes on: a line for each call and each callback, with a second one for the result where something has
/// happened in between.
class Tracer : public Listener
{
public:
    void called(const Call &call) override;
    void returned(const Call &call) override;
    void entered(const Run &run) override;
    void left(const Run &run) override;

private:
    void begin(const std::string &addOn, const std::string &text, bool willHaveResult);
    void end(const std::string &addOn, const std::string &name, const std::string &result);

    int m_depth = 0;
};

} // namespace orvane::trace

#endif
