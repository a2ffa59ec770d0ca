/* SPDX-License-Identifier: MIT */
/* A dialog that is created at each launch. */
#include "misuse.h"

static void wrong(void)
{
    makeDialogWithInit(0);
    ZelGUILabelAdd(dialog, 100, 100, "label");
    ZelGUIDialogLaunch(dialog);
}

static void valid(void)
{
    int i;
    for (i = 0; dialog == ZELGUI_INVALID_ID && i < 2; ++i) {
        ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 4000, 1000, "One of two", 0, 0, 0, 0, 0);
    }
    if (dialog == ZELGUI_INVALID_ID)
        makeDialogWithInit(0);
    ZelGUIDialogLaunch(dialog);
}

REGISTER_ENTRIES
