// SPDX-License-Identifier: MIT
#include "aim.h"

#include "../widgetnames.h"
#include "words.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>

namespace {

QStyleOptionSlider styleOption(const QSlider &slider)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.subControls = QStyle::SC_None;
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.tickPosition = slider.tickPosition();
    option.tickInterval = slider.tickInterval();
    option.upsideDown = slider.orientation() == Qt::Horizontal
                            ? slider.invertedAppearance() != (option.direction == Qt::RightToLeft)
                            : !slider.invertedAppearance();
    option.sliderPosition = slider.sliderPosition();
    option.sliderValue = slider.value();
    option.singleStep = slider.singleStep();
    option.pageStep = slider.pageStep();
    if (slider.orientation() == Qt::Horizontal)
        option.state |= QStyle::State_Horizontal;
    return option;
}

QRect part(const QSlider &slider, QStyle::SubControl control)
{
    const QStyleOptionSlider option = styleOption(slider);
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, control, &slider);
}

QRect arrowRect(const QAbstractSpinBox &spin, bool up)
{
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.frame = spin.hasFrame();
    option.buttonSymbols = spin.buttonSymbols();
    option.subControls = QStyle::SC_All;
    option.stepEnabled = QAbstractSpinBox::StepUpEnabled | QAbstractSpinBox::StepDownEnabled;
    const QStyle::SubControl arrow = up ? QStyle::SC_SpinBoxUp : QStyle::SC_SpinBoxDown;
    return spin.style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, &spin);
}

} // namespace

QPoint clickPoint(const QWidget &widget)
{
    // Of a check box, only the box and its text take clicks.
    QStyleOptionButton option;
    option.initFrom(&widget);
    if (qobject_cast<const QCheckBox *>(&widget))
        return widget.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &widget).center();
    if (qobject_cast<const QRadioButton *>(&widget))
        return widget.style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, &widget).center();
    // Anywhere else on a scale would move it.
    if (const auto *const slider = qobject_cast<const QSlider *>(&widget))
        return handleRect(*slider).center();
    return widget.rect().center();
}

QPoint arrowPoint(const QAbstractSpinBox &spin, bool up)
{
    return arrowRect(spin, up).center();
}

int arrowAt(const QAbstractSpinBox &spin, const QPoint &position)
{
    if (arrowRect(spin, true).contains(position))
        return 1;
    return arrowRect(spin, false).contains(position) ? -1 : 0;
}

QRect handleRect(const QSlider &slider)
{
    return part(slider, QStyle::SC_SliderHandle);
}

QPoint pagePoint(const QSlider &slider, bool up)
{
    const QRect handle = handleRect(slider);
    const QRect groove = part(slider, QStyle::SC_SliderGroove);
    QPoint point = handle.center();
    const QStyleOptionSlider option = styleOption(slider);
    if (slider.orientation() == Qt::Horizontal)
        point.setX(up != option.upsideDown ? handle.right() + 2 : handle.left() - 2);
    else
        point.setY(up != option.upsideDown ? handle.bottom() + 2 : handle.top() - 2);
    return groove.contains(point) ? point : QPoint();
}

QPoint dragPoint(const QSlider &slider, int value)
{
    const QStyleOptionSlider option = styleOption(slider);
    const QRect handle = handleRect(slider);
    const QRect groove = part(slider, QStyle::SC_SliderGroove);
    const bool isHorizontal = slider.orientation() == Qt::Horizontal;
    const int room = isHorizontal ? groove.width() - handle.width() : groove.height() - handle.height();
    const int offset = QStyle::sliderPositionFromValue(option.minimum, option.maximum, value, room, option.upsideDown);
    if (QStyle::sliderValueFromPosition(option.minimum, option.maximum, offset, room, option.upsideDown) != value)
        return {};
    QPoint point = handle.center();
    // The handle is held at its middle.
    if (isHorizontal)
        point.setX(groove.left() + offset + (handle.center().x() - handle.left()));
    else
        point.setY(groove.top() + offset + (handle.center().y() - handle.top()));
    return point;
}

QString obstacle(const QWidget &widget, const QPoint &position)
{
    const QWidget *const window = widget.window();
    const QWidget *const hit = window->childAt(widget.mapTo(window, position));
    if (hit == &widget || (hit && widget.isAncestorOf(hit)) || &widget == window)
        return {};
    if (!hit || hit->isAncestorOf(&widget))
        return QStringLiteral("it is outside of what its dialog shows");
    const QString name = captionOf(*hit);
    return name.isEmpty() ? QStringLiteral("another widget covers it")
                          : QStringLiteral("%1 covers it").arg(quoted(name));
}
