// SPDX-License-Identifier: MIT
// Goes on with a label after its dialog was destroyed.
#include "misuse.h"

#include <QApplication>
#include <QDialog>

static int label = ZELGUI_INVALID_ID;

static void makeAndDestroy()
{
    makeDialogWithInit(nullptr);
    label = ZelGUILabelAdd(dialog, 100, 100, "label");
    ZelGUILabelSetText(label, "while it is there");
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QString::number(dialog))
            delete window;
    }
    makeDialogWithInit(nullptr);
}

static void wrong()
{
    makeAndDestroy();
    ZelGUILabelSetText(label, "too late");
    ZelGUIDialogLaunch(dialog);
}

static void valid()
{
    makeAndDestroy();
    ZelGUIDialogLaunch(dialog);
}

REGISTER_ENTRIES
