// SPDX-License-Identifier: MIT
#include "widgets/button.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <zvsdkdialogs_prompt_qt/colorchooserdialog.h>

#include <QIcon>
#include <QPixmap>

#include <algorithm>
#include <limits>

namespace orvane::zelgui {

namespace {

/// A line of text needs room above and below it in a button's frame.
int withRoomForFrame(int height)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<double>(height * 1.1, Limits::min(), Limits::max()));
}

QIcon swatch(const QAbstractButton &button, int color)
{
    if (color < 0)
        return {};
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;
    ZelUtilColorMapGetBasicColorRGB(color, &red, &green, &blue);
    QPixmap pixmap(button.iconSize().width(), static_cast<int>(button.height() * 0.6));
    pixmap.fill(QColor(red, green, blue));
    return QIcon(pixmap);
}

void showColor(QAbstractButton &button, int color)
{
    button.setIcon(swatch(button, color));
    button.setText(fromLatin1(dialogs::prompt::ColorChooserDialog::colorToString(color, true).c_str()));
}

} // namespace

ZelGUIButton::ZelGUIButton(QWidget *parent, int x, int y, int width, int height, const char *label,
                           ZelGUIVoidCallback callback)
    : QPushButton(parent), m_callback(callback)
{
    // Not by the base's constructor: the toolkit would make this button's accessible interface twice, the first time
    // for what is a QPushButton until then.
    setText(fromTrimmedLatin1(label));
    placeWidget(this, x, y, width, withRoomForFrame(height));
    connect(this, &QPushButton::clicked, this, &ZelGUIButton::buttonClicked);
    setDefault(false);
    setAutoDefault(false);
}

void ZelGUIButton::buttonClicked()
{
    report(this, m_callback);
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIButtonAdd(int parentId, int x, int y, int width, int height, const char *label, ZelGUIVoidCallback callback)
{
    return addWidgetTo<ZelGUIButton>(parentId, x, y, width, height, label, callback);
}

void ZelGUIButtonSetText(int buttonId, const char *label)
{
    withWidget<QAbstractButton>(buttonId, [&](QAbstractButton &button) { button.setText(fromLatin1(label)); });
}

void ZelGUIButtonSetDefault(int, int buttonId)
{
    withWidget<QPushButton>(buttonId, [](QPushButton &button) { button.setDefault(true); });
}

void ZelGUIColoredButtonSetColor(int buttonId, int color)
{
    withWidget<QAbstractButton>(buttonId, [&](QAbstractButton &button) { showColor(button, color); });
}
