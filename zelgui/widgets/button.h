// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_BUTTON_H
#define ZELGUI_WIDGETS_BUTTON_H

#include "core/placement.h"

#include <zelgui/zelgui.h>

#include <QPushButton>

namespace orvane::zelgui {

/// A push button with a text, which reports each click.
class ZelGUIButton : public QPushButton
{
    Q_OBJECT

public:
    /// Position and size are in font units; the button becomes 1.1 times as high.
    ZelGUIButton(QWidget *parent, int x, int y, int width, int height, const char *label, ZelGUIVoidCallback callback);

    QSize sizeHint() const override { return limitedHint(QPushButton::sizeHint()); }

private Q_SLOTS:
    void buttonClicked();

private:
    ZelGUIVoidCallback m_callback;
};

} // namespace orvane::zelgui

#endif
