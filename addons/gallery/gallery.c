/* SPDX-License-Identifier: MIT */
/* Every kind of widget, one dialog each. */
#include <zelgui/zelgui.h>

/*
 * The dialogs are all closed the same way, and a callback isn't told which dialog it belongs to: what is up is dropped.
 * Only one of these modal dialogs can be up at a time.
 */
static int current = ZELGUI_INVALID_ID;

static void dropCurrent(void)
{
    ZelGUIDialogDrop(current);
}

static void launch(int dialog)
{
    current = dialog;
    ZelGUIDialogLaunch(dialog);
}

/* Makes a modal dialog with OK and Cancel; width and height in units of the font. */
static int makeDialog(int width, int height, const char *title)
{
    return ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, width, height, title, 0, dropCurrent, 0, dropCurrent, 0);
}

/* Labels */

static int labels = ZELGUI_INVALID_ID;

static void launchLabels(void)
{
    if (labels == ZELGUI_INVALID_ID) {
        int label;
        labels = makeDialog(3600, 700, "Labels");
        ZelGUILabelAdd(labels, 100, 50,
                       "Text in UTF-8: \xCE\x94p = \xC2\xBD \xCF\x81 v\xC2\xB2, 20 \xC2\xB0"
                       "C");
        label = ZelGUILabelAdd(labels, 100, 200, "000.000 m/s");
        ZelGUILabelSetDouble(label, 12.3456, "%.3f m/s");
        label = ZelGUILabelAdd(labels, 100, 350, "-2147483648");
        ZelGUILabelSetLgIndex(label, -40000);
        ZelGUILabelAdd(labels, 100, 500, "<b>Markup</b> is <i>shown</i> as such");
    }
    launch(labels);
}

/* Buttons */

enum { BLUE = 13, YELLOW = 11, NO_COLOR = -1 };

static int buttons = ZELGUI_INVALID_ID, counter, clicks;

static void count(void)
{
    ZelGUILabelSetLgIndex(counter, ++clicks);
}

static void reset(void)
{
    clicks = 0;
    ZelGUILabelSetLgIndex(counter, clicks);
}

static void launchButtons(void)
{
    if (buttons == ZELGUI_INVALID_ID) {
        int countButton, colored;
        buttons = makeDialog(4400, 600, "Buttons");
        countButton = ZelGUIButtonAdd(buttons, 100, 50, 1500, 130, "&Count", count);
        ZelGUIButtonSetDefault(buttons, countButton);
        ZelGUILabelAdd(buttons, 1700, 80, "Clicks:");
        counter = ZelGUILabelAdd(buttons, 2500, 80, "0000000");
        reset();
        colored = ZelGUIButtonAdd(buttons, 100, 230, 1500, 130, "", 0);
        ZelGUIColoredButtonSetColor(colored, BLUE);
        colored = ZelGUIButtonAdd(buttons, 1700, 230, 1500, 130, "", 0);
        ZelGUIColoredButtonSetColor(colored, YELLOW);
        colored = ZelGUIButtonAdd(buttons, 100, 410, 1500, 130, "", 0);
        ZelGUIColoredButtonSetColor(colored, NO_COLOR);
        ZelGUIDialogAddButtonToButtonBox(buttons, "Reset", 0, reset);
    }
    launch(buttons);
}

/* Toggles */

static int toggles = ZELGUI_INVALID_ID, grid, gridState;

static void gridChanged(const int *isOn)
{
    ZelGUILabelSetText(gridState, *isOn ? "The grid is shown." : "The grid is hidden.");
}

static void launchToggles(void)
{
    if (toggles == ZELGUI_INVALID_ID) {
        toggles = makeDialog(3400, 500, "Toggles");
        grid = ZelGUIToggleAdd(toggles, 100, 50, 2000, 130, "Show &grid", gridChanged);
        gridState = ZelGUILabelAdd(toggles, 100, 200, "The grid is hidden.");
        ZelGUIToggleSet(ZelGUIToggleAdd(toggles, 100, 330, 2000, 130, "Show &axes", 0), 1);
    }
    launch(toggles);
}

/* A modeless dialog */

static int modeless = ZELGUI_INVALID_ID;

static void dropModeless(void)
{
    ZelGUIDialogDrop(modeless);
}

static void showHelp(void)
{
    ZelUtilDialogErrMsg("A modeless dialog stays open beside the host's other windows.");
}

static void launchModeless(void)
{
    if (modeless == ZELGUI_INVALID_ID) {
        modeless =
            ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 3600, 300, "Modeless dialog", 0, dropModeless, showHelp);
        ZelGUILabelAdd(modeless, 100, 100, "This dialog lets you work on.");
    }
    ZelGUIDialogLaunch(modeless);
}

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Labels", "Text and numbers", launchLabels);
    ZelUtilAddOnRegister("Buttons", "Push buttons and colours", launchButtons);
    ZelUtilAddOnRegister("Toggles", "Check boxes", launchToggles);
    ZelUtilAddOnRegister("Modeless dialog", "A dialog beside the host's other windows", launchModeless);
}
