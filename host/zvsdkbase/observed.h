// SPDX-License-Identifier: MIT
#ifndef ZVSDKBASE_OBSERVED_H
#define ZVSDKBASE_OBSERVED_H

#include <zvsdkbase/hostcontrol.h>

namespace orvane {
namespace host {

/// Tells the observer what is handed out, unless it is null; returns it.
template <typename T>
T *observeHandedOut(T *item, const char *function, const void *caller)
{
    if (item && observer())
        observer()->handedOut(item, function, caller);
    return item;
}

inline void observeReleased(const void *item, bool wasHeld, const char *function, const void *caller)
{
    if (item && observer())
        observer()->released(item, wasHeld, function, caller);
}

} // namespace host
} // namespace orvane

#endif
