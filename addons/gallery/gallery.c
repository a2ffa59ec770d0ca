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

/* Bitmap buttons and toggles */

enum { ICON = 16 };

static int bitmaps = ZELGUI_INVALID_ID;

/* A disk of one colour on magenta, which is made transparent. */
static void drawDisk(unsigned char *rgb, unsigned char red, unsigned char green, unsigned char blue)
{
    int x, y;
    for (y = 0; y < ICON; ++y) {
        for (x = 0; x < ICON; ++x) {
            const int dx = 2 * x + 1 - ICON, dy = 2 * y + 1 - ICON;
            const int isInside = dx * dx + dy * dy < ICON * ICON;
            *rgb++ = isInside ? red : 255;
            *rgb++ = isInside ? green : 0;
            *rgb++ = isInside ? blue : 255;
        }
    }
}

static void launchBitmaps(void)
{
    if (bitmaps == ZELGUI_INVALID_ID) {
        unsigned char disk[ICON * ICON * 3];
        int button, toggle;
        bitmaps = makeDialog(3600, 500, "Bitmap buttons");
        drawDisk(disk, 200, 40, 40);
        ZelGUILabelAdd(bitmaps, 100, 80, "Buttons:");
        /* Without a text, only its tool tip says what a button is for. */
        button = ZelGUIBitmapButtonAdd(bitmaps, 1300, 50, 400, 180, ICON, ICON, disk, 1, 255, 0, 255, 0);
        ZelGUISetToolTip(button, "Disk on a transparent ground");
        button = ZelGUIBitmapButtonAdd(bitmaps, 1800, 50, 400, 180, ICON, ICON, disk, 0, 0, 0, 0, 0);
        ZelGUISetToolTip(button, "Disk on a coloured ground");
        drawDisk(disk, 40, 120, 60);
        ZelGUILabelAdd(bitmaps, 100, 310, "Toggles:");
        toggle = ZelGUIBitmapToggleAdd(bitmaps, 1300, 280, 400, 180, ICON, ICON, disk, 1, 255, 0, 255, 0);
        ZelGUISetToolTip(toggle, "Inlets");
        ZelGUIToggleSet(toggle, 1);
        toggle = ZelGUIBitmapToggleAdd(bitmaps, 1800, 280, 400, 180, ICON, ICON, disk, 1, 255, 0, 255, 0);
        ZelGUISetToolTip(toggle, "Outlets");
    }
    launch(bitmaps);
}

/* Radio boxes */

static int radios = ZELGUI_INVALID_ID, radioState;

static void radioChanged(const int *position)
{
    static const char *const texts[] = {"One blade", "Two blades", "Three blades"};
    ZelGUILabelSetText(radioState, texts[*position - 1]);
}

static void launchRadios(void)
{
    if (radios == ZELGUI_INVALID_ID) {
        int box;
        radios = makeDialog(3600, 650, "Radio boxes");
        box = ZelGUIRadioBoxAdd(radios, 100, 50, 1500, 420, "One", "Two", "Three", 0, 0, radioChanged);
        ZelGUIRadioBoxSetToggle(box, 2);
        ZelGUIRadioBoxAdd(radios, 1800, 50, 1500, 420, "Inlet", "Outlet", "Wall", 0, 0, 0);
        radioState = ZelGUILabelAdd(radios, 100, 520, "Three blades");
        ZelGUILabelSetText(radioState, "Two blades");
    }
    launch(radios);
}

/* Option menus */

static int menus = ZELGUI_INVALID_ID, menu, menuState;

static void menuChanged(const int *position)
{
    char *text = ZelGUIOptionMenuGetString(menu, *position);
    ZelGUILabelSetText(menuState, text);
    ZelUtilStringDealloc(&text);
}

static void launchMenus(void)
{
    if (menus == ZELGUI_INVALID_ID) {
        menus = makeDialog(3600, 450, "Option menus");
        ZelGUILabelAdd(menus, 100, 70, "Variable:");
        menu = ZelGUIOptionMenuAdd(menus, 1300, 50, 2000, 140, "Pressure, Temperature", menuChanged);
        ZelGUIOptionMenuAppendItem(menu, "Velocity (x, y, z)");
        ZelGUIOptionMenuSet(menu, 3);
        ZelGUILabelAdd(menus, 100, 270, "Chosen:");
        menuState = ZelGUILabelAdd(menus, 1300, 270, "Velocity (x, y, z)");
    }
    launch(menus);
}

/* Text fields */

static int fields = ZELGUI_INVALID_ID, angleField, pointField;

static int checkAngle(const char *text)
{
    (void)text;
    return ZelGUITextFieldValidateDouble(angleField, "Angle", 0, 360);
}

