/* SPDX-License-Identifier: MIT */
/* The public header alone, as an add-on in strict C99 includes it. */
#include <zelgui/zelgui.h>

int zelguiHeaderInC(void);

int zelguiHeaderInC(void)
{
    ZelGUIVoidCallback none = 0;
    return none == 0 ? ZELGUI_INVALID_ID : ZELGUI_MAIN_WINDOW;
}
