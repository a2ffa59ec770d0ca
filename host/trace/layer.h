// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_LAYER_H
#define ZELGUI_TRACE_LAYER_H

#include "call.h"
#include "origin.h"

#include <zvsdkbase/hostcontrol.h>

#include <memory>
#include <vector>

namespace orvane::trace {

class Misuse;
struct Closure;

/// The library's exported function of a name.
void *realAddress(const char *name);

/// The middle of it all: knows what is going on, nested as it is, says which add-on does it, and tells the listeners.
class Layer : public host::Observer
{
public:
    /// The process's layer, never destroyed. It is made when this library is loaded.
    static Layer &instance();

    void begin(Call &call);
    void end(const Call &call);
    void enter(Run &run, const Closure &closure);
    void leave(const Run &run);

    ZelUtilAddOnCallback registering(const char *name, ZelUtilAddOnCallback launch) override;
    void handedOut(const void *item, const char *function, const void *caller) override;
    void released(const void *item, bool wasHeld, const char *function, const void *caller) override;
    int finish() override;

private:
    Layer();

    Origin m_origin;
    std::vector<std::unique_ptr<Listener>> m_listeners;
    /// One of the listeners; null unless misuse is to be named.
    Misuse *m_misuse = nullptr;
    /// What is going on, the innermost last: true for a call, when the library is at work.
    std::vector<bool> m_libraryAtWork;
    int m_runs = 0;
};

} // namespace orvane::trace

#endif
