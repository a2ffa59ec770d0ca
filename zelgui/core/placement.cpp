// SPDX-License-Identifier: MIT
#include "core/placement.h"

#include <zvsdkbase/zelutil.h>

#include <QAbstractScrollArea>
#include <QDialog>
#include <QFontMetrics>
#include <QLabel>
#include <QScrollBar>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace orvane::zelgui {

namespace {

/// Beyond these, window systems and the toolkit's own "no limit" value misbehave.
constexpr double kLargestPixels = 32767;
constexpr double kLargestDialogPixels = 8192;

/// Horizontal over vertical resolution. A host that reports nonsense gets square pixels.
double resolutionRatio()
{
    double horizontal = 0;
    double vertical = 0;
    ZelUtilInterfaceGetDotsPerInch(&horizontal, &vertical);
    const auto isSensible = [](double resolution) { return std::isfinite(resolution) && resolution > 0; };
    const double ratio = horizontal / vertical;
    return isSensible(horizontal) && isSensible(vertical) && isSensible(ratio) ? ratio : 1;
}

/// Font units to pixels. Multiplications keep their order and 0.499 is added last, so that results agree to the pixel
/// with dialogs that add-ons have laid out by them.
class PixelScale
{
public:
    PixelScale(const QWidget &widget, double largest)
        : m_fontHeight(widget.fontMetrics().height()), m_ratio(resolutionRatio()), m_largest(largest)
    {}

    int across(int units) const { return toPixels(units / 100.0 * m_fontHeight * m_ratio * 0.45); }
    int down(int units) const { return toPixels(units / 100.0 * m_fontHeight); }

private:
    int toPixels(double pixels) const { return static_cast<int>(std::min(std::max(0.0, pixels + 0.499), m_largest)); }

    double m_fontHeight;
    double m_ratio;
    double m_largest;
};

void placeUpTo(double largest, QWidget &widget, int x, int y, int width, int height)
{
    const PixelScale scale(widget, largest);
    const QPoint position(scale.across(x), scale.down(y));
    const QSize size(scale.across(width), scale.down(height));
    if (x > 0 && y > 0)
        widget.move(position);

    // Fixing both dimensions at once spares the first paint a good part of its time.
    if (width > 0 && height > 0)
        widget.setFixedSize(size);
    else if (width > 0)
        widget.setFixedWidth(size.width());
    else if (height > 0)
        widget.setFixedHeight(size.height());
}

} // namespace

void placeWidget(QWidget *widget, int x, int y, int width, int height)
{
    placeUpTo(kLargestPixels, *widget, x, y, width, height);
    widget->setFocusPolicy(Qt::StrongFocus);
}

void placeWidget(QLabel *label, int x, int y, int width, int height)
{
    placeUpTo(kLargestPixels, *label, x, y, width, height);
}

void placeWidget(QDialog *dialog, int x, int y, int width, int height)
{
    placeUpTo(kLargestDialogPixels, *dialog, x, y, width, height);
}

void limitWindow(QWidget &window)
{
    window.setMaximumSize(static_cast<int>(kLargestDialogPixels), static_cast<int>(kLargestDialogPixels));
}

void allowBarsByRoom(QAbstractScrollArea &area)
{
    const int bars = area.verticalScrollBar()->sizeHint().width() + area.horizontalScrollBar()->sizeHint().height();
    const QSize room = area.maximumSize() - QSize(bars, bars);
    const bool hasRoom = room.width() > 2 * area.frameWidth() && room.height() > 2 * area.frameWidth();
    const Qt::ScrollBarPolicy policy = hasRoom ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    area.setVerticalScrollBarPolicy(policy);
    area.setHorizontalScrollBarPolicy(policy);
}

} // namespace orvane::zelgui
