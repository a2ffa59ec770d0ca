// SPDX-License-Identifier: MIT
#include "widgets/toggle.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

namespace orvane::zelgui {

ZelGUIToggle::ZelGUIToggle(QWidget *parent, int x, int y, int width, int height, const char *label,
                           ZelGUIIntCallback callback)
    : QCheckBox(parent), m_callback(callback)
{
    // Not by the base's constructor, as for buttons.
    setText(fromTrimmedLatin1(label));
    placeWidget(this, x, y, width, height);
    // Not stateChanged(): after an add-on has set the box back in its callback, that misses the user's next change.
    connect(this, &QCheckBox::toggled, this, &ZelGUIToggle::onValueChangedCallback);
}

void ZelGUIToggle::onValueChangedCallback(bool isChecked)
{
    reportChange(this, m_callback, isChecked ? 1 : 0);
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIToggleAdd(int parentId, int x, int y, int width, int height, const char *label, ZelGUIIntCallback callback)
{
    return addWidgetTo<ZelGUIToggle>(parentId, x, y, width, height, label, callback);
}

ZelBoolean ZelGUIToggleGet(int toggleId)
{
    return withWidget<QAbstractButton>(toggleId, ZelBoolean{0},
                                       [](const QAbstractButton &button) -> ZelBoolean { return button.isChecked(); });
}

void ZelGUIToggleSet(int toggleId, ZelBoolean value)
{
    withWidget<QAbstractButton>(toggleId, [&](QAbstractButton &button) {
        const CallbackSuppressor suppressor;
        button.setChecked(value == 1);
    });
}
