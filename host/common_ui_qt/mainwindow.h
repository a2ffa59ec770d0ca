// SPDX-License-Identifier: MIT
#ifndef COMMON_UI_QT_MAINWINDOW_H
#define COMMON_UI_QT_MAINWINDOW_H

class QWidget;

namespace orvane {
namespace ui {

/// The host's main window, or null where there is none. `true` searches the top-level windows anew, `false` may answer
/// from the last search.
QWidget *findMainWindow(bool searchAnew);

} // namespace ui
} // namespace orvane

#endif
