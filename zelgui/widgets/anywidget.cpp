// SPDX-License-Identifier: MIT
// What can be done to a widget of any kind.
#include "core/entrypoint.h"
#include "core/text.h"
#include "widgets/radiobox.h"
#include "widgets/scale.h"
#include "widgets/spintextfield.h"
#include "widgets/textfield.h"

#include <zelgui/zelgui.h>

#include <QAbstractButton>
#include <QAction>
#include <QLabel>

#include <vector>

namespace orvane::zelgui {

namespace {

using Constituents = std::vector<QPointer<QWidget>>;

/// The widgets that make up what an identifier names, the chief one first. Guarded: what is done to one of them may
/// make an add-on destroy the others.
Constituents constituentWidgets(QObject &object)
{
    if (const auto *const radioBox = qobject_cast<ZelGUIRadioBox *>(&object)) {
        const auto buttons = radioBox->buttons();
        return {buttons.begin(), buttons.end()};
    }
    if (auto *const scale = qobject_cast<ZelGUIScale *>(&object))
        return {scale, scale->numericDisplay()};
    if (auto *const spin = qobject_cast<ZelGUISpinTextField *>(&object))
        return {spin, spin->textField()};
    return {qobject_cast<QWidget *>(&object)};
}

/// Does something to a menu item, or else to each of the widgets that make an object up.
template <typename ItemAction, typename WidgetAction>
void forItemOrWidgets(int id, ItemAction itemAction, WidgetAction widgetAction)
{
    withWidget<QObject>(id, [&](QObject &object) {
        if (auto *const item = qobject_cast<QAction *>(&object)) {
            itemAction(*item);
            return;
        }
        for (const QPointer<QWidget> &widget : constituentWidgets(object)) {
            if (widget)
                widgetAction(*widget);
        }
    });
}

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

void ZelGUISetToolTip(int id, const char *text)
{
    forItemOrWidgets(
        id, [](QAction &) {}, [text](QWidget &widget) { widget.setToolTip(fromUtf8(text)); });
}

void ZelGUISetInputFocus(int id)
{
    withWidget<QObject>(id, [](QObject &object) {
        const Constituents widgets = constituentWidgets(object);
        if (!widgets.empty() && widgets.front())
            widgets.front()->setFocus(Qt::OtherFocusReason);
    });
}

void ZelGUISetSensitivity(int id, ZelBoolean sensitive)
{
    const bool isEnabled = sensitive == 1;
    forItemOrWidgets(
        id, [=](QAction &item) { item.setEnabled(isEnabled); }, [=](QWidget &widget) { widget.setEnabled(isEnabled); });
}

void ZelGUISetVisibility(int id, ZelBoolean visible)
{
    const bool isVisible = visible == 1;
    forItemOrWidgets(
        id, [=](QAction &item) { item.setVisible(isVisible); }, [=](QWidget &widget) { widget.setVisible(isVisible); });
}
