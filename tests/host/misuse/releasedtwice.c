/* SPDX-License-Identifier: MIT */
/* A text that is released twice, and memory that is not of the host. */
#include "misuse.h"

static void wrong(void)
{
    static char own[] = "own";
    char *text, *copy;
    makeDialogWithInit(0);
    text = ZelGUITextFieldGetString(ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, 0));
    copy = text;
    ZelUtilStringDealloc(&text);
    ZelUtilStringDealloc(&copy);
    copy = own;
    ZelUtilStringDealloc(&copy);
    ZelGUIDialogLaunch(dialog);
}

static void valid(void)
{
    char *text;
    IndexSet set = 0;
    makeDialogWithInit(0);
    text = ZelGUITextFieldGetString(ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, 0));
    ZelUtilStringDealloc(&text);
    ZelUtilStringDealloc(&text);
    ZelUtilSetDealloc(&set);
    ZelGUIDialogLaunch(dialog);
}

REGISTER_ENTRIES
