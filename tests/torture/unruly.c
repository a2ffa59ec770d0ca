/* SPDX-License-Identifier: MIT */
/* An add-on with a dialog of everything, all of it reached by mnemonics too, whose callbacks do what comes to mind:
 * messages, other dialogs, dropped dialogs, the focus elsewhere, other values, pages, menus, sensitivity, visibility.
 */
#include <zelgui/zelgui.h>

enum { DIALOGS = 3, MOST_WIDGETS = 200, MOST_LAUNCHES = 3 };

static int dialogs[DIALOGS] = {ZELGUI_INVALID_ID, ZELGUI_INVALID_ID, ZELGUI_INVALID_ID};
static int widgets[MOST_WIDGETS], widgetCount, launches, messages;
static unsigned state = 1;

/* A number below `count`. The same callbacks in the same order draw the same numbers. */
static int draw(int count)
{
    state = state * 1664525u + 1013904223u;
    return (int)(state >> 8) % count;
}

static int keep(int widget)
{
    if (widgetCount < MOST_WIDGETS)
        widgets[widgetCount++] = widget;
    return widget;
}

static int any(void)
{
    return widgets[draw(widgetCount)];
}

static void launch(int number);

static void setAnything(void)
{
    static const char *const texts[] = {"", "7", "1-5", "bad", "&Mnemonic"};
    const char *const text = texts[draw(5)];
    ZelGUITextFieldSetString(any(), text);
    ZelGUITextSetString(any(), text);
    ZelGUIToggleSet(any(), (ZelBoolean)draw(2));
    ZelGUIScaleSetValue(any(), draw(10));
    ZelGUIOptionMenuSet(any(), draw(4));
    ZelGUIRadioBoxSetToggle(any(), draw(4));
    ZelGUIListSetSelectedItem(any(), draw(9));
    ZelGUIMenuSetToggle(any(), (ZelBoolean)draw(2));
    ZelGUIButtonSetText(any(), text);
    ZelGUILabelSetText(any(), text);
}

static void changeItems(void)
{
    const int list = any(), menu = any();
    if (draw(3) == 0) {
        ZelGUIListDeleteAllItems(list);
        ZelGUIOptionMenuDeleteItemAtPos(menu, draw(3));
    }
    ZelGUIListAppendItem(list, "Another");
    ZelGUIOptionMenuAppendItem(menu, "Another");
}

static void doAnything(void)
{
    switch (draw(24)) {
    case 0:
    case 1:
        /* A message within messages says nothing new. */
        if (messages < 2) {
            ++messages;
            ZelUtilDialogErrMsg("So not.");
            --messages;
        }
        break;
    case 2:
        launch(draw(DIALOGS));
        break;
    case 3:
        ZelGUIDialogDrop(dialogs[draw(DIALOGS)]);
        break;
    case 4:
        ZelGUISetInputFocus(any());
        break;
    case 5:
        ZelGUISetSensitivity(any(), draw(4) > 0);
        break;
    case 6:
        ZelGUISetVisibility(any(), draw(4) > 0);
        break;
    case 7:
        setAnything();
        break;
    case 8:
        changeItems();
        break;
    case 9:
        ZelGUITabSetCurrentPage(any(), any());
        ZelGUIFormSetCurrentPage(any());
        break;
    case 10:
        ZelGUIButtonSetDefault(dialogs[draw(DIALOGS)], any());
        break;
    case 11:
        ZelGUIMenuAddItem(any(), "&New", 0, doAnything);
        break;
    default:
        break;
    }
}

static void changed(const int *value)
{
    (void)value;
    doAnything();
}

static int edited(const char *text)
{
    doAnything();
    return *text != 'b' && draw(8) > 0;
}

static void step(void)
{
    ZelGUISpinTextFieldIncLgIndex(any(), 1, -5, 5);
    doAnything();
}

static void drop(int number)
{
    doAnything();
    ZelGUIDialogDrop(dialogs[number]);
}

