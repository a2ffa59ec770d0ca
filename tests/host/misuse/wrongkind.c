/* SPDX-License-Identifier: MIT */
/* Identifiers of other objects than the function works on. */
#include "misuse.h"

static void wrong(void)
{
    makeDialogWithInit(0);
    ZelGUIListGetItemCount(ZelGUILabelAdd(dialog, 100, 100, "label"));
    ZelGUIDialogLaunch(dialog);
}

static void valid(void)
{
    IndexSet set = 0;
    int spin, toggle, button, item;
    char *text;
    makeDialogWithInit(0);
    spin = ZelGUISpinTextFieldAdd(dialog, 100, 300, 1000, 140, 0, 0, 0);
    text = ZelGUITextFieldGetString(spin);
    ZelUtilStringDealloc(&text);
    toggle = ZelGUIBitmapToggleAdd(dialog, 100, 500, 300, 140, 0, 0, 0, 0, 0, 0, 0, 0);
    ZelGUIToggleSet(toggle, ZelGUIToggleGet(toggle));
    ZelGUIButtonSetText(toggle, "Toggle");
    button = ZelGUIButtonAdd(dialog, 1000, 500, 1000, 140, "Button", 0);
    /* The first argument is not read. */
    ZelGUIButtonSetDefault(99, button);
    item = ZelGUIMenuAddItem(ZelGUIMenuAdd(ZelGUIMenuAdd(ZelGUIMenuBarAdd(dialog), "Menu"), "Sub-menu"), "Item", 0, 0);
    ZelGUISetSensitivity(item, 0);
    ZelGUISetSensitivity(dialog, 1);
    ZelGUITextFieldGetSet(ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, 0), &set);
    ZelUtilSetDealloc(&set);
    ZelGUIDialogLaunch(dialog);
}

REGISTER_ENTRIES
