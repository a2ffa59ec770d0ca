// SPDX-License-Identifier: MIT
#ifndef ZELGUI_CORE_HUGEWIDGET_H
#define ZELGUI_CORE_HUGEWIDGET_H

class QWidget;

namespace orvane::zelgui {

/// Paints a widget that is larger than any dialog as a plain area, and answers whether it did. The toolkit's default
/// style would paint all of a button, an option menu or a spin field into memory first, however little is to be seen:
/// one with the largest width and height that there are takes 4 GB. For the paintEvent() of these.
bool paintIfHuge(QWidget &widget);

} // namespace orvane::zelgui

#endif
