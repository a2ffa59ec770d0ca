/* SPDX-License-Identifier: MIT */
/* A dialog with everything that scripts can drive; prints each call that it gets. */
#include <zelgui/zelgui.h>

#include <stdio.h>
#include <string.h>

enum { LABELS = 100, FIELDS = 1500, RIGHT = 4000, LINE = 140 };

static int main_ = ZELGUI_INVALID_ID, nested = ZELGUI_INVALID_ID, modeless = ZELGUI_INVALID_ID;
static int second = ZELGUI_INVALID_ID;
static int nameField, layerSpin;

static void say(const char *what)
{
    printf("%s\n", what);
    fflush(stdout);
}

static void sayNumber(const char *what, int number)
{
    printf("%s %d\n", what, number);
    fflush(stdout);
}

/* Callbacks that say what they are called with. */
#define SAYING(callback, what)                                                                                         \
    static void callback(void)                                                                                         \
    {                                                                                                                  \
        say(what);                                                                                                     \
    }
#define SAYING_NUMBER(callback, what)                                                                                  \
    static void callback(const int *value)                                                                             \
    {                                                                                                                  \
        sayNumber(what, *value);                                                                                       \
    }
SAYING(exported, "exported")
SAYING(iconPressed, "icon")
SAYING_NUMBER(gridSwitched, "grid")
SAYING_NUMBER(sideChosen, "side")
SAYING_NUMBER(kindChosen, "kind")
SAYING_NUMBER(opacitySet, "opacity")
SAYING_NUMBER(opacityDragged, "dragged from")
SAYING_NUMBER(axesSwitched, "axes")
SAYING_NUMBER(iconSwitched, "icon toggle")
SAYING_NUMBER(solverSelected, "solver")

static int nameLeft(const char *text)
{
    printf("name %s\n", text);
    fflush(stdout);
    if (strcmp(text, "bad") != 0)
        return 1;
    ZelUtilDialogErrMsg("This name is bad.");
    return 0;
}

static int notesChanged(const char *text)
{
    printf("notes [%s]\n", text);
    fflush(stdout);
    return 1;
}

static int layerLeft(const char *text)
{
    printf("layer %s\n", text);
    fflush(stdout);
    return 1;
}

static void layerUp(void)
{
    say("layer up");
    ZelGUISpinTextFieldIncLgIndex(layerSpin, 1, 1, 40);
}

static void layerDown(void)
{
    say("layer down");
    ZelGUISpinTextFieldIncLgIndex(layerSpin, -1, 1, 40);
}

static void zonesSelected(const int *positions)
{
    printf("zones");
    for (; *positions; ++positions)
        printf(" %d", *positions);
    say("");
}

static void pageShown(const int *page)
{
    (void)page;
    say("page shown");
}

static void complain(void)
{
    say("complain");
    ZelUtilDialogErrMsg("First complaint.");
    ZelUtilDialogErrMsg("Second complaint.");
}

static void hang(void)
{
    for (;;) {
    }
}

static void moodChosen(const int *value)
{
    sayNumber("mood", *value);
}

static void addFew(int dialog)
{
    ZelGUIButtonAdd(dialog, 100, 100, 1200, 130, "Complain", complain);
    ZelGUILabelAdd(dialog, 100, 300, "Mood:");
    ZelGUIOptionMenuAdd(dialog, 700, 300, 1200, LINE, "Calm, Bright", moodChosen);
}

static void nestedOk(void)
{
    say("nested ok");
    ZelGUIDialogDrop(nested);
}

static void openNested(void)
{
    say("open nested");
    if (nested == ZELGUI_INVALID_ID) {
        nested = ZelGUIDialogCreateModal(main_, 2000, 500, "Nested", 0, nestedOk, 0, nestedOk, 0);
        addFew(nested);
    }
    ZelGUIDialogLaunch(nested);
    say("nested is over");
}

static void modelessClosed(void)
{
    say("modeless closed");
    ZelGUIDialogDrop(modeless);
}

static void launchModeless(void)
{
    if (modeless == ZELGUI_INVALID_ID) {
        modeless = ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 2000, 500, "Modeless", 0, modelessClosed, 0);
        addFew(modeless);
    }
    ZelGUIDialogLaunch(modeless);
}

static void secondClosed(void)
{
    say("second closed");
    ZelGUIDialogDrop(second);
}

static void launchSecond(void)
{
    if (second == ZELGUI_INVALID_ID) {
        second = ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 2000, 500, "Second", 0, secondClosed, 0);
        ZelGUIButtonAdd(second, 100, 100, 1200, 130, "Complain", complain);
    }
    ZelGUIDialogLaunch(second);
}

static void okPressed(void)
{
    say("ok");
    ZelGUIDialogDrop(main_);
}

static void cancelled(void)
{
    say("cancel");
    ZelGUIDialogDrop(main_);
}

