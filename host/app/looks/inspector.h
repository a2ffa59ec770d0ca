// SPDX-License-Identifier: MIT
#ifndef ZELHOST_LOOKS_INSPECTOR_H
#define ZELHOST_LOOKS_INSPECTOR_H

#include "finding.h"

#include <vector>

class QWidget;

/// What is wrong with how a window looks as it is: text that is cut off, widgets that overlap or leave what they stand
/// in, controls without a name. Differences of one pixel are rounding and don't count.
std::vector<Finding> inspect(const QWidget &window);

#endif