static int checkPoint(const char *text)
{
    (void)text;
    return ZelGUITextFieldValidateLgIndex(pointField, "Point", 1, 1000, 1);
}

static void launchFields(void)
{
    if (fields == ZELGUI_INVALID_ID) {
        int field;
        fields = makeDialog(4500, 850, "Text fields");
        ZelGUILabelAdd(fields, 100, 70, "Title:");
        field = ZelGUITextFieldAdd(fields, 2000, 50, 2300, 140, 0);
        ZelGUITextFieldSetString(field, "Wing at 12\xC2\xB0");
        ZelGUILabelAdd(fields, 100, 270, "Angle (0 to 360):");
        angleField = ZelGUITextFieldAdd(fields, 2000, 250, 2300, 140, checkAngle);
        ZelGUITextFieldSetDouble(angleField, 12.5, "%.3f");
        ZelGUILabelAdd(fields, 100, 470, "Point (1 to Mx):");
        pointField = ZelGUITextFieldAdd(fields, 2000, 450, 2300, 140, checkPoint);
        ZelGUITextFieldSetLgIndex(pointField, -3, 1);
        ZelGUILabelAdd(fields, 100, 670, "Zones:");
        field = ZelGUITextFieldAdd(fields, 2000, 650, 2300, 140, 0);
        ZelGUITextFieldSetString(field, "[1-3,5,7-9]");
    }
    launch(fields);
}

/* Spin text fields */

static int spins = ZELGUI_INVALID_ID, widthSpin, layerSpin;

static void wider(void)
{
    ZelGUISpinTextFieldIncDouble(widthSpin, "%.1f", 0.1, 0, 10);
}

static void narrower(void)
{
    ZelGUISpinTextFieldIncDouble(widthSpin, "%.1f", -0.1, 0, 10);
}

static void nextLayer(void)
{
    ZelGUISpinTextFieldIncLgIndex(layerSpin, 1, 1, 40);
}

static void previousLayer(void)
{
    ZelGUISpinTextFieldIncLgIndex(layerSpin, -1, 1, 40);
}

static void launchSpins(void)
{
    if (spins == ZELGUI_INVALID_ID) {
        spins = makeDialog(3600, 450, "Spin text fields");
        ZelGUILabelAdd(spins, 100, 70, "Line width:");
        widthSpin = ZelGUISpinTextFieldAdd(spins, 1900, 50, 1200, 140, 0, wider, narrower);
        ZelGUITextFieldSetDouble(widthSpin, 0.4, "%.1f");
        ZelGUILabelAdd(spins, 100, 270, "Layer (1 to 40):");
        layerSpin = ZelGUISpinTextFieldAdd(spins, 1900, 250, 1200, 140, 0, nextLayer, previousLayer);
        ZelGUITextFieldSetLgIndex(layerSpin, 7, 0);
    }
    launch(spins);
}

/* Multi-line text */

static int texts = ZELGUI_INVALID_ID, commands;

static void appendCommand(void)
{
    ZelGUITextAppendString(commands, "\niterate 100");
}

static void launchTexts(void)
{
    if (texts == ZELGUI_INVALID_ID) {
        int report;
        texts = makeDialog(4200, 1150, "Multi-line text");
        ZelGUILabelAdd(texts, 100, 50, "Commands, in a font of fixed pitch:");
        commands = ZelGUITextAdd(texts, 100, 180, 3900, 360, 0, 0);
        ZelGUITextUseFixedPitchFont(commands, 1);
        ZelGUITextAllowWordWrap(commands, 0);
        ZelGUITextSetString(commands, "read  wing.grid\nset   mach 0.8");
        ZelGUILabelAdd(texts, 100, 600, "Report, read-only:");
        report = ZelGUITextAdd(texts, 100, 730, 3900, 360, 1, 0);
        ZelGUITextAllowWordWrap(report, 1);
        ZelGUITextSetString(report,
                            "The residuals have fallen by four orders of magnitude. Lines that are too long are "
                            "broken between words.");
        ZelGUIDialogAddButtonToButtonBox(texts, "Append", 0, appendCommand);
    }
    launch(texts);
}

/* Menu bars */

static int menuBars = ZELGUI_INVALID_ID, legendItem, menuBarState;

static void openFile(void)
{
    ZelGUILabelSetText(menuBarState, "Open was chosen.");
}

static void exportImage(void)
{
    ZelGUILabelSetText(menuBarState, "Export / Image was chosen.");
}

static void exportTable(void)
{
    ZelGUILabelSetText(menuBarState, "Export / Table was chosen.");
}

static void legendChanged(const int *isOn)
{
    ZelGUILabelSetText(menuBarState, *isOn ? "The legend is shown." : "The legend is hidden.");
}

