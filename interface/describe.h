// SPDX-License-Identifier: MIT
#ifndef ZELGUI_INTERFACE_DESCRIBE_H
#define ZELGUI_INTERFACE_DESCRIBE_H

#include "functions.h"

#include <type_traits>
#include <utility>

/// What the rows of the table are made with. They name functions by their types only, so whoever has the table need not
/// link the library.
namespace orvane::interface {

template <typename R, typename... P, std::size_t... i>
Value callWith(void (*address)(), const std::vector<Value> &arguments, std::index_sequence<i...>)
{
    const auto function = reinterpret_cast<R (*)(P...)>(address);
    static_cast<void>(arguments);
    if constexpr (std::is_void_v<R>) {
        function(std::get<P>(arguments.at(i))...);
        return {};
    } else {
        return function(std::get<P>(arguments.at(i))...);
    }
}

template <typename R>
Value answer(int value)
{
    if constexpr (std::is_void_v<R>)
        return {};
    else if constexpr (std::is_pointer_v<R>)
        return R(nullptr);
    else
        return static_cast<R>(value);
}

template <typename F>
struct Row;

template <typename R, typename... P>
struct Row<R(P...)>
{
    static Function describe(const char *name, ObjectType created, Kind kind, int neutral, int withoutGui,
                             bool mayReport, bool isInert, std::vector<Parameter> parameters)
    {
        [[maybe_unused]] std::size_t i = 0;
        ((parameters.at(i++).null = P()), ...);
        const auto call = [](void (*address)(), const std::vector<Value> &arguments) {
            return callWith<R, P...>(address, arguments, std::index_sequence_for<P...>());
        };
        return {
            name, created, kind, answer<R>(neutral), answer<R>(withoutGui), mayReport, isInert, std::move(parameters),
            call};
    }
};

} // namespace orvane::interface

#endif
