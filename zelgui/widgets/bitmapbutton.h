// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_BITMAPBUTTON_H
#define ZELGUI_WIDGETS_BITMAPBUTTON_H

#include <zelgui/zelgui.h>

#include <QColor>
#include <QPushButton>

#include <optional>

namespace orvane::zelgui {

/// A picture of an add-on's: rows from top to bottom, three bytes (red, green, blue) a pixel, without padding.
struct Bitmap
{
    int width;
    int height;
    const unsigned char *rgbData;
    /// Pixels of exactly this colour are transparent.
    std::optional<QRgb> transparentColor;
};

/// A button that shows a picture at its own size, pixel for pixel.
class ZelGUIBitmapButtonAbstract : public QPushButton
{
protected:
    /// Position and size are in font units. The bitmap is copied; without data or size there is no picture.
    ZelGUIBitmapButtonAbstract(QWidget *parent, int x, int y, int width, int height, const Bitmap &bitmap);
};

/// Reports each click.
class ZelGUIBitmapButton : public ZelGUIBitmapButtonAbstract
{
    Q_OBJECT

public:
    ZelGUIBitmapButton(QWidget *parent, int x, int y, int width, int height, const Bitmap &bitmap,
                       ZelGUIVoidCallback callback);

private Q_SLOTS:
    void buttonClicked();

private:
    ZelGUIVoidCallback m_callback;
};

/// Stays pressed while it is on, and reports its new state when the user has changed it.
class ZelGUIBitmapToggle : public ZelGUIBitmapButtonAbstract
{
    Q_OBJECT

public:
    ZelGUIBitmapToggle(QWidget *parent, int x, int y, int width, int height, const Bitmap &bitmap,
                       ZelGUIIntCallback callback);

private Q_SLOTS:
    void valueChangedCallback(bool isChecked);

private:
    ZelGUIIntCallback m_callback;
};

} // namespace orvane::zelgui

#endif
