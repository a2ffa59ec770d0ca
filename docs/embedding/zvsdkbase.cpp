// SPDX-License-Identifier: MIT
#include "menu.h"

#include <common_ui_qt/mainwindow.h>
#include <zvsdkbase/zelutil.h>

#include <QColor>
#include <QMessageBox>
#include <QScreen>
#include <QWidget>

#include <cstdlib>
#include <set>
#include <string>
#include <vector>

// A host that has data of these kinds hands out its own.
struct IndexSet_s
{
    std::set<LgIndex> members;
};

struct StringList_s
{
    std::vector<std::string> strings;
};

char *ZelUtilStringAlloc(size_t size, const char *)
{
    return static_cast<char *>(std::calloc(size, 1));
}

void ZelUtilStringDealloc(char **string)
{
    std::free(*string);
    *string = nullptr;
}

void ZelUtilDialogErrMsg(const char *message)
{
    QMessageBox::critical(orvane::ui::findMainWindow(false), QString(), QString::fromUtf8(message));
}

ZelBoolean ZelUtilMacroIsBatchModeActive(void)
{
    return 0;
}

void ZelUtilInterfaceGetDotsPerInch(double *horizontal, double *vertical)
{
    const QScreen *screen = orvane::ui::findMainWindow(false)->screen();
    *horizontal = screen->logicalDotsPerInchX();
    *vertical = screen->logicalDotsPerInchY();
}

IndexSet ZelUtilSetAlloc(ZelBoolean)
{
    return new IndexSet_s;
}

ZelBoolean ZelUtilSetAddMember(IndexSet set, LgIndex member, ZelBoolean)
{
    set->members.insert(member);
    return 1;
}

LgIndex ZelUtilSetGetNextMember(IndexSet set, LgIndex after)
{
    const auto next = set->members.upper_bound(after);
    return next == set->members.end() ? 0 : *next;
}

void ZelUtilSetDealloc(IndexSet *set)
{
    delete *set;
    *set = nullptr;
}

void ZelUtilColorMapGetBasicColorRGB(int color, unsigned char *red, unsigned char *green, unsigned char *blue)
{
    // A row of well distinguishable colours, for a host without a palette.
    const QColor rgb = QColor::fromHsv(color * 360 / 16 % 360, 255, 200);
    *red = static_cast<unsigned char>(rgb.red());
    *green = static_cast<unsigned char>(rgb.green());
    *blue = static_cast<unsigned char>(rgb.blue());
}

StringList_s *ZelUtilStringListAlloc(void)
{
    return new StringList_s;
}

void ZelUtilStringListDealloc(StringList_s **list)
{
    delete *list;
    *list = nullptr;
}

ZelBoolean ZelUtilStringListAppendString(StringList_s *list, const char *string)
{
    list->strings.emplace_back(string);
    return 1;
}

LgIndex ZelUtilStringListGetCount(StringList_s *list)
{
    return list ? static_cast<LgIndex>(list->strings.size()) : 0;
}

char *ZelUtilStringListGetString(StringList_s *list, LgIndex position)
{
    const std::string &string = list->strings[static_cast<size_t>(position - 1)];
    char *copy = ZelUtilStringAlloc(string.size() + 1, "string of a list");
    string.copy(copy, string.size());
    return copy;
}

std::vector<MenuEntry> &menuEntries()
{
    static std::vector<MenuEntry> entries;
    return entries;
}

void ZelUtilAddOnRegister(const char *name, const char *, ZelUtilAddOnCallback launch)
{
    menuEntries().push_back({name, launch});
}
