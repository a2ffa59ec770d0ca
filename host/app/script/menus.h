// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_MENUS_H
#define ZELHOST_SCRIPT_MENUS_H

#include <QAction>
#include <QMenuBar>

/// The way to an entry of a menu bar, from the bar's own entry on.
struct MenuPath
{
    QMenuBar *bar = nullptr;
    QList<QAction *> entries;
    /// Why there is no such entry; else empty.
    QString failure;
};

/// Finds "View/Grid" in a window's menu bar. A slash that belongs to a name is doubled.
MenuPath findMenuEntry(const QWidget &window, const QString &path);

/// The opposite; empty if the entry is in no menu of the window's bar.
QString pathOfMenuEntry(const QWidget &window, const QAction *entry);

/// Without its mnemonic.
QString nameOfMenuEntry(const QAction &entry);

/// The menu bar that is part of the window, or null.
QMenuBar *menuBarOf(const QWidget &window);

#endif
