// SPDX-License-Identifier: MIT
#ifndef ZELGUI_INTERFACE_FUNCTIONS_H
#define ZELGUI_INTERFACE_FUNCTIONS_H

#include "objecttypes.h"

#include <zelgui/zelgui.h>

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

/// Every function of the public header, as data: what it takes, what it answers, and how to call it with arguments that
/// are known at run time only.
namespace orvane::interface {

/// What a value is, as interface.ini says it. `Told` is a callback, `One` a Boolean that is true if it is exactly 1.
enum class Kind {
    None,
    Id,
    Units,
    Number,
    Boolean,
    One,
    Latin1,
    Utf8,
    Format,
    Position,
    PositionOr0,
    Positions,
    Count,
    Columns,
    Rows,
    Rgb,
    Set,
    Told,
    Output,
    Unread
};

using ObjectTypes = std::uint32_t;

constexpr ObjectTypes bit(ObjectType type)
{
    return ObjectTypes(1) << static_cast<unsigned>(type);
}

/// An argument or a result, with its C type. The first alternative stands for the result of a void function.
using Value =
    std::variant<std::monostate, int, ZelBoolean, LgIndex, double, char *, const char *, const unsigned char *,
                 const int *, int *, int **, double *, LgIndex *, ZelBoolean *, IndexSet, IndexSet *, StringList_s *,
                 ZelGUIVoidCallback, ZelGUIIntCallback, ZelGUITextCallback>;

struct Parameter
{
    const char *name;
    Kind kind;
    /// What an identifier may name, and what works besides, though it is a mistake.
    ObjectTypes accepted;
    ObjectTypes tolerated;
    /// What a callback is told, or an output receives.
    Kind content;
    /// Whether null says that something isn't there at all; else it counts as empty.
    bool isOptional;
    /// 0 or null, of the C type.
    Value null = {};
};

struct Function
{
    const char *name;
    ObjectType created;
    Kind answer;
    /// What is answered where an identifier is wrong, and without a GUI.
    Value neutral;
    Value withoutGui;
    /// Whether a callback may be called before it returns.
    bool mayReport;
    bool isInert;
    std::vector<Parameter> parameters;
    /// Calls `address` with one argument of the right type for each parameter.
    Value (*call)(void (*address)(), const std::vector<Value> &arguments);
};

/// In the order of the header. The table lives as long as the process.
const std::vector<Function> &functions();

/// Releases what a function has handed out: a text it has answered, an array or a set behind an output.
void release(const Value &handedOut);

} // namespace orvane::interface

#endif
