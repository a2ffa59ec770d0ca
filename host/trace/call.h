// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_CALL_H
#define ZELGUI_TRACE_CALL_H

#include "interfacetypes.h"

#include <zelgui/zelgui.h>

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace orvane::trace {

/// What interface.ini says of a parameter. `PositionsCallback` is a callback that is told an array of positions.
enum class Kind {
    Plain,
    Identifier,
    Latin1,
    Utf8,
    Format,
    Position,
    PositionOrZero,
    Positions,
    PositionsCallback,
    Unread
};

using ObjectTypes = std::uint32_t;

constexpr ObjectTypes bit(ObjectType type)
{
    return ObjectTypes(1) << static_cast<unsigned>(type);
}

struct Parameter
{
    const char *name;
    Kind kind;
    /// What an identifier may name.
    ObjectTypes accepted = 0;
};

struct Function
{
    const char *name;
    ObjectType created;
    std::vector<Parameter> parameters;
};

/// An argument or a result, with its C type. The first alternative stands for the result of a void function.
using Value =
    std::variant<std::monostate, int, ZelBoolean, LgIndex, double, char *, const char *, const unsigned char *,
                 const int *, int *, int **, double *, LgIndex *, ZelBoolean *, IndexSet, IndexSet *, StringList_s *,
                 ZelGUIVoidCallback, ZelGUIIntCallback, ZelGUITextCallback>;

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
