/* SPDX-License-Identifier: MIT */
/* UTF-8 where Latin-1 is read. */
#include "misuse.h"

static void setItems(int list, const char *text)
{
    StringList_s *items = ZelUtilStringListAlloc();
    ZelUtilStringListAppendString(items, text);
    ZelGUIListSetItems(list, items);
    ZelUtilStringListDealloc(&items);
}

static void wrong(void)
{
    makeDialogWithInit(0);
    ZelGUIButtonAdd(dialog, 100, 100, 1000, 140,
                    "Gr\xc3\xb6\xc3\x9f"
                    "e",
                    0);
    setItems(ZelGUIListAdd(dialog, 100, 300, 1000, 500, 0, 0), "Stra\xc3\x9f"
                                                               "e");
    ZelGUIDialogLaunch(dialog);
}

static void valid(void)
{
    makeDialogWithInit(0);
    ZelGUIButtonAdd(dialog, 100, 100, 1000, 140,
                    "Gr\xf6\xdf"
                    "e",
                    0);
    setItems(ZelGUIListAdd(dialog, 100, 300, 1000, 500, 0, 0), "Stra\xdf"
                                                               "e");
    ZelGUIListAppendItem(ZelGUIListAdd(dialog, 1200, 300, 1000, 500, 0, 0), "Stra\xc3\x9f"
                                                                            "e");
    ZelGUIDialogLaunch(dialog);
}

REGISTER_ENTRIES
