// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_OPTIONMENU_H
#define ZELGUI_WIDGETS_OPTIONMENU_H

#include "core/placement.h"

#include <zelgui/zelgui.h>

#include <QComboBox>

namespace orvane::zelgui {

/// A drop-down list, which reports the position that the user has chosen.
class ZelGUIOptionMenu : public QComboBox
{
    Q_OBJECT

public:
    /// Position and size are in font units; the items stand in one text, separated by commas.
    ZelGUIOptionMenu(QWidget *parent, int x, int y, int width, int height, const char *itemList,
                     ZelGUIIntCallback callback);

    QSize sizeHint() const override { return limitedHint(QComboBox::sizeHint()); }

private Q_SLOTS:
    void onCurrentIndexChanged(int index);

private:
    ZelGUIIntCallback m_callback;
};

} // namespace orvane::zelgui

#endif
