// SPDX-License-Identifier: MIT
#include "comparison.h"
#include "mixeddialog.h"

#include <zelgui/zelgui.h>

#include <QDialog>

namespace bench {

namespace {

void ignore() {}
void ignoreValue(const int *) {}
int ignoreText(const char *)
{
    return 1;
}

void fill(int dialog, int x, int y)
{
    ZelGUILabelAdd(dialog, x, y, "Label");
    ZelGUITextFieldAdd(dialog, x + 600, y, 1000, 130, ignoreText);
    ZelGUIToggleAdd(dialog, x, y + 150, 1000, 130, "Toggle", ignoreValue);
    ZelGUIButtonAdd(dialog, x + 1000, y + 150, 600, 130, "Push", ignore);
    ZelGUIOptionMenuAdd(dialog, x, y + 300, 1000, 130, "first,second,third", ignoreValue);
    ZelGUIListAppendItem(ZelGUIListAdd(dialog, x, y + 450, 800, 500, 1, ignoreValue), "item");
    ZelGUIScaleAdd(dialog, x + 900, y + 600, 700, 130, 0, 100, 0, ignoreValue, ignoreValue);
    ZelGUIRadioBoxAdd(dialog, x + 900, y + 750, 700, 200, "one", "two", nullptr, nullptr, nullptr, ignoreValue);
}

} // namespace

QDialog *createLibraryDialog()
{
    const int dialog = ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 9000, 5400, "Mixed", nullptr, ignore, nullptr);
    for (int i = 0; i < 25; ++i)
        fill(dialog, 1 + i % 5 * 1700, 1 + i / 5 * 1000);
    return object<QDialog>(dialog);
}

} // namespace bench
