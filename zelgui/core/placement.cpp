// SPDX-License-Identifier: MIT
#include "core/placement.h"

#include <zvsdkbase/zelutil.h>

#include <QDialog>
#include <QFontMetrics>
#include <QLabel>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace orvane::zelgui {

namespace {

/// No dialog is larger, so nothing beyond can be seen. A style would paint larger buttons into pictures of gigabytes.
constexpr int kLargestSize = 8192;
/// Beyond this, window systems and the toolkit's own "no limit" value misbehave.
constexpr int kLargestPosition = 32767;

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
    explicit PixelScale(const QWidget &widget) : m_fontHeight(widget.fontMetrics().height()), m_ratio(resolutionRatio())
    {}

    int across(int units, int largest) const
    {
        return toPixels(units / 100.0 * m_fontHeight * m_ratio * 0.45, largest);
    }
    int down(int units, int largest) const { return toPixels(units / 100.0 * m_fontHeight, largest); }

private:
    static int toPixels(double pixels, int largest)
    {
        return static_cast<int>(std::min<double>(std::max(0.0, pixels + 0.499), largest));
    }

    double m_fontHeight;
    double m_ratio;
};

void placeOnly(QWidget &widget, int x, int y, int width, int height)
{
    const PixelScale scale(widget);
    const QSize size(scale.across(width, kLargestSize), scale.down(height, kLargestSize));
    if (x > 0 && y > 0)
        widget.move(scale.across(x, kLargestPosition), scale.down(y, kLargestPosition));

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
    placeOnly(*widget, x, y, width, height);
    widget->setFocusPolicy(Qt::StrongFocus);
}

void placeWidget(QLabel *label, int x, int y, int width, int height)
{
    placeOnly(*label, x, y, width, height);
}

void placeWidget(QDialog *dialog, int x, int y, int width, int height)
{
    placeOnly(*dialog, x, y, width, height);
}

void limitWindow(QWidget &window)
{
    window.setMaximumSize(kLargestSize, kLargestSize);
}

QSize limitedHint(const QSize &hint)
{
    return hint.boundedTo(QSize(kLargestSize, kLargestSize));
}

} // namespace orvane::zelgui
