/* SPDX-License-Identifier: MIT */
/* A text that is released twice, and memory that is not of the host. */
#include "misuse.h"

static void wrong(void)
{
    static char own[] = "own";
    char *copy, *text = ZelGUITextFieldGetString(ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, 0));
    copy = text;
    ZelUtilStringDealloc(&text);
    ZelUtilStringDealloc(&copy);
    copy = own;
    ZelUtilStringDealloc(&copy);
}

static void valid(void)
{
    IndexSet set = 0;
    char *text = ZelGUITextFieldGetString(ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, 0));
    ZelUtilStringDealloc(&text);
    ZelUtilStringDealloc(&text);
    ZelUtilSetDealloc(&set);
}

REGISTER_FILLING_ENTRIES
