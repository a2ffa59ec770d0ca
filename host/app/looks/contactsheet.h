// SPDX-License-Identifier: MIT
#ifndef ZELHOST_LOOKS_CONTACTSHEET_H
#define ZELHOST_LOOKS_CONTACTSHEET_H

#include "report.h"

#include <QString>

#include <vector>

/// The looks of all dialogs under one combination; their pictures are relative to the contact sheet.
struct SweptCombination
{
    QString title;
    std::vector<Look> looks;
};

/// A page, complete in itself, of all pictures and what is wrong with them: a row for each page of a dialog.
QString contactSheet(const std::vector<SweptCombination> &swept);

#endif
