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

QGroupBox *makeFrame(QWidget &parent, int x, int y, int width, int height, const char *title)
{
    auto *const frame = new QGroupBox(&parent);
    placeWidget(frame, x, y, width, height);
    const int titleRoom = title ? kTitleRoom : 0;
    frame->move(frame->x(), frame->y() - titleRoom);
    frame->setFixedSize(frame->width(), frame->height() + titleRoom);
    if (title)
        frame->setTitle(fromUtf8(title));
    // What was made before and stands inside stays visible.
    frame->lower();
    return frame;
}

QFrame *makeSeparator(QWidget &parent, QFrame::Shape shape)
{
    auto *const separator = new QFrame(&parent);
    separator->setFrameShape(shape);
    return separator;
}

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIFrameAdd(int parentId, int x, int y, int width, int height, const char *title)
{
    return addTo(parentId, [=](QWidget &parent) { return makeFrame(parent, x, y, width, height, title); });
}

int ZelGUIVertSeparatorAdd(int parentId, int x, int y, int height)
{
    return addTo(parentId, [=](QWidget &parent) {
        QFrame *const line = makeSeparator(parent, QFrame::VLine);
        placeWidget(line, x, y, 0, height);
        line->setFixedWidth(1);
        return line;
    });
}

int ZelGUIHorzSeparatorAdd(int parentId, int x, int y, int width)
{
    return addTo(parentId, [=](QWidget &parent) {
        QFrame *const line = makeSeparator(parent, QFrame::HLine);
        placeWidget(line, x, y, width, 0);
        line->setFixedHeight(1);
        return line;
    });
}
