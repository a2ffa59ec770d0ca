// SPDX-License-Identifier: MIT
#ifndef ZELHOST_LOOKS_FINDING_H
#define ZELHOST_LOOKS_FINDING_H

#include <QString>

/// Something that is wrong with how a dialog looks.
struct Finding
{
    /// What users call the widget, and its identifier.
    QString widget;
    QString problem;
    /// By how much; 0 if that can't be said in pixels.
    int pixels = 0;
};

#endif