static void addFields(void)
{
    ZelGUILabelAdd(main_, LABELS, 50, "Name:");
    nameField = ZelGUITextFieldAdd(main_, FIELDS, 50, 2000, LINE, nameLeft);
    ZelGUILabelAdd(main_, LABELS, 250, "Layer:");
    layerSpin = ZelGUISpinTextFieldAdd(main_, FIELDS, 250, 2000, LINE, layerLeft, layerUp, layerDown);
    ZelGUITextFieldSetLgIndex(layerSpin, 7, 0);
    ZelGUILabelAdd(main_, LABELS, 450, "Kind:");
    ZelGUIOptionMenuAdd(main_, FIELDS, 450, 2000, LINE, "Euler, RK 4, RK 4, Adams", kindChosen);
    ZelGUILabelAdd(main_, LABELS, 650, "Side:");
    ZelGUIRadioBoxAdd(main_, FIELDS, 650, 2000, 3 * LINE, "Left", "Right", "Both", 0, 0, sideChosen);
    ZelGUILabelAdd(main_, LABELS, 1250, "Opacity:");
    ZelGUIScaleAdd(main_, FIELDS, 1250, 2000, LINE, 0, 1000, 0, opacitySet, opacityDragged);
    ZelGUILabelAdd(main_, LABELS, 1450, "Notes:");
    ZelGUITextSetString(ZelGUITextAdd(main_, FIELDS, 1450, 2000, 3 * LINE, 0, notesChanged), "one\ntwo");
}

static void addButtons(void)
{
    static const unsigned char pixel[3] = {200, 40, 40};
    int frozen;
    ZelGUIToggleAdd(main_, RIGHT, 50, 1500, LINE, "Show &grid", gridSwitched);
    ZelGUIButtonAdd(main_, RIGHT, 250, 1500, LINE, "Open &nested", openNested);
    ZelGUIButtonAdd(main_, RIGHT, 450, 1500, LINE, "&Complain", complain);
    frozen = ZelGUIButtonAdd(main_, RIGHT, 650, 1500, LINE, "Frozen", 0);
    ZelGUISetSensitivity(frozen, 0);
    ZelGUISetVisibility(ZelGUIButtonAdd(main_, RIGHT, 850, 1500, LINE, "Ghost", 0), 0);
    ZelGUIButtonAdd(main_, RIGHT, 1050, 1500, LINE, "Hang", hang);
    ZelGUIBitmapButtonAdd(main_, RIGHT, 1250, 700, LINE, 1, 1, pixel, 0, 0, 0, 0, iconPressed);
    ZelGUIBitmapToggleAdd(main_, RIGHT + 800, 1250, 700, LINE, 1, 1, pixel, 0, 0, 0, 0, iconSwitched);
    ZelGUIToggleAdd(main_, RIGHT, 1450, 700, LINE, "Twin", 0);
    ZelGUIToggleAdd(main_, RIGHT + 800, 1450, 700, LINE, "Twin", 0);
}

static void addLists(void)
{
    static const char *const zones[] = {"Wing", "Slat", "Flap", "Pylon", "Flap"};
    int list, i;
    ZelGUILabelAdd(main_, 6000, 50, "Zones:");
    list = ZelGUIListAdd(main_, 6000, 200, 1500, 500, 1, zonesSelected);
    for (i = 0; i < 40; ++i)
        ZelGUIListAppendItem(list, i < 5 ? zones[i] : "Filler");
    ZelGUIListAppendItem(list, "Far field");
    ZelGUILabelAdd(main_, 6000, 800, "Solver:");
    list = ZelGUIListAdd(main_, 6000, 950, 1500, 500, 0, solverSelected);
    ZelGUIListAppendItem(list, "Inviscid");
    ZelGUIListAppendItem(list, "Laminar");
}

static void addTabsAndMenus(void)
{
    const int tab = ZelGUITabAdd(main_, LABELS, 2150, 7300, 500, pageShown, 0);
    const int lines = ZelGUITabAddPage(tab, "Lines"), shading = ZelGUITabAddPage(tab, "Shading");
    int bar, file, export, view;
    ZelGUIToggleAdd(lines, 100, 100, 2000, LINE, "Show lines", 0);
    ZelGUIToggleAdd(shading, 100, 100, 2000, LINE, "Smooth", 0);
    bar = ZelGUIMenuBarAdd(main_);
    file = ZelGUIMenuAdd(bar, "&File");
    export = ZelGUIMenuAdd(file, "&Export");
    ZelGUIMenuAddItem(export, "Image/&Table", 0, exported);
    view = ZelGUIMenuAdd(bar, "&View");
    ZelGUIMenuAddToggle(view, "&Axes", 0, axesSwitched);
}

static void launch(void)
{
    if (main_ == ZELGUI_INVALID_ID) {
        main_ = ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 7600, 2700, "Everything", 0, okPressed, 0, cancelled, 0);
        addFields();
        addButtons();
        addLists();
        addTabsAndMenus();
    }
    ZelGUIDialogLaunch(main_);
    say("everything is over");
}

static void launchNothing(void)
{
    complain();
}

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Everything", "", launch);
    ZelUtilAddOnRegister("Modeless", "", launchModeless);
    ZelUtilAddOnRegister("Second", "", launchSecond);
    ZelUtilAddOnRegister("Complaint", "", launchNothing);
    ZelUtilAddOnRegister("Twice", "", launchModeless);
    ZelUtilAddOnRegister("Twice", "", launchNothing);
}
