/* SPDX-License-Identifier: MIT */
/* Widgets that are not inside their dialog, page or frame. */
#include "misuse.h"

static void wrong(void)
{
    ZelGUIButtonAdd(dialog, 3500, 100, 1000, 140, "Cut off", 0);
    ZelGUIListAdd(ZelGUIFrameAdd(dialog, 100, 300, 1000, 500, 0), 100, 100, 800, 600, 0, 0);
}

static void valid(void)
{
    const int tab = ZelGUITabAdd(dialog, 1200, 400, 1000, 600, 0, 0),
              form = ZelGUIFormAdd(dialog, 2400, 300, 1500, 700);
    ZelGUIButtonAdd(dialog, 3000, 50, 1000, 140, "At the edge", 0);
    ZelGUIListAdd(ZelGUIFrameAdd(dialog, 100, 300, 1000, 700, "At the edge"), 1, 1, 1000, 700, 0, 0);
    ZelGUITabAddPage(tab, "Shown");
    ZelGUITextAdd(ZelGUITabAddPage(tab, "Hidden"), 100, 100, 800, 400, 0, 0);
    ZelGUIFormAddPage(form);
    ZelGUILabelAdd(ZelGUIFormAddPage(form), 100, 590, "At the edge");
    ZelGUILabelAdd(dialog, 0, 0, "In the corner");
}

REGISTER_FILLING_ENTRIES
