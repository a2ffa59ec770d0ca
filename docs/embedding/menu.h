// SPDX-License-Identifier: MIT
#ifndef MYHOST_MENU_H
#define MYHOST_MENU_H

#include <zvsdkbase/zelutil.h>

#include <string>
#include <vector>

/// What an add-on has registered.
struct MenuEntry
{
    std::string name;
    ZelUtilAddOnCallback launch;
};

std::vector<MenuEntry> &menuEntries();

#endif
