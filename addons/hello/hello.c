/* SPDX-License-Identifier: MIT */
/* A complete add-on: one modal dialog. */
#include <zelgui/zelgui.h>

static int dialog = ZELGUI_INVALID_ID, greeting, formal;

static void showGreeting(void)
{
    ZelGUILabelSetText(greeting, ZelGUIToggleGet(formal) ? "Good day, engineer." : "Hello, engineer!");
}

static void formalChanged(const int *isFormal)
{
    (void)isFormal;
    showGreeting();
}

static void drop(void)
{
    ZelGUIDialogDrop(dialog);
}

static void launch(void)
{
    if (dialog == ZELGUI_INVALID_ID) {
        dialog = ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 3400, 500, "Hello", 0, drop, 0, drop, 0);
        greeting = ZelGUILabelAdd(dialog, 100, 50, "Press the button to be greeted.");
        formal = ZelGUIToggleAdd(dialog, 100, 180, 2000, 130, "&Formal", formalChanged);
        ZelGUIButtonAdd(dialog, 100, 340, 1200, 130, "&Greet", showGreeting);
    }
    ZelGUIDialogLaunch(dialog);
}

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Hello", "Greets the engineer", launch);
}