static void hideLegend(void)
{
    ZelGUIMenuSetToggle(legendItem, 0);
}

static void launchMenuBars(void)
{
    if (menuBars == ZELGUI_INVALID_ID) {
        int bar, file, export, view;
        menuBars = makeDialog(3600, 650, "Menus");
        ZelGUILabelAdd(menuBars, 100, 50, "This was here before the bar.");
        menuBarState = ZelGUILabelAdd(menuBars, 100, 200, "Export / Image was chosen.");
        ZelGUIButtonAdd(menuBars, 100, 400, 1500, 130, "&Hide legend", hideLegend);
        bar = ZelGUIMenuBarAdd(menuBars);
        file = ZelGUIMenuAdd(bar, "&File");
        ZelGUIMenuAddItem(file, "&Open...", 0, openFile);
        export = ZelGUIMenuAdd(file, "&Export");
        ZelGUIMenuAddItem(export, "&Image", 0, exportImage);
        ZelGUIMenuAddItem(export, "&Table", 0, exportTable);
        ZelGUIMenuAddSeparator(file);
        ZelGUIMenuAddItem(file, "&Close", 0, dropCurrent);
        view = ZelGUIMenuAdd(bar, "&View");
        legendItem = ZelGUIMenuAddToggle(view, "&Legend", 0, legendChanged);
        ZelGUIMenuAddToggle(view, "&Axes", 0, 0);
        ZelGUIMenuSetToggle(legendItem, 1);
    }
    launch(menuBars);
}

/* Lists */

static int lists = ZELGUI_INVALID_ID, zoneList, zoneState;

static void noteZoneCount(void)
{
    int *zones = 0, zoneCount = 0;
    char *memory;
    ZelGUIListGetSelectedItems(zoneList, &zones, &zoneCount);
    ZelGUILabelSetDouble(zoneState, zoneCount, "%.0f selected");
    /* Arrays are released as strings are. */
    memory = (char *)zones;
    ZelUtilStringDealloc(&memory);
}

static void zonesChanged(const int *positions)
{
    (void)positions;
    noteZoneCount();
}

static void selectAllZones(void)
{
    ZelGUIListSelectAllItems(zoneList);
    noteZoneCount();
}

static void launchLists(void)
{
    if (lists == ZELGUI_INVALID_ID) {
        static const char *const zones[] = {"Wing", "Slat", "Flap", "Fuselage", "Nacelle", "Pylon", "Farfield"};
        static const int first[] = {1, 3};
        int list, i;
        StringList_s *solvers = ZelUtilStringListAlloc();
        ZelUtilStringListAppendString(solvers, "Inviscid");
        ZelUtilStringListAppendString(solvers, "Laminar");
        ZelUtilStringListAppendString(solvers, "Turbulent");
        lists = makeDialog(4200, 950, "Lists");
        ZelGUILabelAdd(lists, 100, 50, "Solver:");
        list = ZelGUIListAdd(lists, 100, 180, 1900, 560, 0, 0);
        ZelGUIListSetItems(list, solvers);
        ZelUtilStringListDealloc(&solvers);
        ZelGUIListAppendItem(list, "LES (\xCE\x94 = 2h)");
        ZelGUIListSetSelectedItem(list, 3);
        ZelGUILabelAdd(lists, 2200, 50, "Zones:");
        zoneList = ZelGUIListAdd(lists, 2200, 180, 1900, 560, 1, zonesChanged);
        for (i = 0; i < (int)(sizeof zones / sizeof *zones); ++i)
            ZelGUIListAppendItem(zoneList, zones[i]);
        ZelGUIListSetSelectedItems(zoneList, first, 2);
        zoneState = ZelGUILabelAdd(lists, 2200, 790, "0000000 selected");
        noteZoneCount();
        ZelGUIDialogAddButtonToButtonBox(lists, "All zones", 0, selectAllZones);
    }
    launch(lists);
}

/* Scales */

static int scales = ZELGUI_INVALID_ID, dragState;

static void opacityChanged(const int *percent)
{
    ZelGUILabelSetText(dragState, *percent == 100 ? "Opaque" : "Translucent");
}

static void launchScales(void)
{
    if (scales == ZELGUI_INVALID_ID) {
        int scale;
        scales = makeDialog(4200, 700, "Scales");
        ZelGUILabelAdd(scales, 100, 180, "Opacity (%):");
        scale = ZelGUIScaleAdd(scales, 1600, 170, 2400, 150, 0, 100, 0, opacityChanged, 0);
        ZelGUIScaleSetValue(scale, 40);
        ZelGUILabelAdd(scales, 100, 480, "Time step:");
        scale = ZelGUIScaleAdd(scales, 1600, 470, 2400, 150, 1, 24, 0, 0, 0);
        ZelGUIScaleShowNumericDisplay(scale, 0);
        dragState = ZelGUILabelAdd(scales, 1600, 330, "Translucent");
    }
    launch(scales);
}

