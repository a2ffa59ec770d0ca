// SPDX-License-Identifier: MIT
// Passes values of every kind through the interface, and gets callbacks of every kind called, one by an exception's
// end.
#include <zelgui/zelgui.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>

#include <stdexcept>

extern "C" void ZelAddOnInit(void);

namespace {

int field = ZELGUI_INVALID_ID;

template <typename T>
T *find(int id)
{
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (auto *const widget = window->findChild<T *>(QString::number(id)))
            return widget;
    }
    return nullptr;
}

void press(QWidget *widget, Qt::Key key)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void throwing(const int *)
{
    throw std::runtime_error("not let out");
}

void selected(const int *) {}

int textEntered(const char *)
{
    ZelGUITextFieldSetString(field, "entered");
    return 1;
}

int textAccepted(const char *)
{
    return 1;
}

void close() {}

void passValues(int dialog)
{
    int *positions = nullptr;
    int count = 0;
    const int list = ZelGUIListAdd(dialog, 100, 300, 1000, 500, 1, selected);
    StringList_s *items = ZelUtilStringListAlloc();
    ZelUtilStringListAppendString(items, "f\xfcr");
    ZelUtilStringListAppendString(items, "two");
    ZelGUIListSetItems(list, items);
    ZelUtilStringListDealloc(&items);
    press(find<QListWidget>(list), Qt::Key_Down);
    ZelGUIListSelectAllItems(list);
    ZelGUIListGetSelectedItems(list, &positions, &count);
    char *memory = reinterpret_cast<char *>(positions);
    ZelUtilStringDealloc(&memory);
    ZelGUIListGetSelectedItems(list, nullptr, nullptr);

    IndexSet set = nullptr;
    double number = 0;
    LgIndex index = 0;
    field = ZelGUITextFieldAdd(dialog, 100, 100, 1000, 140, textEntered);
    ZelGUITextFieldSetString(field, "1-3,7");
    ZelGUITextFieldGetSet(field, &set);
    ZelGUITextFieldSetSet(field, set, 1);
    ZelUtilSetDealloc(&set);
    ZelGUITextFieldSetDouble(field, 2.5, "%g");
    ZelGUITextFieldGetDouble(field, &number);
    ZelGUITextFieldGetLgIndex(field, &index);
    press(find<QLineEdit>(field), Qt::Key_Return);
    const int accepting = ZelGUITextFieldAdd(dialog, 1200, 100, 1000, 140, textAccepted);
    press(find<QLineEdit>(accepting), Qt::Key_Return);
    memory = ZelGUITextFieldGetString(field);
    ZelUtilStringDealloc(&memory);
}

void launch()
{
    const int dialog =
        ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 4000, 1000, "Say \"\xc3\xbc\"\n", nullptr, close, nullptr);
    const unsigned char pixel[3] = {255, 0, 0};
    ZelGUIBitmapButtonAdd(dialog, 100, 900, 0, 0, 1, 1, pixel, 0, 1, 2, 3, nullptr);
    passValues(dialog);
    const int menu = ZelGUIMenuAdd(ZelGUIMenuBarAdd(dialog), "Menu");
    const int item = ZelGUIMenuAddToggle(menu, "A label that is longer than forty characters", nullptr, throwing);
    ZelGUIMenuSetToggle(item, 1);
    ZelGUIDialogIsUp(dialog);
    // It reads no argument, so the pointer may be anything.
    ZelGUISetStatusLine(reinterpret_cast<const char *>(1));
    QCoreApplication::quit();
}

} // namespace

void ZelAddOnInit(void)
{
    ZelUtilAddOnRegister("Traced", "Passes values of every kind", launch);
}
