// SPDX-License-Identifier: MIT
// A dialog with everything that scripts can drive; prints each call that it gets.
#include <zelgui/zelgui.h>

#include <cstring>
#include <initializer_list>
#include <iostream>

extern "C" void ZelAddOnInit(void);

namespace {

constexpr int Labels = 100;
constexpr int Fields = 1500;
constexpr int Right = 4000;
constexpr int Line = 140;

int everything = ZELGUI_INVALID_ID;
int layerSpin = ZELGUI_INVALID_ID;

template <typename... Words>
void say(Words... words)
{
    (std::cout << ... << words) << std::endl;
}

void complain()
{
    say("complain");
    ZelUtilDialogErrMsg("First complaint.");
    ZelUtilDialogErrMsg("Second complaint.");
}

void hang()
{
    volatile bool forever = true;
    while (forever) {
    }
}

void addFew(int dialog)
{
    ZelGUIButtonAdd(dialog, 100, 100, 1200, 130, "Complain", complain);
    ZelGUILabelAdd(dialog, 100, 300, "Mood:");
    ZelGUIOptionMenuAdd(dialog, 700, 300, 1200, Line, "Calm, Bright", [](const int *value) { say("mood ", *value); });
}

void openNested()
{
    static int nested = ZELGUI_INVALID_ID;
    static const ZelGUIVoidCallback close = [] {
        say("nested ok");
        ZelGUIDialogDrop(nested);
    };
    say("open nested");
    if (nested == ZELGUI_INVALID_ID) {
        nested = ZelGUIDialogCreateModal(everything, 2000, 500, "Nested", nullptr, close, nullptr, close, nullptr);
        addFew(nested);
    }
    ZelGUIDialogLaunch(nested);
    say("nested is over");
}

void launchModeless()
{
    static int modeless = ZELGUI_INVALID_ID;
    static const ZelGUIVoidCallback close = [] {
        say("modeless closed");
        ZelGUIDialogDrop(modeless);
    };
    if (modeless == ZELGUI_INVALID_ID) {
        modeless = ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 2000, 500, "Modeless", nullptr, close, nullptr);
        addFew(modeless);
    }
    ZelGUIDialogLaunch(modeless);
}

void launchSecond()
{
    static int second = ZELGUI_INVALID_ID;
    static const ZelGUIVoidCallback close = [] {
        say("second closed");
        ZelGUIDialogDrop(second);
    };
    if (second == ZELGUI_INVALID_ID)
        second = ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 2000, 500, "Second", nullptr, close, nullptr);
    ZelGUIDialogLaunch(second);
}

int takeName(const char *text)
{
    say("name ", text);
    if (std::strcmp(text, "bad") != 0)
        return 1;
    ZelUtilDialogErrMsg("This name is bad.");
    return 0;
}

int takeNotes(const char *text)
{
    say("notes [", text, "]");
    return 1;
}

int takeLayer(const char *text)
{
    say("layer ", text);
    return 1;
}

void selectZones(const int *positions)
{
    std::cout << "zones";
    for (; *positions; ++positions)
        std::cout << ' ' << *positions;
    say();
}

void addFields()
{
    ZelGUILabelAdd(everything, Labels, 50, "Name:");
    ZelGUITextFieldAdd(everything, Fields, 50, 2000, Line, takeName);
    ZelGUILabelAdd(everything, Labels, 250, "Layer:");
    layerSpin = ZelGUISpinTextFieldAdd(
        everything, Fields, 250, 2000, Line, takeLayer,
        [] {
            say("layer up");
            ZelGUISpinTextFieldIncLgIndex(layerSpin, 1, 1, 40);
        },
        [] {
            say("layer down");
            ZelGUISpinTextFieldIncLgIndex(layerSpin, -1, 1, 40);
        });
    ZelGUITextFieldSetLgIndex(layerSpin, 7, 0);
    ZelGUILabelAdd(everything, Labels, 450, "Kind:");
    ZelGUIOptionMenuAdd(everything, Fields, 450, 2000, Line, "Euler, RK 4, RK 4, Adams",
                        [](const int *value) { say("kind ", *value); });
    ZelGUILabelAdd(everything, Labels, 650, "Side:");
    ZelGUIRadioBoxAdd(everything, Fields, 650, 2000, 3 * Line, "Left", "Right", "Both", nullptr, nullptr,
                      [](const int *value) { say("side ", *value); });
    ZelGUILabelAdd(everything, Labels, 1250, "Opacity:");
    ZelGUIScaleAdd(
        everything, Fields, 1250, 2000, Line, 0, 1000, 0, [](const int *value) { say("opacity ", *value); },
        [](const int *value) { say("dragged from ", *value); });
    ZelGUILabelAdd(everything, Labels, 1450, "Notes:");
    ZelGUITextSetString(ZelGUITextAdd(everything, Fields, 1450, 2000, 3 * Line, 0, takeNotes), "one\ntwo");
}

