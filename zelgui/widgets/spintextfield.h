// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_SPINTEXTFIELD_H
#define ZELGUI_WIDGETS_SPINTEXTFIELD_H

#include <zelgui/zelgui.h>

#include <QAbstractSpinBox>

namespace orvane::zelgui {

class ZelGUITextField;

/// A text field with arrows. A step is reported and changes nothing; what it means is the add-on's to decide.
class ZelGUISpinTextField : public QAbstractSpinBox
{
    Q_OBJECT

public:
    /// Position and size are in font units.
    ZelGUISpinTextField(QWidget *parent, int x, int y, int width, int height, ZelGUITextCallback textCallback,
                        ZelGUIVoidCallback upCallback, ZelGUIVoidCallback downCallback);

    ZelGUITextField *textField() const { return m_textField; }

    void stepBy(int steps) override;

protected:
    /// Both ways, whatever the text.
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
    void keyPressEvent(QKeyEvent *event) override;

private:
    ZelGUIVoidCallback m_upCallback;
    ZelGUIVoidCallback m_downCallback;
    ZelGUITextField *m_textField;
};

} // namespace orvane::zelgui

#endif
