// SPDX-License-Identifier: MIT
#include "strict/identifiers.h"

namespace orvane::trace {

namespace {

/// `text` of every type that a parameter accepts, with `between` between them; of all types nothing.
template <typename Text>
std::string ofTypes(ObjectTypes accepted, const char *between, Text text)
{
    const auto count = static_cast<unsigned>(ObjectType::None);
    std::string result;
    for (unsigned i = 0; i < count; ++i) {
        if (accepted & (ObjectTypes(1) << i))
            result += (result.empty() ? "" : between) + std::string(text(typeTexts[i]));
    }
    return result;
}

std::string remedyFor(const Parameter &parameter)
{
    const ObjectTypes any = (bit(ObjectType::None) - 1) & ~bit(ObjectType::MainWindow);
    if (parameter.accepted == any)
        return "pass what a creating function has returned";
    const auto creators = [](const TypeText &type) { return type.creators; };
    return "pass what " + ofTypes(parameter.accepted & ~bit(ObjectType::MainWindow), " or ", creators) +
           " has returned" + (parameter.accepted & bit(ObjectType::MainWindow) ? ", or ZELGUI_MAIN_WINDOW" : "");
}

/// A type that is not accepted.
std::string insteadOf(const Parameter &parameter, int id, ObjectType type)
{
    const auto name = [](const TypeText &text) { return text.name; };
    return " " + std::to_string(id) + " is " + typeTexts[static_cast<unsigned>(type)].name + " instead of " +
           ofTypes(parameter.accepted, " or ", name);
}

/// What is wrong with an identifier; empty if nothing is.
std::string faultOf(const Parameter &parameter, int id, const Objects::Object *object)
{
    if (!object) {
        if (id == ZELGUI_MAIN_WINDOW)
            return parameter.accepted & bit(ObjectType::MainWindow) ? ""
                                                                    : insteadOf(parameter, id, ObjectType::MainWindow);
        if (id == ZELGUI_INVALID_ID)
            return " is ZELGUI_INVALID_ID, so it names nothing";
        return " " + std::to_string(id) + " names nothing that was created";
    }
    if (object->isDestroyed()) {
        return " " + std::to_string(id) + " is " + typeTexts[static_cast<unsigned>(object->type)].name +
               " that was destroyed";
    }
    return parameter.accepted & bit(object->type) ? "" : insteadOf(parameter, id, object->type);
}

} // namespace

void Identifiers::called(const Call &call)
{
    if (!isGuiAvailable())
        return;
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
        const Parameter &parameter = call.function.parameters[i];
        if (parameter.kind != Kind::Id)
            continue;
        const int id = call.argument<int>(i);
        const std::string fault = faultOf(parameter, id, m_objects.find(id));
        if (!fault.empty())
            m_faults.add(call.addOn, call.function.name, parameter.name + fault, remedyFor(parameter));
    }
}

} // namespace orvane::trace
