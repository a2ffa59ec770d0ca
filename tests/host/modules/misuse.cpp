// SPDX-License-Identifier: MIT
// For each rule an entry that breaks it, and one for what looks alike and is right.
#include <zelgui/zelgui.h>

#include <QApplication>
#include <QDialog>

extern "C" void ZelAddOnInit(void);

namespace {

/// Registers an entry that makes a dialog, has it filled and launches it. Each lambda has its own type, so the calls of
/// each entry have a place of their own in the code.
template <typename Fill>
void addFilling(const char *name, Fill fill)
{
    static const char *const title = name;
    static const Fill filling = fill;
    static int dialog = ZELGUI_INVALID_ID;
    ZelUtilAddOnRegister(name, "", [] {
        dialog = ZelGUIDialogCreateModeless(
            ZELGUI_MAIN_WINDOW, 4000, 1000, title, nullptr, [] { ZelGUIDialogDrop(dialog); }, nullptr);
        filling(dialog);
        ZelGUIDialogLaunch(dialog);
    });
}

/// Registers an entry that makes a dialog at its first launch, and has it filled at each.
template <typename Fill>
void addLasting(const char *name, Fill fill)
{
    static const char *const title = name;
    static const Fill filling = fill;
    static int dialog = ZELGUI_INVALID_ID;
    ZelUtilAddOnRegister(name, "", [] {
        if (dialog == ZELGUI_INVALID_ID) {
            dialog = ZelGUIDialogCreateModeless(
                ZELGUI_MAIN_WINDOW, 4000, 1000, title, [] { filling(dialog); }, [] { ZelGUIDialogDrop(dialog); },
                nullptr);
        }
        ZelGUIDialogLaunch(dialog);
    });
}

void addIdentifiers()
{
    addFilling("wrong-unknown", [](int dialog) {
        ZelGUILabelSetText(999, "text");
        ZelGUISetSensitivity(ZelGUILabelAdd(ZELGUI_MAIN_WINDOW, 100, 100, "no child of the main window"), 1);
        ZelGUILabelAdd(dialog, 100, 100, "text");
    });
    addFilling("valid-unknown", [](int dialog) {
        ZelGUILabelSetText(ZelGUILabelAdd(dialog, 100, 100, "text"), "text");
        ZelGUIDialogSetPosition(999, 1, 1);
    });

    addFilling("wrong-kind",
               [](int dialog) { ZelGUIListGetItemCount(ZelGUILabelAdd(dialog, 100, 100, "of another kind")); });
    addFilling("valid-kind", [](int dialog) {
        IndexSet set = nullptr;
        const int spin = ZelGUISpinTextFieldAdd(dialog, 100, 300, 1000, 140, nullptr, nullptr, nullptr);
        char *text = ZelGUITextFieldGetString(spin);
        ZelUtilStringDealloc(&text);
        const int toggle = ZelGUIBitmapToggleAdd(dialog, 100, 500, 300, 140, 0, 0, nullptr, 0, 0, 0, 0, nullptr);
        ZelGUIToggleSet(toggle, ZelGUIToggleGet(toggle));
        ZelGUIButtonSetText(toggle, "Toggle");
        // The first argument is not read.
        ZelGUIButtonSetDefault(999, ZelGUIButtonAdd(dialog, 1000, 500, 1000, 140, "Button", nullptr));
        const int menu = ZelGUIMenuAdd(ZelGUIMenuAdd(ZelGUIMenuBarAdd(dialog), "Menu"), "Sub-menu");
        ZelGUISetSensitivity(ZelGUIMenuAddItem(menu, "Item", nullptr, nullptr), 0);
        ZelGUISetSensitivity(dialog, 1);
        ZelGUITextFieldGetSet(ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, nullptr), &set);
        ZelUtilSetDealloc(&set);
    });

    static const auto makeAndDestroy = [] {
        const int dialog = ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 4000, 1000, "", nullptr, nullptr, nullptr);
        const int label = ZelGUILabelAdd(dialog, 100, 100, "label");
        ZelGUILabelSetText(label, "while it is there");
        for (QWidget *const window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QString::number(dialog))
                delete window;
        }
        return label;
    };
    addFilling("wrong-destroyed", [](int) { ZelGUILabelSetText(makeAndDestroy(), "too late"); });
    addFilling("valid-destroyed", [](int) { makeAndDestroy(); });
}

