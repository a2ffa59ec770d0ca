// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_RADIOBOX_H
#define ZELGUI_WIDGETS_RADIOBOX_H

#include <zelgui/zelgui.h>

#include <QButtonGroup>

#include <array>

namespace orvane::zelgui {

/// Radio buttons in a column, of which one is checked. The group stands for them; they are children of its parent.
class ZelGUIRadioBox : public QButtonGroup
{
    Q_OBJECT

public:
    /// The first two always count, the others unless they are null.
    using Labels = std::array<const char *, 5>;

    /// Position and size are in font units; each button gets an equal share of the height.
    ZelGUIRadioBox(QWidget *parent, int x, int y, int width, int height, const Labels &labels,
                   ZelGUIIntCallback callback);

private Q_SLOTS:
    void onButtonClicked(int id);
    void onButtonToggled(int id, bool isChecked);

private:
    ZelGUIIntCallback m_callback;
    /// Whether a button is pressed, so that a click will follow.
    bool m_isPressed = false;
};

} // namespace orvane::zelgui

#endif
