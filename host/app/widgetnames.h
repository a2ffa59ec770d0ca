// SPDX-License-Identifier: MIT
#ifndef ZELHOST_WIDGETNAMES_H
#define ZELHOST_WIDGETNAMES_H

#include <QString>

class QLabel;
class QWidget;

/// The widget that users see where `widget` is a part of it: the spin field of a line edit, the list of a viewport, the
/// tab widget of a bar, the slider of the number on top of it. `widget` itself if it is no such part.
const QWidget &wholeWidget(const QWidget &widget);

/// Whether users act on the widget: buttons, fields, lists, sliders, rows of tabs.
bool isControl(const QWidget &widget);

/// Whether the widget shows a text that is its own, and not one that the user edits or has chosen.
bool hasOwnText(const QWidget &widget);

/// The label that names a control: the nearest that does; one beside it comes before one above it. Null if none does.
QLabel *labelFor(const QWidget &widget);

/// What a user would call a widget, or the one that it is a part of; empty if there is nothing to call it by.
///
/// That is its own text unless the user edits it: of a button, a label, a group box's title, a page's tab, a window's
/// title. A button without text goes by its tool tip. Else it is the text of its label: its buddy, or one beside or
/// above it in the same parent; else its tool tip; and at last the title of its group box, if all else in there has a
/// name. Neither mnemonics nor a colon at the end are part of it.
///
/// A label names one widget at most: the nearest to its right on its line, or the nearest right below it. The nearer of
/// the two counts, except where it has a text of its own and so needs no label. A label beside a row of buttons or
/// check boxes, therefore, names nothing that stands behind them.
QString captionOf(const QWidget &widget);

#endif
