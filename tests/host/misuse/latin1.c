/* SPDX-License-Identifier: MIT */
/* Latin-1 where UTF-8 is read. */
#include "misuse.h"

static void wrong(void)
{
    ZelGUILabelAdd(dialog, 100, 100, "S\xfc\xdf");
}

static void valid(void)
{
    ZelGUILabelAdd(dialog, 100, 100, "S\xc3\xbc\xc3\x9f");
    ZelGUISetToolTip(dialog, "\xef\xbb\xbfWith a byte order mark, \xef\xbf\xbd and \xf0\x9f\x99\x82");
    ZelGUIFrameAdd(dialog, 100, 300, 1000, 300, 0);
}

REGISTER_FILLING_ENTRIES
