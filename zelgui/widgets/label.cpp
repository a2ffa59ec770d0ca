// SPDX-License-Identifier: MIT
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <zelgui/zelgui.h>

#include <QLabel>

using namespace orvane::zelgui;

int ZelGUILabelAdd(int parentId, int x, int y, const char *text)
{
    return addTo(parentId, [=](QWidget &parent) {
        auto *const label = new QLabel(&parent);
        placeWidget(label, x, y, 0, 0);
        label->setText(fromUtf8(text));
        label->setFixedWidth(label->sizeHint().width());
        return label;
    });
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
