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
    ZelGUIButtonAdd(dialog, 100, 100, 1000, 140, "S\xc3\xbc\xc3\x9f", 0);
    setItems(ZelGUIListAdd(dialog, 100, 300, 1000, 500, 0, 0), "Spa\xc3\x9f");
}

static void valid(void)
{
    ZelGUIButtonAdd(dialog, 100, 100, 1000, 140, "S\xfc\xdf", 0);
    setItems(ZelGUIListAdd(dialog, 100, 300, 1000, 500, 0, 0), "Spa\xdf");
    ZelGUIListAppendItem(ZelGUIListAdd(dialog, 1200, 300, 1000, 500, 0, 0), "Spa\xc3\x9f");
}

REGISTER_FILLING_ENTRIES
