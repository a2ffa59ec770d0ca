/* SPDX-License-Identifier: MIT */
/* Identifiers of other objects than the function works on. */
#include "misuse.h"

static void wrong(void)
{
    ZelGUIListGetItemCount(ZelGUILabelAdd(dialog, 100, 100, "label"));
}

static void valid(void)
{
    IndexSet set = 0;
    const int spin = ZelGUISpinTextFieldAdd(dialog, 100, 300, 1000, 140, 0, 0, 0);
    char *text = ZelGUITextFieldGetString(spin);
    const int toggle = ZelGUIBitmapToggleAdd(dialog, 100, 500, 300, 140, 0, 0, 0, 0, 0, 0, 0, 0);
    const int button = ZelGUIButtonAdd(dialog, 1000, 500, 1000, 140, "Button", 0);
    const int item =
        ZelGUIMenuAddItem(ZelGUIMenuAdd(ZelGUIMenuAdd(ZelGUIMenuBarAdd(dialog), "Menu"), "Sub-menu"), "Item", 0, 0);
    ZelUtilStringDealloc(&text);
    ZelGUIToggleSet(toggle, ZelGUIToggleGet(toggle));
    ZelGUIButtonSetText(toggle, "Toggle");
    /* The first argument is not read. */
    ZelGUIButtonSetDefault(99, button);
    ZelGUISetSensitivity(item, 0);
    ZelGUISetSensitivity(dialog, 1);
    ZelGUITextFieldGetSet(ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, 0), &set);
    ZelUtilSetDealloc(&set);
}

REGISTER_FILLING_ENTRIES
