// SPDX-License-Identifier: MIT
#ifndef ZELHOST_WIDGETNAMES_H
#define ZELHOST_WIDGETNAMES_H

#include <QString>

class QWidget;

/// The widget that users see where `widget` is a part of it: the spin field of a line edit, the list of a viewport, the
/// tab widget of a bar, the slider of the number on top of it. `widget` itself if it is no such part.
const QWidget &wholeWidget(const QWidget &widget);

/// What a user would call a widget, or the one that it is a part of; empty if there is nothing to call it by.
///
/// That is its own text unless the user edits it: of a button, a label, a group box's title, a page's tab, a window's
/// title. A button without text goes by its tool tip. Else it is the text of its label: its buddy, or one beside or
/// above it in the same parent; and at last its tool tip. Neither mnemonics nor a colon at the end are part of it.
///
/// A label names one widget at most: the nearest to its right on its line, or the nearest right below it. The nearer of
/// the two counts, except where it has a text of its own and so needs no label. A label beside a row of buttons or
/// check boxes, therefore, names nothing that stands behind them.
QString captionOf(const QWidget &widget);

#endif
