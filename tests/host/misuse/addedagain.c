/* SPDX-License-Identifier: MIT */
/* Widgets that are added at each launch. */
#include "misuse.h"

static void addTheSame(void)
{
    ZelGUILabelAdd(dialog, 100, 100, "label");
}

static void wrong(void)
{
    if (dialog == ZELGUI_INVALID_ID)
        makeDialogWithInit(addTheSame);
    ZelGUIDialogLaunch(dialog);
}

static void addAnother(void)
{
    static int rows = 0, status = ZELGUI_INVALID_ID, menu = ZELGUI_INVALID_ID, item = ZELGUI_INVALID_ID;
    int i;
    /* One row more each time. */
    ZelGUILabelAdd(dialog, 100, 100 + 150 * rows++, "row");
    /* Two in one place, of which the add-on shows one. */
    for (i = 0; rows == 1 && i < 2; ++i)
        ZelGUILabelAdd(dialog, 2000, 100, "variant");
    /* In place of one that is hidden: a label does not grow with its text. */
    if (status != ZELGUI_INVALID_ID)
        ZelGUISetVisibility(status, 0);
    status = ZelGUILabelAdd(dialog, 2000, 300, "status");
    if (menu == ZELGUI_INVALID_ID)
        menu = ZelGUIMenuAdd(ZelGUIMenuBarAdd(dialog), "Menu");
    if (item != ZELGUI_INVALID_ID)
        ZelGUIMenuDeleteItem(item);
    item = ZelGUIMenuAddItem(menu, "Recent file", 0, 0);
}

static void valid(void)
{
    if (dialog == ZELGUI_INVALID_ID)
        makeDialogWithInit(addAnother);
    ZelGUIDialogLaunch(dialog);
}

REGISTER_ENTRIES
