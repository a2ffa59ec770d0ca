// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_CALL_H
#define ZELGUI_TRACE_CALL_H

#include <interface/functions.h>

#include <string>
#include <vector>

namespace orvane::trace {

using namespace interface;

/// One call of the interface, from its beginning to its end.
struct Call
{
    const Function &function;
    /// An address in the code that has called.
    const void *caller;
    std::vector<Value> arguments;
    bool hasResult;
    Value result = {};
    std::string addOn = {};

    /// The argument at `index` if it is of this type; 0 or null otherwise.
    template <typename T>
    T argument(std::size_t index) const
    {
        const T *const value = index < arguments.size() ? std::get_if<T>(&arguments[index]) : nullptr;
        return value ? *value : T();
    }
};

/// One run of an add-on's function: a callback, or what the host launches.
struct Run
{
    /// What it is called in reports.
    std::string name;
    /// Whether an int points to several positions, with a 0 behind the last.
    bool hasPositions;
    std::vector<Value> arguments;
    bool hasAnswer;
    std::string addOn = {};
    /// Counted from 1; no two runs have the same.
    int number = 0;
    Value answer = {};
    bool hasThrown = false;
};

/// Is told of everything that goes through the interface, in its order and nested as it happens.
class Listener
{
public:
    Listener() = default;
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;
    virtual ~Listener() = default;

    virtual void called(const Call &) {}
    virtual void returned(const Call &) {}
    virtual void entered(const Run &) {}
    virtual void left(const Run &) {}
};

} // namespace orvane::trace

#endif
