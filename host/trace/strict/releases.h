// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_STRICT_RELEASES_H
#define ZELGUI_TRACE_STRICT_RELEASES_H

#include "strict/faults.h"

#include "call.h"

#include <map>
#include <set>
#include <string>
#include <tuple>

namespace orvane::trace {

/// What the host and the library hand out is released, once.
class Releases
{
public:
    explicit Releases(Faults &faults) : m_faults(faults) {}

    void returned(const Call &call);
    void handedOut(const void *item, const char *function, const std::string &addOn);
    void released(const void *item, bool wasHeld, const char *function, const std::string &addOn);
    void finish();

private:
    struct Source
    {
        std::string addOn;
        std::string function;
        bool operator<(const Source &other) const
        {
            return std::tie(addOn, function) < std::tie(other.addOn, other.function);
        }
    };

    Faults &m_faults;
    std::map<const void *, Source> m_held;
    /// Where something was that is released, and nothing is now.
    std::set<const void *> m_released;
};

} // namespace orvane::trace

#endif
