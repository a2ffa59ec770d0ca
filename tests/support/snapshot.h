// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_SNAPSHOT_H
#define TESTS_SUPPORT_SNAPSHOT_H

#include <QStringList>

class QObject;

/// All that can be observed of the objects below `root`: every property, and what models, groups, menus and tabs hold;
/// a line for each object. Without identifiers, two of a kind can be compared.
QStringList snapshot(const QObject *root, bool hasIdentifiers = true);

#endif
