// SPDX-License-Identifier: MIT
#include <zelgui/zelgui.h>

#include "core/repository.h"

using orvane::zelgui::kInvalidWidgetId;

// None of these reads an argument or so much as looks for the GUI: an add-on may call them before there is one.

void ZelGUIBlockForModalDialog(ZelBoolean *) {}

int ZelGUIColoredButtonAdd(int, int, int, int, int, int, ZelGUIVoidCallback)
{
    return kInvalidWidgetId;
}

void ZelGUIDialogApplySetSensitivity(int, ZelBoolean) {}
void ZelGUIDialogEnableActionArea(int, ZelBoolean) {}
void ZelGUIDialogSetLaunchPosition(int, int, int) {}
void ZelGUIDialogSetLaunchPositionX(int, int, int, int) {}
void ZelGUIDialogSetPositionX(int, int, int, int) {}
void ZelGUIDialogSetTopmost(int, ZelBoolean) {}
void ZelGUILabelSetSet(int, IndexSet, ZelBoolean) {}
void ZelGUIOptionMenuReplaceItem(int, const char *, int) {}
void ZelGUISetStatusLine(const char *) {}
void ZelGUISidebarActivate(int) {}
void ZelGUISidebarDeactivateAll() {}

ZelBoolean ZelGUISidebarIsActive(int)
{
    return 0;
}

int ZelGUISidebarRegister(const char *, ZelGUIVoidCallback, ZelGUIVoidCallback)
{
    return kInvalidWidgetId;
}

void ZelGUITextAddKeyEventCallback(int, ZelGUIIntCallback) {}
void ZelGUITextInsertString(int, const char *) {}
void ZelGUITextSetInsertPos(int, int) {}
void ZelGUITextSetMaxInsertPos(int, int) {}
void ZelGUITextSetMinInsertPos(int, int) {}
