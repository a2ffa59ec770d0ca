// SPDX-License-Identifier: MIT
#include "scene.h"

#include <zelgui/zelgui.h>

QVector<SceneObject> makeEveryKind(int parent)
{
    QVector<SceneObject> all;
    const auto add = [&all](const char *kind, int id) {
        all.append({kind, id});
        return id;
    };
    const auto ok = +[] {};
    const int dialog = add("modal dialog", ZelGUIDialogCreateModal(parent, 3000, 2000, "Modal", ok, ok, ok, ok, ok));
    add("modeless dialog", ZelGUIDialogCreateModeless(dialog, 3000, 2000, "Modeless", ok, ok, ok));

    const unsigned char pixel[] = {255, 0, 0};
    add("button", ZelGUIButtonAdd(dialog, 100, 100, 1000, 100, "Button", nullptr));
    add("bitmap button", ZelGUIBitmapButtonAdd(dialog, 100, 300, 100, 100, 1, 1, pixel, 0, 0, 0, 0, nullptr));
    add("bitmap toggle", ZelGUIBitmapToggleAdd(dialog, 300, 300, 100, 100, 1, 1, pixel, 0, 0, 0, 0, nullptr));
    add("toggle", ZelGUIToggleAdd(dialog, 100, 500, 1000, 100, "Toggle", nullptr));
    add("label", ZelGUILabelAdd(dialog, 100, 700, "Label"));
    add("radio box", ZelGUIRadioBoxAdd(dialog, 100, 900, 1000, 300, "A", "B", "C", nullptr, nullptr, nullptr));
    add("option menu", ZelGUIOptionMenuAdd(dialog, 100, 1300, 1000, 100, "A,B", nullptr));

    ZelGUITextFieldSetString(add("text field", ZelGUITextFieldAdd(dialog, 1200, 100, 1000, 100, nullptr)), "7");
    ZelGUITextFieldSetString(
        add("spin text field", ZelGUISpinTextFieldAdd(dialog, 1200, 300, 1000, 100, nullptr, nullptr, nullptr)), "7");
    ZelGUITextSetString(add("multi-line text", ZelGUITextAdd(dialog, 1200, 500, 1000, 300, 0, nullptr)), "A\nB");
    for (const bool isMultiSelection : {false, true}) {
        const int list = add(isMultiSelection ? "multi-selection list" : "list",
                             ZelGUIListAdd(dialog, 1200, 900, 400, 300, isMultiSelection, nullptr));
        for (const char *const item : {"A", "B", "C"})
            ZelGUIListAppendItem(list, item);
        ZelGUIListSetSelectedItem(list, 2);
    }
    add("scale", ZelGUIScaleAdd(dialog, 1200, 1400, 1000, 100, 0, 9, 0, nullptr, nullptr));

    const int form = add("form", ZelGUIFormAdd(dialog, 2300, 100, 600, 500));
    ZelGUIFormAddPage(form);
    add("form page", ZelGUIFormAddPage(form));
    add("widget in a form, on no page", ZelGUIButtonAdd(form, 100, 100, 300, 100, "", nullptr));
    const int tab = add("tab", ZelGUITabAdd(dialog, 2300, 900, 600, 500, nullptr, nullptr));
    ZelGUITabAddPage(tab, "One");
    add("tab page", ZelGUITabAddPage(tab, "Two"));
    add("frame", ZelGUIFrameAdd(dialog, 50, 50, 1000, 500, "Frame"));
    add("horizontal separator", ZelGUIHorzSeparatorAdd(dialog, 100, 1600, 1000));
    add("vertical separator", ZelGUIVertSeparatorAdd(dialog, 1150, 100, 1000));

    const int bar = add("menu bar", ZelGUIMenuBarAdd(dialog));
    const int menu = add("menu", ZelGUIMenuAdd(bar, "Menu"));
    add("sub-menu", ZelGUIMenuAdd(menu, "Sub-menu"));
    add("menu item", ZelGUIMenuAddItem(menu, "Item", nullptr, nullptr));
    add("menu toggle", ZelGUIMenuAddToggle(menu, "Toggle", nullptr, nullptr));
    ZelGUIMenuDeleteItem(add("menu item, deleted", ZelGUIMenuAddItem(menu, "Deleted", nullptr, nullptr)));
    return all;
}