/* Forms */

static int forms = ZELGUI_INVALID_ID, pages[2];

static void pageChosen(const int *position)
{
    ZelGUIFormSetCurrentPage(pages[*position - 1]);
}

static void launchForms(void)
{
    if (forms == ZELGUI_INVALID_ID) {
        int form, field;
        forms = makeDialog(4200, 700, "Forms");
        ZelGUILabelAdd(forms, 100, 70, "Cut by:");
        ZelGUIOptionMenuAdd(forms, 1600, 50, 2400, 140, "Plane, Sphere", pageChosen);
        form = ZelGUIFormAdd(forms, 100, 250, 3900, 400);
        pages[0] = ZelGUIFormAddPage(form);
        ZelGUILabelAdd(pages[0], 1, 20, "Distance:");
        field = ZelGUITextFieldAdd(pages[0], 1500, 1, 2380, 140, 0);
        ZelGUITextFieldSetDouble(field, 0.75, "%g");
        pages[1] = ZelGUIFormAddPage(form);
        ZelGUILabelAdd(pages[1], 1, 20, "Radius:");
        ZelGUITextFieldAdd(pages[1], 1500, 1, 2380, 140, 0);
        ZelGUILabelAdd(pages[1], 1, 210, "Center:");
        ZelGUITextFieldAdd(pages[1], 1500, 190, 2380, 140, 0);
    }
    launch(forms);
}

/* Tabs */

static int tabs = ZELGUI_INVALID_ID, visits[2];

static void pageShown(const int *page)
{
    ZelGUILabelSetText(visits[0], "Seen again");
    ZelGUILabelSetText(visits[1], "Seen");
    (void)page;
}

static void launchTabs(void)
{
    if (tabs == ZELGUI_INVALID_ID) {
        int tab, page, i;
        static const char *const names[] = {"Lines", "Shading"};
        tabs = makeDialog(4200, 900, "Tabs");
        tab = ZelGUITabAdd(tabs, 100, 250, 3900, 600, pageShown, 0);
        for (i = 0; i < 2; ++i) {
            page = ZelGUITabAddPage(tab, names[i]);
            ZelGUIToggleAdd(page, 100, 80, 3000, 140, i == 0 ? "Show lines" : "Smooth shading", 0);
            visits[i] = ZelGUILabelAdd(page, 100, 300, "Not seen again");
        }
    }
    launch(tabs);
}

/* Frames and separators */

static int frames = ZELGUI_INVALID_ID;

static void launchFrames(void)
{
    if (frames == ZELGUI_INVALID_ID) {
        int frame;
        frames = makeDialog(4400, 900, "Frames and separators");
        frame = ZelGUIFrameAdd(frames, 100, 150, 1900, 450, "With a title");
        ZelGUIToggleAdd(frame, 100, 200, 1700, 140, "Inside", 0);
        ZelGUIFrameAdd(frames, 2400, 150, 1900, 450, 0);
        ZelGUIToggleAdd(frames, 2500, 250, 1700, 140, "Above one", 0);
        ZelGUIVertSeparatorAdd(frames, 2200, 100, 500);
        ZelGUIHorzSeparatorAdd(frames, 100, 720, 4200);
    }
    launch(frames);
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
    ZelUtilAddOnRegister("Bitmap buttons", "Buttons and toggles with pictures", launchBitmaps);
    ZelUtilAddOnRegister("Radio boxes", "One choice of a few", launchRadios);
    ZelUtilAddOnRegister("Option menus", "One choice of many", launchMenus);
    ZelUtilAddOnRegister("Text fields", "Text, numbers and sets", launchFields);
    ZelUtilAddOnRegister("Spin text fields", "Numbers with arrows", launchSpins);
    ZelUtilAddOnRegister("Multi-line text", "Text of several lines", launchTexts);
    ZelUtilAddOnRegister("Menus", "Menu bar, sub-menu, items, toggles", launchMenuBars);
    ZelUtilAddOnRegister("Lists", "Any number of choices", launchLists);
    ZelUtilAddOnRegister("Scales", "Sliders with their value", launchScales);
    ZelUtilAddOnRegister("Forms", "Pages that the add-on switches", launchForms);
    ZelUtilAddOnRegister("Tabs", "Pages that the user switches", launchTabs);
    ZelUtilAddOnRegister("Frames and separators", "What groups and divides", launchFrames);
    ZelUtilAddOnRegister("Modeless dialog", "A dialog beside the host's other windows", launchModeless);
}
