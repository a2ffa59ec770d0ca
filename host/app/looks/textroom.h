// SPDX-License-Identifier: MIT
#ifndef ZELHOST_LOOKS_TEXTROOM_H
#define ZELHOST_LOOKS_TEXTROOM_H

#include <QRect>
#include <QSize>

class QLabel;
class QWidget;

/// Pixels that the widget's text lacks in each direction, as the style draws it; zero or less where it fits. For a
/// combo box, its widest item counts; for a menu bar or a row of tabs, all titles together. What can be scrolled, as in
/// lists and fields, needs no more than the height of a line.
QSize missingRoom(const QWidget &widget);

/// The part of a label, in its own coordinates, where something is drawn.
QRect drawnPart(const QLabel &label);

/// Where a group box shows its title, in its own coordinates; empty without one.
QRect titleRect(const QWidget &groupBox);

#endif
