// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_SCALE_H
#define ZELGUI_WIDGETS_SCALE_H

#include <zelgui/zelgui.h>

#include <QLabel>
#include <QPointer>
#include <QSlider>

namespace orvane::zelgui {

/// A horizontal slider over whole numbers with a display of its value above it. The display is a child of the slider's
/// parent.
class ZelGUIScale : public QSlider
{
    Q_OBJECT

public:
    /// Position and size are in font units. Reports the minimum as the first step of a drag, unless that
    /// report of another scale is just running with the same callback.
    ZelGUIScale(QWidget *parent, int x, int y, int width, int height, int minimum, int maximum,
                ZelGUIIntCallback valueCallback, ZelGUIIntCallback dragCallback);

    QLabel *numericDisplay() const { return m_numericDisplay; }

protected:
    void timerEvent(QTimerEvent *event) override;

private Q_SLOTS:
    void onValueChanged(int value);
    void onActionTriggered(int action);

private:
    void addNumericDisplay();
    void reportMade();
    void showValue();

    ZelGUIIntCallback m_valueCallback;
    ZelGUIIntCallback m_dragCallback;
    QPointer<QLabel> m_numericDisplay;
};

} // namespace orvane::zelgui

#endif
