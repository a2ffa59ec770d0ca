// SPDX-License-Identifier: MIT
#include "core/hugewidget.h"

#include <QPainter>
#include <QWidget>

namespace orvane::zelgui {

namespace {

/// Those of a dialog with the largest width and height that there are. A style's copy of them takes 256 MB.
constexpr qint64 kMostStyledPixels = qint64{8192} * 8192;

} // namespace

bool paintIfHuge(QWidget &widget)
{
    if (qint64{widget.width()} * widget.height() <= kMostStyledPixels)
        return false;
    QPainter(&widget).fillRect(widget.rect(), widget.palette().button());
    return true;
}

} // namespace orvane::zelgui
