/* SPDX-License-Identifier: MIT */
/* Number formats that are none. */
#include "misuse.h"

static void wrong(void)
{
    const int label = ZelGUILabelAdd(dialog, 100, 100, "label");
    ZelGUILabelSetDouble(label, 1, "%d");
    ZelGUILabelSetDouble(label, 1, "%.2f of %.2f");
}

static void valid(void)
{
    const int label = ZelGUILabelAdd(dialog, 100, 100, "label");
    ZelGUILabelSetDouble(label, 1, "%%: %-+8.3lG\n%%");
    ZelGUILabelSetDouble(label, 1, "%1000.f");
}

REGISTER_FILLING_ENTRIES
