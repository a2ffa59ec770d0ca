// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_TOGGLE_H
#define ZELGUI_WIDGETS_TOGGLE_H

#include <zelgui/zelgui.h>

#include <QCheckBox>

namespace orvane::zelgui {

/// A check box, which reports its new state when the user has changed it.
class ZelGUIToggle : public QCheckBox
{
    Q_OBJECT

public:
    /// Position and size are in font units.
    ZelGUIToggle(QWidget *parent, int x, int y, int width, int height, const char *label, ZelGUIIntCallback callback);

private Q_SLOTS:
    void onValueChangedCallback(bool isChecked);

private:
    ZelGUIIntCallback m_callback;
};

} // namespace orvane::zelgui

#endif
