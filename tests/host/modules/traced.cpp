// SPDX-License-Identifier: MIT
// Passes values of every kind through the interface, and has callbacks of every kind.
#include <zelgui/zelgui.h>

#include <stdexcept>

extern "C" void ZelAddOnInit(void);

namespace {

int dialog = ZELGUI_INVALID_ID;
int field = ZELGUI_INVALID_ID;

void passList()
{
    int *positions = nullptr;
    int count = 0;
    const int list = ZelGUIListAdd(dialog, 100, 300, 1000, 500, 1, [](const int *) {});
    StringList_s *items = ZelUtilStringListAlloc();
    ZelUtilStringListAppendString(items, "f\xfcr");
    ZelUtilStringListAppendString(items, "two");
    ZelGUIListSetItems(list, items);
    ZelUtilStringListDealloc(&items);
    ZelGUIListSelectAllItems(list);
    ZelGUIListGetSelectedItems(list, &positions, &count);
    char *memory = reinterpret_cast<char *>(positions);
    ZelUtilStringDealloc(&memory);
    ZelGUIListGetSelectedItems(list, nullptr, nullptr);
}

void passNumbers()
{
    IndexSet set = nullptr;
    double number = 0;
    LgIndex index = 0;
    field = ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, [](const char *) {
        ZelGUITextFieldSetString(field, "entered");
        return 1;
    });
    ZelGUITextFieldSetString(field, "1-3,7");
    ZelGUITextFieldGetSet(field, &set);
    ZelGUITextFieldSetSet(field, set, 1);
    ZelUtilSetDealloc(&set);
    ZelGUITextFieldSetDouble(field, 2.5, "%g");
    ZelGUITextFieldGetDouble(field, &number);
    ZelGUITextFieldGetLgIndex(field, &index);
    char *text = ZelGUITextFieldGetString(field);
    ZelUtilStringDealloc(&text);
}

void launch()
{
    const unsigned char pixel[3] = {255, 0, 0};
    dialog = ZelGUIDialogCreateModeless(
        ZELGUI_MAIN_WINDOW, 4000, 1000, "Say \"\xc3\xbc\"\n", nullptr, [] { ZelGUIDialogDrop(dialog); }, nullptr);
    ZelGUIBitmapButtonAdd(dialog, 100, 800, 0, 0, 1, 1, pixel, 0, 1, 2, 3, nullptr);
    passList();
    passNumbers();
    ZelGUITextFieldAdd(dialog, 1200, 100, 1000, 140, [](const char *) { return 1; });
    const int menu = ZelGUIMenuAdd(ZelGUIMenuBarAdd(dialog), "Menu");
    const int item = ZelGUIMenuAddToggle(menu, "A label that is longer than forty characters", nullptr,
                                         [](const int *) { throw std::runtime_error("not let out"); });
    ZelGUIMenuSetToggle(item, 1);
    ZelGUIDialogIsUp(dialog);
    // It reads no argument, so the pointer may be anything.
    ZelGUISetStatusLine(reinterpret_cast<const char *>(1));
    ZelGUIDialogLaunch(dialog);
}

} // namespace

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Traced", "", launch);
}