void addButtons()
{
    const unsigned char pixel[3] = {200, 40, 40};
    ZelGUIToggleAdd(everything, Right, 50, 1500, Line, "Show &grid", [](const int *value) { say("grid ", *value); });
    ZelGUIButtonAdd(everything, Right, 250, 1500, Line, "Open &nested", openNested);
    ZelGUIButtonAdd(everything, Right, 450, 1500, Line, "&Complain", complain);
    ZelGUISetSensitivity(ZelGUIButtonAdd(everything, Right, 650, 1500, Line, "Frozen", nullptr), 0);
    ZelGUISetVisibility(ZelGUIButtonAdd(everything, Right, 850, 1500, Line, "Ghost", nullptr), 0);
    ZelGUIButtonAdd(everything, Right, 1050, 1500, Line, "Hang", hang);
    ZelGUIBitmapButtonAdd(everything, Right, 1250, 700, Line, 1, 1, pixel, 0, 0, 0, 0, [] { say("icon"); });
    ZelGUIBitmapToggleAdd(everything, Right + 800, 1250, 700, Line, 1, 1, pixel, 0, 0, 0, 0,
                          [](const int *value) { say("icon toggle ", *value); });
    ZelGUIToggleAdd(everything, Right, 1450, 700, Line, "Twin", nullptr);
    ZelGUIToggleAdd(everything, Right + 800, 1450, 700, Line, "Twin", nullptr);
}

void addLists()
{
    ZelGUILabelAdd(everything, 6000, 50, "Zones:");
    int list = ZelGUIListAdd(everything, 6000, 200, 1500, 500, 1, selectZones);
    for (const char *const zone : {"Wing", "Slat", "Flap", "Pylon", "Flap"})
        ZelGUIListAppendItem(list, zone);
    while (ZelGUIListGetItemCount(list) < 40)
        ZelGUIListAppendItem(list, "Filler");
    ZelGUIListAppendItem(list, "Far field");
    ZelGUILabelAdd(everything, 6000, 800, "Solver:");
    list = ZelGUIListAdd(everything, 6000, 950, 1500, 500, 0, [](const int *value) { say("solver ", *value); });
    ZelGUIListAppendItem(list, "Inviscid");
    ZelGUIListAppendItem(list, "Laminar");
}

void addTabsAndMenus()
{
    const int tab = ZelGUITabAdd(
        everything, Labels, 2150, 7300, 500, [](const int *) { say("page shown"); }, nullptr);
    const int lines = ZelGUITabAddPage(tab, "Lines");
    const int shading = ZelGUITabAddPage(tab, "Shading");
    ZelGUIToggleAdd(lines, 100, 100, 2000, Line, "Show lines", nullptr);
    ZelGUIToggleAdd(shading, 100, 100, 2000, Line, "Smooth", nullptr);
    const int bar = ZelGUIMenuBarAdd(everything);
    const int exporting = ZelGUIMenuAdd(ZelGUIMenuAdd(bar, "&File"), "&Export");
    ZelGUIMenuAddItem(exporting, "Image/&Table", nullptr, [] { say("exported"); });
    ZelGUIMenuAddToggle(ZelGUIMenuAdd(bar, "&View"), "&Axes", nullptr, [](const int *value) { say("axes ", *value); });
}

void launchEverything()
{
    static const auto end = [](const char *what) {
        say(what);
        ZelGUIDialogDrop(everything);
    };
    if (everything == ZELGUI_INVALID_ID) {
        everything = ZelGUIDialogCreateModal(
            ZELGUI_MAIN_WINDOW, 7600, 2700, "Everything", nullptr, [] { end("ok"); }, nullptr, [] { end("cancel"); },
            nullptr);
        addFields();
        addButtons();
        addLists();
        addTabsAndMenus();
    }
    ZelGUIDialogLaunch(everything);
    say("everything is over");
}

} // namespace

void ZelAddOnInit(void)
{
    const auto add = [](const char *name, void (*launch)()) { ZelUtilAddOnRegister(name, "", launch); };
    add("Everything", launchEverything);
    add("Modeless", launchModeless);
    add("Second", launchSecond);
    add("Complaint", complain);
    add("Twice", launchModeless);
    add("Twice", complain);
}
