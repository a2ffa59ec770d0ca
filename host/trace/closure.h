// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_CLOSURE_H
#define ZELGUI_TRACE_CLOSURE_H

#include "call.h"

#include <ffi.h>

#include <exception>
#include <string>
#include <utility>
#include <vector>

/// Callbacks have no user-data argument. So what the library is given in the place of an add-on's function is a piece
/// of code made for this function alone, a closure, which tells the listeners and then calls it.
namespace orvane::trace {

/// What a closure knows. Closures live as long as the process: nobody says when a callback is no longer needed.
struct Closure
{
    void (*target)();
    std::string name;
    bool hasPositions;
    /// The entry that it launches; empty for callbacks.
    std::string entry;
};

/// One run of the add-on's function, which ends with the scope, be it by an exception.
class RunScope
{
public:
    RunScope(const Closure &closure, std::vector<Value> arguments, bool hasAnswer);
    ~RunScope();
    RunScope(const RunScope &) = delete;
    RunScope &operator=(const RunScope &) = delete;

    void setAnswer(Value answer) { m_run.answer = answer; }

private:
    Run m_run;
    int m_exceptions = std::uncaught_exceptions();
};

/// A handler's type, as libffi wants it: `result` and `arguments` point to the values, `data` is the Closure.
using Handler = void (*)(ffi_cif *, void *result, void **arguments, void *data);

using Types = std::vector<ffi_type *>;

/// The code for `target`: the same one whenever all is the same. `target` itself where the system makes no closures.
void (*closureCode(Closure description, Handler handler, ffi_type *result, const Types &parameters))();

template <typename T>
ffi_type *ffiType()
{
    if constexpr (std::is_void_v<T>)
        return &ffi_type_void;
    else if constexpr (std::is_pointer_v<T>)
        return &ffi_type_pointer;
    else {
        static_assert(std::is_same_v<T, int>, "a callback has a value of a type that is new here");
        return &ffi_type_sint;
    }
}

/// Exceptions of the add-on's pass through, to the library's wall.
template <typename R, typename... P, std::size_t... Indices>
void runTarget(const Closure &closure, void *result, void **arguments, std::index_sequence<Indices...>)
{
    static_cast<void>(arguments);
    const auto target = reinterpret_cast<R (*)(P...)>(closure.target);
    RunScope scope(closure, {Value(*static_cast<P *>(arguments[Indices]))...}, !std::is_void_v<R>);
    if constexpr (std::is_void_v<R>) {
        target(*static_cast<P *>(arguments[Indices])...);
    } else {
        const R answer = target(*static_cast<P *>(arguments[Indices])...);
        scope.setAnswer(answer);
        // libffi wants small integers widened to a register.
        *static_cast<ffi_sarg *>(result) = answer;
    }
}

template <typename R, typename... P>
void handle(ffi_cif *, void *result, void **arguments, void *data)
{
    runTarget<R, P...>(*static_cast<const Closure *>(data), result, arguments, std::index_sequence_for<P...>());
}

/// What to give to the library, or to the host, in place of `target`.
template <typename R, typename... P>
auto closureFor(R (*target)(P...), bool hasPositions, const std::string &entry = {}) -> R (*)(P...)
{
    if (!target)
        return nullptr;
    const Closure description{reinterpret_cast<void (*)()>(target), {}, hasPositions, entry};
    return reinterpret_cast<R (*)(P...)>(
        closureCode(description, &handle<R, P...>, ffiType<R>(), Types{ffiType<P>()...}));
}

/// What reports call an add-on's function: "null", or "callback1" and so on in the order in which they came up.
std::string callbackName(void (*target)());

} // namespace orvane::trace

#endif
