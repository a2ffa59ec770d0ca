// SPDX-License-Identifier: MIT
#ifndef ZELHOST_ADDONLOADER_H
#define ZELHOST_ADDONLOADER_H

#include <QString>

/// Loads an add-on for the rest of the process's life and has it register its entries. Returns why that failed, or an
/// empty string.
QString loadAddOn(const QString &file);

#endif
