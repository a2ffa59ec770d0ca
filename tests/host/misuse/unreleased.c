/* SPDX-License-Identifier: MIT */
/* Results that are not released. */
#include "misuse.h"

static int addField(void)
{
    const int field = ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, 0);
    ZelGUITextFieldSetString(field, "1-3");
    return field;
}

static void wrong(void)
{
    IndexSet set;
    int *positions, count;
    const int list = ZelGUIListAdd(dialog, 100, 300, 1000, 500, 1, 0);
    const int field = addField();
    ZelGUIListAppendItem(list, "a");
    ZelGUIListSetSelectedItem(list, 1);
    ZelGUIListGetSelectedItems(list, &positions, &count);
    ZelGUITextFieldGetString(field);
    ZelGUITextFieldGetString(field);
    ZelGUITextFieldGetSet(field, &set);
    ZelUtilStringListAlloc();
}

static void valid(void)
{
    IndexSet set, none = 0;
    int *positions, count;
    const int field = addField();
    char *text = ZelGUITextFieldGetString(field);
    const int list = ZelGUIListAdd(dialog, 100, 300, 1000, 500, 1, 0);
    ZelUtilStringDealloc(&text);
    /* With nothing selected there is no array. */
    ZelGUIListGetSelectedItems(list, &positions, &count);
    ZelGUITextFieldGetSet(field, 0);
    ZelGUITextFieldGetSet(field, &set);
    ZelUtilSetDealloc(&set);
    ZelGUITextFieldSetString(field, "no set");
    ZelGUITextFieldGetSet(field, &none);
}

REGISTER_FILLING_ENTRIES
