// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_INTERCEPT_H
#define ZELGUI_TRACE_INTERCEPT_H

#include "closure.h"
#include "layer.h"

#include <type_traits>
#include <utility>

/// What the generated wrappers consist of.
namespace orvane::trace {

/// The library's function that a wrapper stands in front of.
template <typename F>
F *realFunction(F *, const char *name)
{
    return reinterpret_cast<F *>(realAddress(name));
}

/// What the library gets in place of an argument: a closure for a callback, and everything else as it is.
template <typename T>
T substitute(const Call &call, std::size_t index, T argument)
{
    if constexpr (std::is_pointer_v<T> && std::is_function_v<std::remove_pointer_t<T>>)
        return closureFor(argument, call.function.parameters[index].content == Kind::Positions);
    else
        return argument;
}

template <typename R, typename... P, std::size_t... Indices>
R callThrough(const Call &call, R (*real)(P...), std::index_sequence<Indices...>, std::common_type_t<P>... arguments)
{
    return real(substitute(call, Indices, arguments)...);
}

/// Calls the real function and tells the listeners. The layer can't go on without memory, and no caller of a C function
/// expects an exception.
template <typename R, typename... P>
R intercept(const Function &function, R (*real)(P...), const void *caller, std::common_type_t<P>... arguments) noexcept
{
    Call call{function, caller, {Value(arguments)...}, !std::is_void_v<R>};
    const std::index_sequence_for<P...> indices;
    Layer &layer = Layer::instance();
    layer.begin(call);
    if constexpr (std::is_void_v<R>) {
        callThrough(call, real, indices, arguments...);
        layer.end(call);
    } else {
        const R result = callThrough(call, real, indices, arguments...);
        call.result = result;
        layer.end(call);
        return result;
    }
}

} // namespace orvane::trace

using orvane::trace::intercept;
using orvane::trace::realFunction;

#endif
