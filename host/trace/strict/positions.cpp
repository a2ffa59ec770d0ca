// SPDX-License-Identifier: MIT
#include "strict/positions.h"

#include "layer.h"

namespace orvane::trace {

namespace {

int askForCount(const char *function, int id)
{
    return reinterpret_cast<int (*)(int)>(realAddress(function))(id);
}

/// How many items an object has; -1 if it is none with items.
int itemCount(const Objects::Object *object)
{
    if (!object || object->isDestroyed())
        return -1;
    switch (object->type) {
    case ObjectType::List:
        return askForCount("ZelGUIListGetItemCount", object->id);
    case ObjectType::OptionMenu:
        return askForCount("ZelGUIOptionMenuGetItemCount", object->id);
    case ObjectType::RadioBox:
        return object->parts;
    default:
        return -1;
    }
}

} // namespace

void Positions::called(const Call &call)
{
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
        const Parameter &parameter = call.function.parameters[i];
        const bool isArray = parameter.kind == Kind::Positions;
        if (parameter.kind != Kind::Position && parameter.kind != Kind::PositionOr0 && !isArray)
            continue;
        const int count = isGuiAvailable() ? itemCount(m_objects.find(call.argument<int>(0))) : -1;
        if (count < 0)
            continue;
        if (!isArray)
            check(call, parameter, call.argument<int>(i), count);
        const int *const positions = call.argument<const int *>(i);
        for (int j = 0; positions && j < call.argument<int>(i + 1); ++j)
            check(call, parameter, positions[j], count);
    }
}

void Positions::check(const Call &call, const Parameter &parameter, int position, int count)
{
    const int first = parameter.kind == Kind::PositionOr0 ? 0 : 1;
    if (position >= first && position <= count)
        return;
    const std::string remedy =
        count > 0 ? "positions count from 1 to the number of items" : "there is none to name yet";
    m_faults.add(call.addOn, call.function.name,
                 parameter.name + (" " + std::to_string(position)) + " is none of " + std::to_string(count) + " items",
                 remedy);
}

} // namespace orvane::trace
