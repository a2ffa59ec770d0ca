/* SPDX-License-Identifier: MIT */
/* Identifiers that nothing was created under. */
#include "misuse.h"

static void wrong(void)
{
    ZelGUILabelSetText(99, "text");
    ZelGUISetSensitivity(ZelGUILabelAdd(ZELGUI_MAIN_WINDOW, 100, 100, "no child of the main window"), 1);
}

static void valid(void)
{
    ZelGUILabelSetText(ZelGUILabelAdd(dialog, 100, 100, "text"), "text");
    ZelGUIDialogSetPosition(99, 1, 1);
}

REGISTER_FILLING_ENTRIES
