// SPDX-License-Identifier: MIT
#ifndef ZELHOST_NEWADDON_H
#define ZELHOST_NEWADDON_H

#include <QString>

enum class AddOnLanguage { C, Cxx };

/// Writes the project of an add-on into a directory that has to be empty or missing, names it after the directory and
/// says how to go on. `program` is how the user has called this one. Returns the program's exit code.
int writeNewAddOn(const QString &directory, AddOnLanguage language, const QString &program);

#endif
