// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <zelgui/zelgui.h>

#include <QComboBox>

namespace bench {

namespace {

Case menuCase(const char *name, Goal goal, void (*library)(int id, int call), void (*bare)(QComboBox &menu, int call),
              bool isFilled = true)
{
    const auto make = [=](int size) {
        const auto dialog = std::make_shared<Dialog>();
        const int id = ZelGUIOptionMenuAdd(dialog->id(), 100, 100, 2000, 130, "", nullptr);
        auto *const menu = object<QComboBox>(id);
        const auto prepare = [=, keep = dialog] {
            menu->clear();
            for (int i = 0; i < (isFilled ? size : 0); ++i)
                menu->addItem(QString::number(i));
        };
        const auto callLibrary = [=] {
            for (int call = 0; call < size; ++call)
                library(id, call);
        };
        const auto callBare = [=] {
            for (int call = 0; call < size; ++call)
                bare(*menu, call);
        };
        return Comparison{{prepare, callLibrary}, {prepare, callBare}};
    };
    return {name, goal, {1000, 10000}, 1, make};
}

} // namespace

std::vector<Case> menuCases()
{
    return {
        menuCase(
            "option menu: append items", {Goal::Ratio, 1.15},
            [](int id, int) { ZelGUIOptionMenuAppendItem(id, "An item"); },
            [](QComboBox &menu, int) { menu.addItem(QString::fromUtf8("An item")); }, false),
        menuCase(
            "option menu: choose each item", {Goal::Ratio, 1.10},
            [](int id, int call) { ZelGUIOptionMenuSet(id, call + 1); },
            [](QComboBox &menu, int call) { menu.setCurrentIndex(call); }),
    };
}

} // namespace bench