void addTexts()
{
    static const auto setItems = [](int list, const char *text) {
        StringList_s *items = ZelUtilStringListAlloc();
        ZelUtilStringListAppendString(items, text);
        ZelGUIListSetItems(list, items);
        ZelUtilStringListDealloc(&items);
    };
    addFilling("wrong-utf8", [](int dialog) {
        ZelGUIButtonAdd(dialog, 100, 100, 1000, 140, "S\xc3\xbc\xc3\x9f", nullptr);
        setItems(ZelGUIListAdd(dialog, 100, 300, 1000, 500, 0, nullptr), "Spa\xc3\x9f");
    });
    addFilling("valid-utf8", [](int dialog) {
        ZelGUIButtonAdd(dialog, 100, 100, 1000, 140, "S\xfc\xdf", nullptr);
        setItems(ZelGUIListAdd(dialog, 100, 300, 1000, 500, 0, nullptr), "Spa\xdf");
        ZelGUIListAppendItem(ZelGUIListAdd(dialog, 1200, 300, 1000, 500, 0, nullptr), "Spa\xc3\x9f");
    });

    addFilling("wrong-latin1", [](int dialog) { ZelGUILabelAdd(dialog, 100, 100, "S\xfc\xdf"); });
    addFilling("valid-latin1", [](int dialog) {
        ZelGUILabelAdd(dialog, 100, 100, "S\xc3\xbc\xc3\x9f");
        ZelGUISetToolTip(dialog, "\xef\xbb\xbfWith a byte order mark, \xef\xbf\xbd and \xf0\x9f\x99\x82");
        ZelGUIFrameAdd(dialog, 100, 300, 1000, 300, nullptr);
    });

    addFilling("wrong-format", [](int dialog) {
        const int label = ZelGUILabelAdd(dialog, 100, 100, "label");
        ZelGUILabelSetDouble(label, 1, "%d");
        ZelGUILabelSetDouble(label, 1, "%.2f of %.2f");
    });
    addFilling("valid-format", [](int dialog) {
        const int label = ZelGUILabelAdd(dialog, 100, 100, "label");
        ZelGUILabelSetDouble(label, 1, "%%: %-+8.3lG\n%%");
        ZelGUILabelSetDouble(label, 1, "%1000.f");
    });
}

void addPositions()
{
    static const auto addChoices = [](int dialog) {
        return ZelGUIOptionMenuAdd(dialog, 100, 100, 1000, 140, "a, b, c", nullptr);
    };
    static const auto addRadioBox = [](int dialog) {
        return ZelGUIRadioBoxAdd(dialog, 2000, 100, 1000, 500, "a", "b", "c", nullptr, nullptr, nullptr);
    };
    addFilling("wrong-position", [](int dialog) {
        const int positions[] = {1, 2};
        const int list = ZelGUIListAdd(dialog, 100, 300, 1000, 500, 1, nullptr);
        ZelGUIListSetSelectedItem(list, 1);
        ZelGUIListAppendItem(list, "a");
        char *text = ZelGUIListGetString(list, 0);
        ZelUtilStringDealloc(&text);
        ZelGUIListSetSelectedItems(list, positions, 2);
        ZelGUIOptionMenuSet(addChoices(dialog), 4);
        ZelGUIRadioBoxSetToggle(addRadioBox(dialog), 4);
    });
    addFilling("valid-position", [](int dialog) {
        const int positions[] = {2, 1, 2};
        const int list = ZelGUIListAdd(dialog, 100, 300, 1000, 500, 1, nullptr);
        ZelGUIListSetTopItemNum(list, ZelGUIListGetTopItemNum(list));
        ZelGUIListAppendItem(list, "a");
        ZelGUIListAppendItem(list, "b");
        ZelGUIListSetSelectedItems(list, positions, 3);
        ZelGUIListDeleteItemAtPos(list, 2);
        const int menu = addChoices(dialog);
        ZelGUIOptionMenuSet(menu, 0);
        ZelGUIOptionMenuSet(menu, 3);
        ZelGUIRadioBoxSetToggle(addRadioBox(dialog), 3);
    });
}

