// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_AIM_H
#define ZELHOST_SCRIPT_AIM_H

#include <QAbstractSpinBox>
#include <QSlider>

/// Where on a widget users click, in the widget's coordinates.

QPoint clickPoint(const QWidget &widget);

/// 1 for the upper arrow, -1 for the lower one, 0 elsewhere.
int arrowAt(const QAbstractSpinBox &spin, const QPoint &position);
QPoint arrowPoint(const QAbstractSpinBox &spin, bool up);

QRect handleRect(const QSlider &slider);
/// Beside the handle, where a click moves it by a page; null if there is no room.
QPoint pagePoint(const QSlider &slider, bool up);
/// Where the handle's middle has to be dragged for a value; null if the slider has no pixel for it.
QPoint dragPoint(const QSlider &slider, int value);

/// Why a click there would not reach the widget; empty if it does.
QString obstacle(const QWidget &widget, const QPoint &position);

#endif
