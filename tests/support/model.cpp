// SPDX-License-Identifier: MIT
#include "model.h"

#include <algorithm>

bool Model::isRight(const Parameter &parameter, int id) const
{
    return isAliveOf(id, workingTypes(parameter)) ||
           (id == ZELGUI_MAIN_WINDOW && (parameter.accepted & bit(ObjectType::MainWindow)) != 0);
}

void Model::destroy(int id)
{
    for (int each = m_first; each < end(); ++each) {
        Object &object = m_objects[static_cast<std::size_t>(each - m_first)];
        object.isAlive = object.isAlive && each != id && object.parent != id &&
                         (object.parent < m_first || at(object.parent).isAlive);
    }
}

std::string Model::faultOf(Call &call, const std::function<void()> &run)
{
    const auto identifiers = identifiersOf(call.function());
    const Parameter *const first = call.function().parameters.data();
    const bool hadGui = m_hasGui();
    const bool wasRight = hadGui && std::all_of(identifiers.begin(), identifiers.end(), [&](const Parameter *each) {
                              return isRight(*each, std::get<int>(call.arguments()[std::size_t(each - first)]));
                          });
    run();
    const std::string fault = faultAfter(call, hadGui, wasRight);
    if (fault.empty())
        return {};
    std::string arguments;
    for (const Parameter *const each : identifiers)
        arguments += " " + std::to_string(std::get<int>(call.arguments()[std::size_t(each - first)]));
    return std::string(call.function().name) + arguments + " answers " + call.answer() + ": " + fault;
}

std::string Model::faultAfter(const Call &call, bool hadGui, bool wasRight)
{
    const Function &function = call.function();
    const auto *const text = std::get_if<char *>(&call.result());
    if (text && *text && !isUtf8(*text))
        return "no UTF-8";
    if (!m_hasGui() && hadGui)
        destroy(ZELGUI_MAIN_WINDOW);
    if (!wasRight || function.isInert) {
        if (call.result() != (hadGui || function.isInert ? function.neutral : function.withoutGui))
            return "not neutral";
        return call.areOutputsUntouched() ? "" : "an output argument is touched";
    }
    if (function.created == ObjectType::None)
        return {};
    // What dies during the call may leave an object that is registered, and dead.
    const int id = std::get<int>(call.result());
    const int parent = std::get<int>(call.arguments().front());
    const bool isStillRight = m_hasGui() && (parent == ZELGUI_MAIN_WINDOW || isAlive(parent));
    if (id == end())
        add(function.created, parent);
    else if (isStillRight || call.result() != function.neutral)
        return "not the next identifier";
    return {};
}