void addReleases()
{
    static const auto addField = [](int dialog) {
        const int field = ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, nullptr);
        ZelGUITextFieldSetString(field, "1-3");
        return field;
    };
    addFilling("wrong-unreleased", [](int dialog) {
        IndexSet set = nullptr;
        int *positions = nullptr;
        int count = 0;
        const int field = addField(dialog);
        const int list = ZelGUIListAdd(dialog, 100, 300, 1000, 500, 1, nullptr);
        ZelGUIListAppendItem(list, "a");
        ZelGUIListSetSelectedItem(list, 1);
        ZelGUIListGetSelectedItems(list, &positions, &count);
        ZelGUITextFieldGetString(field);
        ZelGUITextFieldGetString(field);
        ZelGUITextFieldGetSet(field, &set);
        ZelUtilStringListAlloc();
    });
    addFilling("valid-unreleased", [](int dialog) {
        IndexSet set = nullptr;
        IndexSet none = nullptr;
        int *positions = nullptr;
        int count = 0;
        const int field = addField(dialog);
        char *text = ZelGUITextFieldGetString(field);
        ZelUtilStringDealloc(&text);
        // With nothing selected there is no array.
        ZelGUIListGetSelectedItems(ZelGUIListAdd(dialog, 100, 300, 1000, 500, 1, nullptr), &positions, &count);
        ZelGUITextFieldGetSet(field, nullptr);
        ZelGUITextFieldGetSet(field, &set);
        ZelUtilSetDealloc(&set);
        ZelGUITextFieldSetString(field, "no set");
        ZelGUITextFieldGetSet(field, &none);
    });

    addFilling("wrong-release", [](int dialog) {
        char *text = ZelGUITextFieldGetString(addField(dialog));
        char *copy = text;
        ZelUtilStringDealloc(&text);
        ZelUtilStringDealloc(&copy);
        static char own[] = "own";
        copy = own;
        ZelUtilStringDealloc(&copy);
    });
    addFilling("valid-release", [](int dialog) {
        IndexSet set = nullptr;
        char *text = ZelGUITextFieldGetString(addField(dialog));
        ZelUtilStringDealloc(&text);
        ZelUtilStringDealloc(&text);
        ZelUtilSetDealloc(&set);
    });
}

void addPlaces()
{
    addFilling("wrong-place", [](int dialog) {
        ZelGUIButtonAdd(dialog, 3500, 100, 1000, 140, "Cut off", nullptr);
        ZelGUIListAdd(ZelGUIFrameAdd(dialog, 100, 300, 1000, 500, nullptr), 100, 100, 800, 600, 0, nullptr);
    });
    addFilling("valid-place", [](int dialog) {
        const int tab = ZelGUITabAdd(dialog, 1200, 400, 1000, 600, nullptr, nullptr);
        const int form = ZelGUIFormAdd(dialog, 2400, 300, 1500, 700);
        ZelGUIButtonAdd(dialog, 3000, 50, 1000, 140, "At the edge", nullptr);
        ZelGUIListAdd(ZelGUIFrameAdd(dialog, 100, 300, 1000, 700, "At the edge"), 1, 1, 1000, 700, 0, nullptr);
        ZelGUITabAddPage(tab, "Shown");
        ZelGUITextAdd(ZelGUITabAddPage(tab, "Hidden"), 100, 100, 800, 400, 0, nullptr);
        ZelGUIFormAddPage(form);
        ZelGUILabelAdd(ZelGUIFormAddPage(form), 100, 590, "At the edge");
        ZelGUILabelAdd(dialog, 0, 0, "In the corner");
    });
}

/// These are launched twice.
void addRepetitions()
{
    addFilling("wrong-creation", [](int dialog) { ZelGUILabelAdd(dialog, 100, 100, "label"); });
    addLasting("valid-creation", [](int) {
        static bool isFirst = true;
        for (int i = 0; isFirst && i < 2; ++i) {
            ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 4000, 1000, "One of two", nullptr, nullptr, nullptr, nullptr,
                                    nullptr);
        }
        isFirst = false;
    });

    addLasting("wrong-addition", [](int dialog) { ZelGUILabelAdd(dialog, 100, 100, "label"); });
    addLasting("valid-addition", [](int dialog) {
        static int rows = 0;
        static int status = ZELGUI_INVALID_ID;
        static int menu = ZELGUI_INVALID_ID;
        static int item = ZELGUI_INVALID_ID;
        // One row more each time.
        ZelGUILabelAdd(dialog, 100, 100 + 150 * rows++, "row");
        // Two in one place, of which the add-on shows one.
        for (int i = 0; rows == 1 && i < 2; ++i)
            ZelGUILabelAdd(dialog, 2000, 100, "variant");
        // In place of one that is hidden: a label does not grow with its text.
        if (status != ZELGUI_INVALID_ID)
            ZelGUISetVisibility(status, 0);
        status = ZelGUILabelAdd(dialog, 2000, 300, "status");
        if (menu == ZELGUI_INVALID_ID)
            menu = ZelGUIMenuAdd(ZelGUIMenuBarAdd(dialog), "Menu");
        else
            ZelGUIMenuDeleteItem(item);
        item = ZelGUIMenuAddItem(menu, "Recent file", nullptr, nullptr);
    });
}

} // namespace

void ZelAddOnInit(void)
{
    addIdentifiers();
    addTexts();
    addPositions();
    addReleases();
    addPlaces();
    addRepetitions();
}
