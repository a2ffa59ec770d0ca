/* SPDX-License-Identifier: MIT */
/* Latin-1 where UTF-8 is read. */
#include "misuse.h"

static void wrong(void)
{
    makeDialogWithInit(0);
    ZelGUILabelAdd(dialog, 100, 100,
                   "Gr\xf6\xdf"
                   "e");
    ZelGUIDialogLaunch(dialog);
}

static void valid(void)
{
    makeDialogWithInit(0);
    ZelGUILabelAdd(dialog, 100, 100,
                   "Gr\xc3\xb6\xc3\x9f"
                   "e");
    ZelGUISetToolTip(dialog, "\xef\xbb\xbfWith a byte order mark, \xef\xbf\xbd and \xf0\x9f\x99\x82");
    ZelGUIFrameAdd(dialog, 100, 300, 1000, 300, 0);
    ZelGUIDialogLaunch(dialog);
}

REGISTER_ENTRIES
