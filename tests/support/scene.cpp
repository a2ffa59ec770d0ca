// SPDX-License-Identifier: MIT
#include "scene.h"

#include <zelgui/zelgui.h>

#include <algorithm>
#include <cstring>

using orvane::interface::bit;

namespace {

/// A place of its own for each object of a scene.
class Placing : public Harmless
{
public:
    Placing(const Function &function, int number)
    {
        for (const Parameter &parameter : function.parameters) {
            const char *const name = parameter.name;
            if (std::strcmp(name, "x") == 0)
                identifiers[&parameter] = 100 + number % 3 * 1100;
            else if (std::strcmp(name, "y") == 0)
                identifiers[&parameter] = 100 + number / 3 * 400;
            else if (std::strcmp(name, "width") == 0)
                identifiers[&parameter] = function.created == ObjectType::Dialog ? 3500 : 1000;
            else if (std::strcmp(name, "height") == 0)
                identifiers[&parameter] = function.created == ObjectType::Dialog ? 3500 : 300;
            else if (std::strcmp(name, "maximum") == 0)
                identifiers[&parameter] = 9;
        }
    }
};

} // namespace

std::vector<SceneObject> makeEveryKind(int parent)
{
    std::vector<SceneObject> all;
    const auto find = [&all](ObjectTypes types) {
        return std::find_if(all.begin(), all.end(), [types](const SceneObject &each) { return each.isOneOf(types); });
    };
    for (const Function &creator : functions()) {
        if (creator.created == ObjectType::None)
            continue;
        const Parameter &container = creator.parameters.front();
        const auto found = find(container.accepted);
        Placing source(creator, int(all.size()));
        source.identifiers[&container] = found == all.end() ? parent : found->id;
        all.push_back({&creator, std::get<int>(Call(creator, source).run())});
    }
    const auto addOther = [&](ObjectType type, auto make, ObjectType container) {
        const int id = make(find(bit(container))->id);
        all.push_back({find(bit(type))->creator, id});
        return id;
    };
    const auto addList = [](int id) { return ZelGUIListAdd(id, 100, 3300, 1000, 200, 0, nullptr); };
    const auto addButton = [](int id) { return ZelGUIButtonAdd(id, 100, 100, 300, 100, "On no page", nullptr); };
    const auto addItem = [](int id) { return ZelGUIMenuAddItem(id, "Deleted", nullptr, nullptr); };
    addOther(ObjectType::List, addList, ObjectType::Dialog);
    addOther(ObjectType::FormPage, ZelGUIFormAddPage, ObjectType::Form);
    addOther(ObjectType::Button, addButton, ObjectType::Form);
    addOther(
        ObjectType::TabPage, [](int id) { return ZelGUITabAddPage(id, "Two"); }, ObjectType::Tab);
    addOther(
        ObjectType::Menu, [](int id) { return ZelGUIMenuAdd(id, "Sub-menu"); }, ObjectType::Menu);
    ZelGUIMenuDeleteItem(addOther(ObjectType::MenuItem, addItem, ObjectType::Menu));
    // Each of these has an effect on the objects that it is for, and on no others.
    for (const SceneObject &each : all) {
        ZelGUITextFieldSetString(each.id, "7");
        ZelGUITextSetString(each.id, "A\nB");
        for (const char *const item : {"A", "B", "C"}) {
            ZelGUIListAppendItem(each.id, item);
            ZelGUIOptionMenuAppendItem(each.id, item);
        }
        ZelGUIListSetSelectedItem(each.id, 2);
    }
    return all;
}
