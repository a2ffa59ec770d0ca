// SPDX-License-Identifier: MIT
#include "widgets/spintextfield.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "widgets/fieldvalue.h"
#include "widgets/textfield.h"

#include <QKeyEvent>

namespace orvane::zelgui {

namespace {

/// Within the limits; the lower one counts where they contradict each other and the value is below it.
template <typename Number>
Number limited(Number value, Number min, Number max)
{
    if (min > value)
        return min;
    return value > max ? max : value;
}

} // namespace

ZelGUISpinTextField::ZelGUISpinTextField(QWidget *parent, int x, int y, int width, int height,
                                         ZelGUITextCallback textCallback, ZelGUIVoidCallback upCallback,
                                         ZelGUIVoidCallback downCallback)
    : QAbstractSpinBox(parent),
      m_upCallback(upCallback),
      m_downCallback(downCallback),
      m_textField(new ZelGUITextField(textCallback))
{
    placeWidget(this, x, y, width, height);
    setLineEdit(m_textField);
}

void ZelGUISpinTextField::stepBy(int steps)
{
    if (!ZelGUIWidgetRepository::instance()->callbacksSuppressed())
        report(this, steps >= 1 ? m_upCallback : m_downCallback);
}

void ZelGUISpinTextField::keyPressEvent(QKeyEvent *event)
{
    const QPointer<ZelGUISpinTextField> guard(this);
    QAbstractSpinBox::keyPressEvent(event);
    if (guard)
        m_textField->keepReturnIfRejected(event);
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUISpinTextFieldAdd(int parentId, int x, int y, int width, int height, ZelGUITextCallback textCallback,
                           ZelGUIVoidCallback upCallback, ZelGUIVoidCallback downCallback)
{
    return addWidgetTo<ZelGUISpinTextField>(parentId, x, y, width, height, textCallback, upCallback, downCallback);
}

ZelBoolean ZelGUISpinTextFieldIncDouble(int spinId, const char *format, double increment, double min, double max)
{
    return withWidget<ZelGUISpinTextField>(spinId, ZelBoolean{0}, [=](ZelGUISpinTextField &spin) -> ZelBoolean {
        QLineEdit &field = *spin.textField();
        const auto value = readDouble(field);
        return value && writeDouble(field, limited(*value + increment, min, max), format);
    });
}

ZelBoolean ZelGUISpinTextFieldIncLgIndex(int spinId, LgIndex increment, LgIndex min, LgIndex max)
{
    return withWidget<ZelGUISpinTextField>(spinId, ZelBoolean{0}, [=](ZelGUISpinTextField &spin) -> ZelBoolean {
        QLineEdit &field = *spin.textField();
        const auto value = readLgIndex(field);
        return value && writeLgIndex(field, limited(saturatingSum(*value, increment), min, max), false);
    });
}
