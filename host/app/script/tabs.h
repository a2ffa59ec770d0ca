// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_TABS_H
#define ZELHOST_SCRIPT_TABS_H

#include "words.h"

#include <QTabBar>

/// One tab of a visible tab widget.
struct FoundTab
{
    QTabBar *bar = nullptr;
    int index = -1;
};

/// Finds the tab that has the name, or whose page has the identifier; no bar, with a reason, if there is none.
FoundTab findTab(const QWidget &window, const Word &name, QString &failure);

/// Titles of the pages that are shown.
QStringList currentTabs(const QWidget &window);

#endif
