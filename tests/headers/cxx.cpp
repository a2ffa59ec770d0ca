// SPDX-License-Identifier: MIT
// The public header alone, as an add-on in C++ includes it.
#include <zelgui/zelgui.h>

int zelguiHeaderInCxx();

int zelguiHeaderInCxx()
{
    const ZelGUIIntCallback none = nullptr;
    return none ? ZELGUI_INVALID_ID : ZELGUI_MAIN_WINDOW;
}
