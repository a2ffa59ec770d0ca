// SPDX-License-Identifier: MIT
#include "widgets/scale.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"

#include <QGuiApplication>
#include <QLabel>
#include <QMouseEvent>

#include <algorithm>
#include <limits>
#include <vector>

namespace orvane::zelgui {

namespace {

/// The toolkit divides by zero when it paints a slider whose limits are 2^31 or more apart.
int paintableMaximum(int minimum, int maximum)
{
    using Limits = std::numeric_limits<int>;
    return minimum < 0 && maximum > Limits::max() + minimum ? Limits::max() + minimum : maximum;
}

} // namespace

ZelGUIScale::ZelGUIScale(QWidget *parent, int x, int y, int width, int height, int minimum, int maximum,
                         ZelGUIIntCallback valueCallback, ZelGUIIntCallback dragCallback)
    : QSlider(Qt::Horizontal, parent), m_valueCallback(valueCallback), m_dragCallback(dragCallback)
{
    setRange(minimum, paintableMaximum(minimum, maximum));
    setSliderPosition(minimum);
    placeWidget(this, x, y, width, height);
    setTickInterval(1);
    addNumericDisplay();
    reportMade();
    showValue();
    connect(this, &QSlider::valueChanged, this, &ZelGUIScale::onValueChanged);
    connect(this, &QSlider::actionTriggered, this, &ZelGUIScale::onActionTriggered);
}

void ZelGUIScale::addNumericDisplay()
{
    m_numericDisplay = new QLabel(parentWidget());
    const int lineHeight = QFontMetrics(parentWidget()->font()).height();
    m_numericDisplay->move(x(), y() - lineHeight);
    m_numericDisplay->setFixedSize(width(), lineHeight);
    m_numericDisplay->setAlignment(Qt::AlignHCenter);
}

void ZelGUIScale::reportMade()
{
    // Never deleted: add-ons may still call while the process ends.
    static auto &running = *new std::vector<ZelGUIIntCallback>;
    // A callback that makes another scale with itself would never come to an end.
    if (std::find(running.begin(), running.end(), m_dragCallback) != running.end())
        return;
    running.push_back(m_dragCallback);
    const int value = minimum();
    report<const int *>(this, m_dragCallback, &value);
    running.pop_back();
}

void ZelGUIScale::showValue()
{
    if (m_numericDisplay)
        m_numericDisplay->setNum(value());
}

void ZelGUIScale::onValueChanged(int value)
{
    const QPointer<ZelGUIScale> guard(this);
    reportChange(this, m_valueCallback, value);
    if (guard)
        showValue();
}

void ZelGUIScale::onActionTriggered(int action)
{
    if (action != SliderMove)
        return;
    // As it was before this step: the toolkit applies the new position afterwards.
    const int before = value();
    const QPointer<ZelGUIScale> guard(this);
    report<const int *>(this, m_dragCallback, &before);
    if (guard)
        showValue();
}

/// Steps on while the button of the mouse is held down in the groove. A message that a callback shows may have got the
/// release; then the scale lets go of the mouse now.
void ZelGUIScale::timerEvent(QTimerEvent *event)
{
    if (QGuiApplication::mouseButtons() != Qt::NoButton) {
        QSlider::timerEvent(event);
        return;
    }
    const QPoint center = rect().center();
    QMouseEvent release(QEvent::MouseButtonRelease, center, mapToGlobal(center), Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    mouseReleaseEvent(&release);
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIScaleAdd(int parentId, int x, int y, int width, int height, int minimum, int maximum, int,
                   ZelGUIIntCallback valueChanged, ZelGUIIntCallback dragged)
{
    return addWidgetTo<ZelGUIScale>(parentId, x, y, width, height, minimum, maximum, valueChanged, dragged);
}

int ZelGUIScaleGetValue(int scaleId)
{
    return withWidget<QAbstractSlider>(scaleId, -1, [](const QAbstractSlider &slider) { return slider.value(); });
}

void ZelGUIScaleSetValue(int scaleId, int value)
{
    withWidget<QAbstractSlider>(scaleId, [value](QAbstractSlider &slider) {
        const CallbackSuppressor suppressor;
        slider.setValue(value);
    });
}

void ZelGUIScaleSetLimits(int scaleId, int minimum, int maximum)
{
    withWidget<QAbstractSlider>(scaleId, [=](QAbstractSlider &slider) {
        const CallbackSuppressor suppressor;
        slider.setMinimum(minimum);
        slider.setMaximum(paintableMaximum(minimum, maximum));
    });
}

void ZelGUIScaleShowNumericDisplay(int scaleId, ZelBoolean show)
{
    withWidget<ZelGUIScale>(scaleId, [show](const ZelGUIScale &scale) {
        // A host may have deleted it.
        if (scale.numericDisplay())
            scale.numericDisplay()->setVisible(show == 1);
    });
}
