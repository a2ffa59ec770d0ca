// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_MISUSE_H
#define ZELGUI_TRACE_MISUSE_H

#include "call.h"
#include "strict/faults.h"
#include "strict/objects.h"
#include "strict/releases.h"

#include <memory>
#include <string>
#include <vector>

namespace orvane::trace {

/// Holds every call against the rules of the interface: those in strict/.
class Misuse : public Listener
{
public:
    Misuse();
    ~Misuse() override;

    void called(const Call &call) override;
    void returned(const Call &call) override;
    void entered(const Run &run) override;
    void left(const Run &run) override;

    void handedOut(const void *item, const char *function, const std::string &addOn);
    void released(const void *item, bool wasHeld, const char *function, const std::string &addOn);
    /// How many faults there were in all.
    int finish();

private:
    Faults m_faults;
    Objects m_objects;
    Releases m_releases;
    std::vector<std::unique_ptr<Listener>> m_rules;
};

} // namespace orvane::trace

#endif
