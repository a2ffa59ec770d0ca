// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_INTERCEPT_H
#define TESTS_TORTURE_INTERCEPT_H

#include "host.h"
#include "support/scarcehost.h"

#include <interface/functions.h>

/// The library's functions, as add-ons and rounds find them: behind each call, the host may do something.
template <typename F>
F *realFunction(F *function, const char *name)
{
    return ScarceHost::originalOf(function, name);
}

template <typename R, typename... P>
R intercept(const orvane::interface::Function &, R (*real)(P...), const void *, std::common_type_t<P>... arguments)
{
    const torture::CallEnd callEnd;
    return real(arguments...);
}

#endif
