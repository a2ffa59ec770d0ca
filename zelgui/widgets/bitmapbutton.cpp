// SPDX-License-Identifier: MIT
#include "widgets/bitmapbutton.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>

namespace orvane::zelgui {

namespace {

/// Null where the bitmap has no data or no size, or is too large for memory.
QImage toImage(const Bitmap &bitmap)
{
    if (!bitmap.rgbData || bitmap.width <= 0 || bitmap.height <= 0)
        return {};
    QImage image(bitmap.width, bitmap.height, QImage::Format_ARGB32);
    const unsigned char *source = bitmap.rgbData;
    for (int y = 0; y < image.height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x, source += 3) {
            const QRgb color = qRgb(source[0], source[1], source[2]);
            line[x] = color == bitmap.transparentColor ? color & RGB_MASK : color;
        }
    }
    return image;
}

} // namespace

ZelGUIBitmapButtonAbstract::ZelGUIBitmapButtonAbstract(QWidget *parent, int x, int y, int width, int height,
                                                       const Bitmap &bitmap)
    : QPushButton(parent)
{
    placeWidget(this, x, y, width, height);
    const QImage image = toImage(bitmap);
    if (image.isNull())
        return;
    setIcon(QIcon(QPixmap::fromImage(image)));
    setIconSize(image.size());
}

ZelGUIBitmapButton::ZelGUIBitmapButton(QWidget *parent, int x, int y, int width, int height, const Bitmap &bitmap,
                                       ZelGUIVoidCallback callback)
    : ZelGUIBitmapButtonAbstract(parent, x, y, width, height, bitmap), m_callback(callback)
{
    connect(this, &QPushButton::clicked, this, &ZelGUIBitmapButton::buttonClicked);
}

void ZelGUIBitmapButton::buttonClicked()
{
    report(this, m_callback);
}

ZelGUIBitmapToggle::ZelGUIBitmapToggle(QWidget *parent, int x, int y, int width, int height, const Bitmap &bitmap,
                                       ZelGUIIntCallback callback)
    : ZelGUIBitmapButtonAbstract(parent, x, y, width, height, bitmap), m_callback(callback)
{
    connect(this, &QPushButton::toggled, this, &ZelGUIBitmapToggle::valueChangedCallback);
    setCheckable(true);
}

void ZelGUIBitmapToggle::valueChangedCallback(bool isChecked)
{
    reportChange(this, m_callback, isChecked ? 1 : 0);
}

namespace {

Bitmap makeBitmap(int width, int height, const unsigned char *rgbData, ZelBoolean useTransparentColor, int red,
                  int green, int blue)
{
    Bitmap bitmap{width, height, rgbData, {}};
    if (useTransparentColor == 1)
        bitmap.transparentColor = qRgb(red, green, blue);
    return bitmap;
}

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIBitmapButtonAdd(int parentId, int x, int y, int width, int height, int bitmapWidth, int bitmapHeight,
                          const unsigned char *rgbData, ZelBoolean useTransparentColor, unsigned char transparentRed,
                          unsigned char transparentGreen, unsigned char transparentBlue, ZelGUIVoidCallback callback)
{
    return addWidgetTo<ZelGUIBitmapButton>(parentId, x, y, width, height,
                                           makeBitmap(bitmapWidth, bitmapHeight, rgbData, useTransparentColor,
                                                      transparentRed, transparentGreen, transparentBlue),
                                           callback);
}

int ZelGUIBitmapToggleAdd(int parentId, int x, int y, int width, int height, int bitmapWidth, int bitmapHeight,
                          const unsigned char *rgbData, ZelBoolean useTransparentColor, unsigned char transparentRed,
                          unsigned char transparentGreen, unsigned char transparentBlue, ZelGUIIntCallback callback)
{
    return addWidgetTo<ZelGUIBitmapToggle>(parentId, x, y, width, height,
                                           makeBitmap(bitmapWidth, bitmapHeight, rgbData, useTransparentColor,
                                                      transparentRed, transparentGreen, transparentBlue),
                                           callback);
}
