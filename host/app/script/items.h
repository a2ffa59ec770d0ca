// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_ITEMS_H
#define ZELHOST_SCRIPT_ITEMS_H

#include "words.h"

#include <QStringList>

class QListView;
class QObject;

/// Texts of what can be chosen from an option menu or a radio box.
QStringList itemsOf(const QObject &choice);
QStringList itemsOf(const QListView &list);

/// The index of an item, from 0, by its position or its text; -1, with a reason, if there is no such item.
int indexOfItem(const Word &item, const QStringList &texts, QString &failure);

/// What indexOfItem() finds the item by: its text, or its position where the text is empty or not the only such one.
QString nameForItem(int index, const QStringList &texts);

#endif
