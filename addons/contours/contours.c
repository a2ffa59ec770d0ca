/* SPDX-License-Identifier: MIT */
/* A larger dialog, as a plotting add-on would have it: tabs, a list of levels, a scale, frames and a menu bar. */
#include <zelgui/zelgui.h>

#include <stdio.h>

enum { MOST_LEVELS = 50 };

static int dialog = ZELGUI_INVALID_ID;
static int countScale, levelList, selectionLabel, legendToggle, gridItem, lineWidthSpin;

/* The levels of the list, evenly spaced between 0 and 1. */
static void makeLevels(int count)
{
    int i;
    ZelGUIListDeleteAllItems(levelList);
    for (i = 1; i <= count; ++i) {
        char text[32];
        sprintf(text, "%.4f", (double)i / (count + 1));
        ZelGUIListAppendItem(levelList, text);
    }
}

static void showSelection(void)
{
    int *positions = 0, count = 0;
    char *memory;
    ZelGUIListGetSelectedItems(levelList, &positions, &count);
    /* Arrays are released as strings are. */
    memory = (char *)positions;
    ZelUtilStringDealloc(&memory);
    ZelGUILabelSetDouble(selectionLabel, count, "%.0f selected");
}

static void levelsSelected(const int *positions)
{
    (void)positions;
    showSelection();
}

static void countChanged(const int *count)
{
    makeLevels(*count);
    showSelection();
}

static void selectAll(void)
{
    ZelGUIListSelectAllItems(levelList);
    showSelection();
}

static void selectNone(void)
{
    ZelGUIListDeselectAllItems(levelList);
    showSelection();
}

static void selectEveryOther(void)
{
    int positions[MOST_LEVELS], count = 0, i;
    for (i = 1; i <= ZelGUIListGetItemCount(levelList); i += 2)
        positions[count++] = i;
    ZelGUIListDeselectAllItems(levelList);
    ZelGUIListSetSelectedItems(levelList, positions, count);
    showSelection();
}

static void deleteSelected(void)
{
    int position;
    while ((position = ZelGUIListGetSelectedItem(levelList)) > 0)
        ZelGUIListDeleteItemAtPos(levelList, position);
    showSelection();
}

static void gridSwitched(const int *isOn)
{
    ZelGUISetSensitivity(legendToggle, *isOn != 0);
}

static void wider(void)
{
    ZelGUISpinTextFieldIncDouble(lineWidthSpin, "%.1f", 0.1, 0.1, 5);
}

static void narrower(void)
{
    ZelGUISpinTextFieldIncDouble(lineWidthSpin, "%.1f", -0.1, 0.1, 5);
}

static int checkLineWidth(const char *text)
{
    (void)text;
    return ZelGUITextFieldValidateDouble(lineWidthSpin, "Line width", 0.1, 5);
}

static void plot(void)
{
    if (!checkLineWidth(0))
        return;
    if (ZelGUIListGetItemCount(levelList) == 0)
        ZelUtilDialogErrMsg("There has to be at least one level.");
    else
        ZelGUIDialogDrop(dialog);
}

static void cancel(void)
{
    ZelGUIDialogDrop(dialog);
}

static void addLevelsPage(int page)
{
    int frame;
    ZelGUILabelAdd(page, 100, 200, "Number:");
    countScale = ZelGUIScaleAdd(page, 1200, 190, 2600, 150, 1, MOST_LEVELS, 0, countChanged, 0);
    frame = ZelGUIFrameAdd(page, 100, 480, 3800, 1000, "Levels");
    levelList = ZelGUIListAdd(frame, 100, 220, 2000, 740, 1, levelsSelected);
    ZelGUIButtonAdd(frame, 2300, 220, 1300, 130, "Delete", deleteSelected);
    selectionLabel = ZelGUILabelAdd(frame, 2300, 420, "00 selected");
}

static void addAppearancePage(int page)
{
    int frame = ZelGUIFrameAdd(page, 100, 150, 3800, 700, "Lines");
    ZelGUILabelAdd(frame, 100, 270, "Width (mm):");
    lineWidthSpin = ZelGUISpinTextFieldAdd(frame, 1600, 250, 1200, 140, checkLineWidth, wider, narrower);
    ZelGUITextFieldSetDouble(lineWidthSpin, 0.4, "%.1f");
    ZelGUILabelAdd(frame, 100, 470, "Pattern:");
    ZelGUIOptionMenuAdd(frame, 1600, 450, 1800, 140, "Solid, Dashed, Dotted", 0);
    ZelGUIHorzSeparatorAdd(page, 100, 930, 3800);
    legendToggle = ZelGUIToggleAdd(page, 100, 1000, 3000, 140, "Legend on the &grid", 0);
}

static void addMenus(void)
{
    const int bar = ZelGUIMenuBarAdd(dialog);
    const int levels = ZelGUIMenuAdd(bar, "&Levels");
    const int select = ZelGUIMenuAdd(levels, "&Select");
    const int view = ZelGUIMenuAdd(bar, "&View");
    ZelGUIMenuAddItem(select, "&All", 0, selectAll);
    ZelGUIMenuAddItem(select, "&None", 0, selectNone);
    ZelGUIMenuAddItem(select, "&Every other", 0, selectEveryOther);
    ZelGUIMenuAddSeparator(levels);
    ZelGUIMenuAddItem(levels, "&Delete selected", 0, deleteSelected);
    gridItem = ZelGUIMenuAddToggle(view, "&Grid", 0, gridSwitched);
}

static void launch(void)
{
    if (dialog == ZELGUI_INVALID_ID) {
        int tab, levelsPage, appearancePage;
        dialog = ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 4300, 1950, "Contour levels", 0, plot, 0, cancel, 0);
        tab = ZelGUITabAdd(dialog, 100, 250, 4100, 1650, 0, 0);
        levelsPage = ZelGUITabAddPage(tab, "Levels");
        appearancePage = ZelGUITabAddPage(tab, "Appearance");
        /* A menu bar moves what is there by its height, at every depth: now, only the tabs. */
        addMenus();
        addLevelsPage(levelsPage);
        addAppearancePage(appearancePage);
        ZelGUIMenuSetToggle(gridItem, 1);
        ZelGUIScaleSetValue(countScale, 8);
        makeLevels(8);
        selectEveryOther();
    }
    ZelGUIDialogLaunch(dialog);
}

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Contour levels", "Chooses the levels of contour lines and how they look", launch);
}
