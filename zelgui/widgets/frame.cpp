// SPDX-License-Identifier: MIT
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <zelgui/zelgui.h>

#include <QFrame>
#include <QGroupBox>

namespace orvane::zelgui {

namespace {

/// Pixels by which a frame with a title reaches above its place.
constexpr int kTitleRoom = 10;

/// A box around a group of widgets; with a title unless that is null.
class GroupFrame : public QGroupBox
{
public:
    GroupFrame(QWidget *parent, int x, int y, int width, int height, const char *title) : QGroupBox(parent)
    {
        placeWidget(this, x, y, width, height);
        const int titleRoom = title ? kTitleRoom : 0;
        move(this->x(), this->y() - titleRoom);
        setFixedSize(this->width(), this->height() + titleRoom);
        if (title)
            setTitle(fromUtf8(title));
        // What was made before and stands inside stays visible.
        lower();
    }
};

/// A line, one pixel thick.
class Separator : public QFrame
{
public:
    Separator(QWidget *parent, Shape shape, int x, int y, int length) : QFrame(parent)
    {
        setFrameShape(shape);
        if (shape == VLine) {
            placeWidget(this, x, y, 0, length);
            setFixedWidth(1);
        } else {
            placeWidget(this, x, y, length, 0);
            setFixedHeight(1);
        }
    }
};

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIFrameAdd(int parentId, int x, int y, int width, int height, const char *title)
{
    return addWidgetTo<GroupFrame>(parentId, x, y, width, height, title);
}

int ZelGUIVertSeparatorAdd(int parentId, int x, int y, int height)
{
    return addWidgetTo<Separator>(parentId, QFrame::VLine, x, y, height);
}

int ZelGUIHorzSeparatorAdd(int parentId, int x, int y, int width)
{
    return addWidgetTo<Separator>(parentId, QFrame::HLine, x, y, width);
}
