// SPDX-License-Identifier: MIT
#ifndef ZVSDKBASE_BOUNDARY_H
#define ZVSDKBASE_BOUNDARY_H

#include <zvsdkbase/zelutil.h>

namespace orvane {
namespace host {

/// The wall between C++ and the C callers: what `body` returns, or `onFailure` when it throws. Nothing in this library
/// throws but allocations.
template <typename Result, typename Body>
Result guarded(Result onFailure, ZelBoolean showErrors, Body body) noexcept
{
    try {
        return body();
    } catch (...) {
    }
    if (showErrors)
        ZelUtilDialogErrMsg("There is not enough memory.");
    return onFailure;
}

} // namespace host
} // namespace orvane

#endif