static void dropFirst(void)
{
    drop(0);
}

static void dropSecond(void)
{
    drop(1);
}

static void dropModeless(void)
{
    drop(2);
}

static void addMenus(int dialog)
{
    const int bar = ZelGUIMenuBarAdd(dialog), file = keep(ZelGUIMenuAdd(bar, "&File"));
    const int view = keep(ZelGUIMenuAdd(bar, "&View")), more = keep(ZelGUIMenuAdd(file, "&More"));
    keep(ZelGUIMenuAddItem(file, "&Open...", 0, doAnything));
    keep(ZelGUIMenuAddItem(more, "&Image", 0, doAnything));
    keep(ZelGUIMenuAddToggle(view, "&Axes", 0, changed));
}

/* What stands on each page and in the dialog itself, two columns wide. */
static void fill(int parent, int y)
{
    int list;
    keep(ZelGUITextFieldAdd(parent, 50, y, 900, 130, edited));
    keep(ZelGUISpinTextFieldAdd(parent, 1000, y, 900, 130, edited, step, step));
    keep(ZelGUIToggleAdd(parent, 50, y + 150, 900, 130, "&Toggle", changed));
    keep(ZelGUIButtonAdd(parent, 1000, y + 150, 900, 130, "&Push", doAnything));
    keep(ZelGUIOptionMenuAdd(parent, 50, y + 300, 900, 130, "One,Two,Three", changed));
    keep(ZelGUIRadioBoxAdd(parent, 1000, y + 300, 900, 200, "&Either", "&Or", 0, 0, 0, changed));
    list = keep(ZelGUIListAdd(parent, 50, y + 450, 900, 300, 1, changed));
    ZelGUIListAppendItem(list, "First");
    ZelGUIListAppendItem(list, "Second");
    keep(ZelGUITextAdd(parent, 1000, y + 550, 900, 300, 0, edited));
    keep(ZelGUIScaleAdd(parent, 50, y + 900, 900, 130, 0, 10, 0, changed, changed));
    keep(ZelGUIBitmapToggleAdd(parent, 1000, y + 900, 300, 130, 0, 0, 0, 0, 0, 0, 0, changed));
}

static void fillDialog(int dialog)
{
    const int tab = keep(ZelGUITabAdd(dialog, 2000, 250, 2000, 1300, changed, changed));
    const int form = keep(ZelGUIFormAdd(dialog, 4100, 250, 2000, 1300));
    addMenus(dialog);
    fill(dialog, 250);
    fill(keep(ZelGUITabAddPage(tab, "Page one")), 50);
    fill(keep(ZelGUITabAddPage(tab, "Page two")), 50);
    fill(keep(ZelGUIFormAddPage(form)), 50);
    fill(keep(ZelGUIFormAddPage(form)), 50);
}

static void launch(int number)
{
    if (launches == MOST_LAUNCHES)
        return;
    ++launches;
    if (dialogs[number] == ZELGUI_INVALID_ID) {
        static const ZelGUIVoidCallback drops[DIALOGS] = {dropFirst, dropSecond, dropModeless};
        const ZelGUIVoidCallback dropIt = drops[number];
        dialogs[number] =
            number == 2
                ? ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 6200, 1700, "Unruly", doAnything, dropIt, doAnything)
                : ZelGUIDialogCreateModal(number == 0 ? ZELGUI_MAIN_WINDOW : dialogs[0], 6200, 1700, "Unruly",
                                          doAnything, dropIt, doAnything, dropIt, doAnything);
        fillDialog(dialogs[number]);
    }
    ZelGUIDialogLaunch(dialogs[number]);
    --launches;
}

static void launchModal(void)
{
    launch(0);
}

static void launchModeless(void)
{
    launch(2);
}

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Unruly", "A modal dialog whose callbacks do anything", launchModal);
    ZelUtilAddOnRegister("Unruly, modeless", "The same beside the host's other windows", launchModeless);
}
