/* SPDX-License-Identifier: MIT */
/* A dialog as a solver's add-on would have it: it asks for values, validates them on OK, and remembers them. */
#include <zelgui/zelgui.h>

enum { SEED_COUNT = 5000, STEP_LIMIT = 100000 };

static const char *const numberFormat = "%g";

static int dialog = ZELGUI_INVALID_ID;
static int seedsField, stepField, maxStepsField, directionBox, integratorMenu, notesText;

/* The library validates numbers; a set is the add-on's own to look at. */
static int areSeedsValid(void)
{
    IndexSet seeds = 0;
    const char *message = 0;
    if (!ZelGUITextFieldGetSet(seedsField, &seeds))
        message = "Seeds have to be a set of points, such as 1-20,35,50-100:10.";
    else if (ZelUtilSetGetNextMember(seeds, 0) == 0 || ZelUtilSetGetNextMember(seeds, SEED_COUNT) != 0)
        message = "Seeds have to be points from 1 to 5000, at least one of them.";
    ZelUtilSetDealloc(&seeds);
    if (message)
        ZelUtilDialogErrMsg(message);
    return !message;
}

/* A field that answers 0 keeps the focus, with its text selected. */

static int checkStep(const char *text)
{
    (void)text;
    return ZelGUITextFieldValidateDouble(stepField, "Step size", 1e-6, 10);
}

static int checkMaxSteps(const char *text)
{
    (void)text;
    return ZelGUITextFieldValidateLgIndex(maxStepsField, "Maximum steps", 1, STEP_LIMIT, 1);
}

static void moreSteps(void)
{
    ZelGUISpinTextFieldIncLgIndex(maxStepsField, 100, 1, STEP_LIMIT);
}

static void fewerSteps(void)
{
    ZelGUISpinTextFieldIncLgIndex(maxStepsField, -100, 1, STEP_LIMIT);
}

static void integrate(void)
{
    if (areSeedsValid() && checkStep(0) && checkMaxSteps(0))
        ZelGUIDialogDrop(dialog);
}

static void cancel(void)
{
    ZelGUIDialogDrop(dialog);
}

static void setDefaults(void)
{
    ZelGUITextFieldSetString(seedsField, "1-20,35,50-100:10");
    ZelGUITextFieldSetDouble(stepField, 0.25, numberFormat);
    ZelGUITextFieldSetLgIndex(maxStepsField, 0, 1);
    ZelGUIRadioBoxSetToggle(directionBox, 1);
    ZelGUIOptionMenuSetByString(integratorMenu, "Runge-Kutta 4");
    ZelGUITextSetString(notesText, "");
}

/* Labels stand left of their fields, row by row; all numbers are units of the font. */
enum { LABELS = 100, FIELDS = 2000, WIDTH = 2300, LINE = 140, ROW = 190 };

static int y;

static void beginRow(const char *label)
{
    ZelGUILabelAdd(dialog, LABELS, y + 20, label);
}

static void endRow(int height)
{
    y += height + ROW - LINE;
}

static void makeDialog(void)
{
    dialog =
        ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 4400, 1800, "Integrate streamlines", 0, integrate, 0, cancel, 0);
    y = 80;
    beginRow("Seeds:");
    seedsField = ZelGUITextFieldAdd(dialog, FIELDS, y, WIDTH, LINE, 0);
    endRow(LINE);
    beginRow("Step size:");
    stepField = ZelGUITextFieldAdd(dialog, FIELDS, y, WIDTH, LINE, checkStep);
    endRow(LINE);
    beginRow("Maximum steps:");
    maxStepsField = ZelGUISpinTextFieldAdd(dialog, FIELDS, y, WIDTH, LINE, checkMaxSteps, moreSteps, fewerSteps);
    endRow(LINE);
    beginRow("Direction:");
    directionBox = ZelGUIRadioBoxAdd(dialog, FIELDS, y, WIDTH, 3 * LINE, "Forward", "Backward", "Both", 0, 0, 0);
    endRow(3 * LINE);
    beginRow("Integrator:");
    integratorMenu = ZelGUIOptionMenuAdd(dialog, FIELDS, y, WIDTH, LINE, "Euler, Runge-Kutta 2, Runge-Kutta 4", 0);
    endRow(LINE);
    beginRow("Notes:");
    notesText = ZelGUITextAdd(dialog, FIELDS, y, WIDTH, 3 * LINE, 0, 0);
    ZelGUIDialogAddButtonToButtonBox(dialog, "Defaults", 0, setDefaults);
    setDefaults();
}

static void launch(void)
{
    if (dialog == ZELGUI_INVALID_ID)
        makeDialog();
    ZelGUIDialogLaunch(dialog);
}

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Integrate streamlines", "Asks for seeds and step sizes, and validates them", launch);
}
