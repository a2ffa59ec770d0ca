// SPDX-License-Identifier: MIT
#include "strict/repetition.h"

#include <QAction>
#include <QWidget>

#include <string_view>

namespace orvane::trace {

namespace {

bool isDialog(const Call &call)
{
    return call.function.created == ObjectType::Dialog;
}

} // namespace

Repetition::Signature Repetition::signatureOf(const Call &call)
{
    std::vector<int> numbers;
    std::vector<std::string> texts;
    bool isPlaced = false;
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
        if (const auto *const number = std::get_if<int>(&call.arguments[i]))
            numbers.push_back(*number);
        if (const auto *const text = std::get_if<const char *>(&call.arguments[i]);
            text && *text && call.function.parameters[i].kind != Kind::Unread)
            texts.emplace_back(*text);
        isPlaced = isPlaced || std::string_view(call.function.parameters[i].name) == "x";
    }
    // What has a place is known by it; its text may be a value.
    if (isPlaced)
        texts.clear();
    return {call.function.name, call.caller, numbers, texts};
}

bool Repetition::isReplaced(int id) const
{
    const Objects::Object *const object = m_objects.find(id);
    if (!object || !object->object)
        return true;
    if (auto *const action = qobject_cast<QAction *>(object->object)) {
        // Items can be taken out of their menu for good.
        const Objects::Object *const menu = m_objects.find(object->parentId);
        const auto *const widget = menu ? qobject_cast<const QWidget *>(menu->object) : nullptr;
        return !widget || !widget->actions().contains(action);
    }
    const auto *const widget = qobject_cast<const QWidget *>(object->object);
    if (!widget)
        return false;
    return object->type == ObjectType::Dialog
               ? widget->isVisible()
               : widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

void Repetition::returned(const Call &call)
{
    const int id = createdId(call);
    if (id == ZELGUI_INVALID_ID || !isGuiAvailable() || call.function.created == ObjectType::FormPage)
        return;
    const int run = m_runs.empty() ? 0 : m_runs.back();
    const auto [found, isNew] = m_created.try_emplace(signatureOf(call), Created{id, run});
    if (isNew)
        return;
    const Created earlier = found->second;
    found->second = {id, run};
    if (earlier.run == run || isReplaced(earlier.id))
        return;
    const std::string what = std::string("creates ") + typeTexts[static_cast<unsigned>(call.function.created)].name +
                             " again that is there already, as " + std::to_string(earlier.id);
    m_faults.add(call.addOn, call.function.name, what,
                 isDialog(call) ? "create the dialog once, keep its identifier and launch that"
                                : "create it once, with its dialog, and only set its value later");
}

} // namespace orvane::trace
