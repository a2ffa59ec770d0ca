// SPDX-License-Identifier: MIT
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <zelgui/zelgui.h>

#include <QLabel>

namespace orvane::zelgui {

namespace {

/// A line of text as wide as the text that it is made with.
class Label : public QLabel
{
public:
    Label(QWidget *parent, int x, int y, const char *text) : QLabel(parent)
    {
        placeWidget(this, x, y, 0, 0);
        setText(fromUtf8(text));
        setFixedWidth(sizeHint().width());
    }
};

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUILabelAdd(int parentId, int x, int y, const char *text)
{
    return addWidgetTo<Label>(parentId, x, y, text);
}

void ZelGUILabelSetText(int labelId, const char *text)
{
    withWidget<QLabel>(labelId, [&](QLabel &label) { label.setText(fromUtf8(text)); });
}

void ZelGUILabelSetDouble(int labelId, double value, const char *format)
{
    withWidget<QLabel>(labelId, [&](QLabel &label) {
        const QString text = formatDouble(format, value);
        if (!text.isNull())
            label.setText(text);
    });
}

void ZelGUILabelSetLgIndex(int labelId, LgIndex value)
{
    withWidget<QLabel>(labelId, [&](QLabel &label) { label.setText(QString::number(static_cast<qint32>(value))); });
}
