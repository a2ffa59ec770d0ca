// SPDX-License-Identifier: MIT
#ifndef ZELGUI_CORE_PLACEMENT_H
#define ZELGUI_CORE_PLACEMENT_H

class QDialog;
class QLabel;
class QSize;
class QWidget;

namespace orvane::zelgui {

/// Moves a widget within its parent and fixes its size, all in font units: hundredths of the height of the widget's
/// font as it is now, across times 0.45 and the ratio of the screen's resolutions. The widget is moved only if both x
/// and y are positive, and each dimension is fixed only if it is positive. Everything but dialogs and labels can have
/// the keyboard focus afterwards, by Tab and by click. What the compiler takes a widget for decides: pass a label as a
/// label, and a dialog as a dialog. No size exceeds 8192 pixels, and no position 32767.
void placeWidget(QWidget *widget, int x, int y, int width, int height);
void placeWidget(QLabel *label, int x, int y, int width, int height);
void placeWidget(QDialog *dialog, int x, int y, int width, int height);

/// Keeps a window that takes its size from what is in it from growing beyond the largest dialog.
void limitWindow(QWidget &window);

/// A size hint that a long text has made, cut at the largest size. For what a style paints into memory as a whole.
QSize limitedHint(const QSize &hint);

} // namespace orvane::zelgui

#endif
