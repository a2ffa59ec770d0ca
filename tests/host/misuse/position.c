/* SPDX-License-Identifier: MIT */
/* Positions of items that do not exist. */
#include "misuse.h"

static int list, menu, box;

static void fill(void)
{
    list = ZelGUIListAdd(dialog, 100, 300, 1000, 500, 1, 0);
    menu = ZelGUIOptionMenuAdd(dialog, 100, 100, 1000, 140, "a, b, c", 0);
    box = ZelGUIRadioBoxAdd(dialog, 2000, 100, 1000, 500, "a", "b", "c", 0, 0, 0);
}

static void wrong(void)
{
    const int positions[] = {1, 2};
    char *text;
    fill();
    ZelGUIListSetSelectedItem(list, 1);
    ZelGUIListAppendItem(list, "a");
    text = ZelGUIListGetString(list, 0);
    ZelUtilStringDealloc(&text);
    ZelGUIListSetSelectedItems(list, positions, 2);
    ZelGUIOptionMenuSet(menu, 4);
    ZelGUIRadioBoxSetToggle(box, 4);
}

static void valid(void)
{
    const int positions[] = {2, 1, 2};
    fill();
    ZelGUIListSetTopItemNum(list, ZelGUIListGetTopItemNum(list));
    ZelGUIListAppendItem(list, "a");
    ZelGUIListAppendItem(list, "b");
    ZelGUIListSetSelectedItems(list, positions, 3);
    ZelGUIListDeleteItemAtPos(list, 2);
    ZelGUIOptionMenuSet(menu, 0);
    ZelGUIOptionMenuSet(menu, 3);
    ZelGUIRadioBoxSetToggle(box, 3);
}

REGISTER_FILLING_ENTRIES
