// SPDX-License-Identifier: MIT
#ifndef ZELGUI_UTIL_SELECTIONORDER_H
#define ZELGUI_UTIL_SELECTIONORDER_H

#include <vector>

class QItemSelectionModel;

namespace orvane::zelgui {

/// Adds rows of a list to the selection with the outcome, the order included, of select(row, Select) for one after the
/// other, which would cost the square of their number. `rows` exist, and there is at least one.
void selectInTurn(QItemSelectionModel &model, const std::vector<int> &rows);

} // namespace orvane::zelgui

#endif
