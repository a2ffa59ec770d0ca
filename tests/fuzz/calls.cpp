// SPDX-License-Identifier: MIT
#include "fuzz/calls.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <tuple>
#include <utility>

namespace {

std::function<void()> modalStep;
int modalDepth = 0;

// A launch returns when its dialog is hidden, so something has to hide it.
void launch(int dialog)
{
    constexpr int kDeepest = 3;
    if (modalDepth == kDeepest)
        return;
    ++modalDepth;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [] {
        const QPointer<QWidget> modal(QApplication::activeModalWidget());
        if (!modal)
            return;
        modalStep();
        if (modal)
            modal->hide();
    });
    timer.start(0);
    ZelGUIDialogLaunch(dialog);
    --modalDepth;
}

// The three functions whose arguments have to fit one another.

int addBitmapButton(int parent, int x, int y, int width, int height, Picture picture, ZelBoolean isTransparent,
                    unsigned char red, unsigned char green, unsigned char blue, ZelGUIVoidCallback callback)
{
    const unsigned char *const pixels = picture.pixels.empty() ? nullptr : picture.pixels.data();
    return ZelGUIBitmapButtonAdd(parent, x, y, width, height, picture.width, picture.height, pixels, isTransparent, red,
                                 green, blue, callback);
}

int addBitmapToggle(int parent, int x, int y, int width, int height, Picture picture, ZelBoolean isTransparent,
                    unsigned char red, unsigned char green, unsigned char blue, ZelGUIIntCallback callback)
{
    const unsigned char *const pixels = picture.pixels.empty() ? nullptr : picture.pixels.data();
    return ZelGUIBitmapToggleAdd(parent, x, y, width, height, picture.width, picture.height, pixels, isTransparent, red,
                                 green, blue, callback);
}

void selectItems(int list, Positions positions)
{
    ZelGUIListSetSelectedItems(list, positions.all.data(), int(positions.all.size()));
}

// In braces, arguments are made from left to right, the same with every compiler.
template <typename... Parameters>
using Arguments = std::tuple<std::unique_ptr<DecodedArgument<Parameters>>...>;

template <typename Result, typename... Parameters>
auto calling(Result (*function)(Parameters...))
{
    return [function](CallContext &context) {
        const Arguments<Parameters...> arguments{std::make_unique<DecodedArgument<Parameters>>(context)...};
        std::apply([function](auto &...each) { static_cast<void>(function(each->value()...)); }, arguments);
    };
}

template <typename... Parameters>
auto calling(char *(*function)(Parameters...))
{
    return [function](CallContext &context) {
        const Arguments<Parameters...> arguments{std::make_unique<DecodedArgument<Parameters>>(context)...};
        char *text = std::apply([function](auto &...each) { return function(each->value()...); }, arguments);
        ZelUtilStringDealloc(&text);
    };
}

} // namespace

void setModalStep(std::function<void()> step)
{
    modalStep = std::move(step);
}

const std::vector<Call> &calls()
{
    static const std::vector<Call> all = {
        {"ZelGUIBitmapButtonAdd", calling(addBitmapButton)},
        {"ZelGUIBitmapToggleAdd", calling(addBitmapToggle)},
        {"ZelGUIBlockForModalDialog", calling(ZelGUIBlockForModalDialog)},
        {"ZelGUIButtonAdd", calling(ZelGUIButtonAdd)},
        {"ZelGUIButtonSetDefault", calling(ZelGUIButtonSetDefault)},
        {"ZelGUIButtonSetText", calling(ZelGUIButtonSetText)},
        {"ZelGUIColoredButtonAdd", calling(ZelGUIColoredButtonAdd)},
        {"ZelGUIColoredButtonSetColor", calling(ZelGUIColoredButtonSetColor)},
        {"ZelGUIDialogAddButtonToButtonBox", calling(ZelGUIDialogAddButtonToButtonBox)},
        {"ZelGUIDialogApplySetSensitivity", calling(ZelGUIDialogApplySetSensitivity)},
        {"ZelGUIDialogCreateModal", calling(ZelGUIDialogCreateModal)},
        {"ZelGUIDialogCreateModeless", calling(ZelGUIDialogCreateModeless)},
        {"ZelGUIDialogDrop", calling(ZelGUIDialogDrop)},
        {"ZelGUIDialogEnableActionArea", calling(ZelGUIDialogEnableActionArea)},
        {"ZelGUIDialogIsUp", calling(ZelGUIDialogIsUp)},
        {"ZelGUIDialogLaunch", calling(launch)},
        {"ZelGUIDialogSetLaunchPosition", calling(ZelGUIDialogSetLaunchPosition)},
        {"ZelGUIDialogSetLaunchPositionX", calling(ZelGUIDialogSetLaunchPositionX)},
        {"ZelGUIDialogSetPosition", calling(ZelGUIDialogSetPosition)},
        {"ZelGUIDialogSetPositionX", calling(ZelGUIDialogSetPositionX)},
        {"ZelGUIDialogSetTitle", calling(ZelGUIDialogSetTitle)},
        {"ZelGUIDialogSetTopmost", calling(ZelGUIDialogSetTopmost)},
        {"ZelGUIFormAdd", calling(ZelGUIFormAdd)},
        {"ZelGUIFormAddPage", calling(ZelGUIFormAddPage)},
        {"ZelGUIFormSetCurrentPage", calling(ZelGUIFormSetCurrentPage)},
        {"ZelGUIFrameAdd", calling(ZelGUIFrameAdd)},
        {"ZelGUIHorzSeparatorAdd", calling(ZelGUIHorzSeparatorAdd)},
        {"ZelGUILabelAdd", calling(ZelGUILabelAdd)},
        {"ZelGUILabelSetDouble", calling(ZelGUILabelSetDouble)},
        {"ZelGUILabelSetLgIndex", calling(ZelGUILabelSetLgIndex)},
        {"ZelGUILabelSetSet", calling(ZelGUILabelSetSet)},
        {"ZelGUILabelSetText", calling(ZelGUILabelSetText)},
        {"ZelGUIListAdd", calling(ZelGUIListAdd)},
        {"ZelGUIListAppendItem", calling(ZelGUIListAppendItem)},
        {"ZelGUIListDeleteAllItems", calling(ZelGUIListDeleteAllItems)},
        {"ZelGUIListDeleteItemAtPos", calling(ZelGUIListDeleteItemAtPos)},
        {"ZelGUIListDeselectAllItems", calling(ZelGUIListDeselectAllItems)},
        {"ZelGUIListGetCapacity", calling(ZelGUIListGetCapacity)},
        {"ZelGUIListGetItemCount", calling(ZelGUIListGetItemCount)},
        {"ZelGUIListGetSelectedItem", calling(ZelGUIListGetSelectedItem)},
        {"ZelGUIListGetSelectedItems", calling(ZelGUIListGetSelectedItems)},
        {"ZelGUIListGetString", calling(ZelGUIListGetString)},
        {"ZelGUIListGetTopItemNum", calling(ZelGUIListGetTopItemNum)},
        {"ZelGUIListReplaceItem", calling(ZelGUIListReplaceItem)},
        {"ZelGUIListSelectAllItems", calling(ZelGUIListSelectAllItems)},
        {"ZelGUIListSetItems", calling(ZelGUIListSetItems)},
        {"ZelGUIListSetSelectedItem", calling(ZelGUIListSetSelectedItem)},
        {"ZelGUIListSetSelectedItems", calling(selectItems)},
        {"ZelGUIListSetTopItemNum", calling(ZelGUIListSetTopItemNum)},
        {"ZelGUIMenuAdd", calling(ZelGUIMenuAdd)},
        {"ZelGUIMenuAddItem", calling(ZelGUIMenuAddItem)},
        {"ZelGUIMenuAddSeparator", calling(ZelGUIMenuAddSeparator)},
        {"ZelGUIMenuAddToggle", calling(ZelGUIMenuAddToggle)},
        {"ZelGUIMenuBarAdd", calling(ZelGUIMenuBarAdd)},
        {"ZelGUIMenuDeleteItem", calling(ZelGUIMenuDeleteItem)},
        {"ZelGUIMenuItemSetText", calling(ZelGUIMenuItemSetText)},
        {"ZelGUIMenuSetToggle", calling(ZelGUIMenuSetToggle)},
        {"ZelGUIOptionMenuAdd", calling(ZelGUIOptionMenuAdd)},
        {"ZelGUIOptionMenuAppendItem", calling(ZelGUIOptionMenuAppendItem)},
        {"ZelGUIOptionMenuDeleteAllItems", calling(ZelGUIOptionMenuDeleteAllItems)},
        {"ZelGUIOptionMenuDeleteItemAtPos", calling(ZelGUIOptionMenuDeleteItemAtPos)},
        {"ZelGUIOptionMenuGet", calling(ZelGUIOptionMenuGet)},
        {"ZelGUIOptionMenuGetItemCount", calling(ZelGUIOptionMenuGetItemCount)},
        {"ZelGUIOptionMenuGetString", calling(ZelGUIOptionMenuGetString)},
        {"ZelGUIOptionMenuReplaceItem", calling(ZelGUIOptionMenuReplaceItem)},
        {"ZelGUIOptionMenuSet", calling(ZelGUIOptionMenuSet)},
        {"ZelGUIOptionMenuSetByString", calling(ZelGUIOptionMenuSetByString)},
        {"ZelGUIRadioBoxAdd", calling(ZelGUIRadioBoxAdd)},
        {"ZelGUIRadioBoxGetToggle", calling(ZelGUIRadioBoxGetToggle)},
        {"ZelGUIRadioBoxSetToggle", calling(ZelGUIRadioBoxSetToggle)},
        {"ZelGUIScaleAdd", calling(ZelGUIScaleAdd)},
        {"ZelGUIScaleGetValue", calling(ZelGUIScaleGetValue)},
        {"ZelGUIScaleSetLimits", calling(ZelGUIScaleSetLimits)},
        {"ZelGUIScaleSetValue", calling(ZelGUIScaleSetValue)},
        {"ZelGUIScaleShowNumericDisplay", calling(ZelGUIScaleShowNumericDisplay)},
        {"ZelGUISetInputFocus", calling(ZelGUISetInputFocus)},
        {"ZelGUISetSensitivity", calling(ZelGUISetSensitivity)},
        {"ZelGUISetStatusLine", calling(ZelGUISetStatusLine)},
        {"ZelGUISetToolTip", calling(ZelGUISetToolTip)},
        {"ZelGUISetVisibility", calling(ZelGUISetVisibility)},
        {"ZelGUISidebarActivate", calling(ZelGUISidebarActivate)},
        {"ZelGUISidebarDeactivateAll", calling(ZelGUISidebarDeactivateAll)},
        {"ZelGUISidebarIsActive", calling(ZelGUISidebarIsActive)},
        {"ZelGUISidebarRegister", calling(ZelGUISidebarRegister)},
        {"ZelGUISpinTextFieldAdd", calling(ZelGUISpinTextFieldAdd)},
        {"ZelGUISpinTextFieldIncDouble", calling(ZelGUISpinTextFieldIncDouble)},
        {"ZelGUISpinTextFieldIncLgIndex", calling(ZelGUISpinTextFieldIncLgIndex)},
        {"ZelGUITabAdd", calling(ZelGUITabAdd)},
        {"ZelGUITabAddPage", calling(ZelGUITabAddPage)},
        {"ZelGUITabSetCurrentPage", calling(ZelGUITabSetCurrentPage)},
        {"ZelGUITextAdd", calling(ZelGUITextAdd)},
        {"ZelGUITextAddKeyEventCallback", calling(ZelGUITextAddKeyEventCallback)},
        {"ZelGUITextAllowWordWrap", calling(ZelGUITextAllowWordWrap)},
        {"ZelGUITextAppendString", calling(ZelGUITextAppendString)},
        {"ZelGUITextFieldAdd", calling(ZelGUITextFieldAdd)},
        {"ZelGUITextFieldGetDouble", calling(ZelGUITextFieldGetDouble)},
        {"ZelGUITextFieldGetLgIndex", calling(ZelGUITextFieldGetLgIndex)},
        {"ZelGUITextFieldGetSet", calling(ZelGUITextFieldGetSet)},
        {"ZelGUITextFieldGetString", calling(ZelGUITextFieldGetString)},
        {"ZelGUITextFieldSetDouble", calling(ZelGUITextFieldSetDouble)},
        {"ZelGUITextFieldSetLgIndex", calling(ZelGUITextFieldSetLgIndex)},
        {"ZelGUITextFieldSetSet", calling(ZelGUITextFieldSetSet)},
        {"ZelGUITextFieldSetString", calling(ZelGUITextFieldSetString)},
        {"ZelGUITextFieldValidateDouble", calling(ZelGUITextFieldValidateDouble)},
        {"ZelGUITextFieldValidateLgIndex", calling(ZelGUITextFieldValidateLgIndex)},
        {"ZelGUITextGetString", calling(ZelGUITextGetString)},
        {"ZelGUITextInsertString", calling(ZelGUITextInsertString)},
        {"ZelGUITextSetInsertPos", calling(ZelGUITextSetInsertPos)},
        {"ZelGUITextSetMaxInsertPos", calling(ZelGUITextSetMaxInsertPos)},
        {"ZelGUITextSetMinInsertPos", calling(ZelGUITextSetMinInsertPos)},
        {"ZelGUITextSetString", calling(ZelGUITextSetString)},
        {"ZelGUITextUseFixedPitchFont", calling(ZelGUITextUseFixedPitchFont)},
        {"ZelGUIToggleAdd", calling(ZelGUIToggleAdd)},
        {"ZelGUIToggleGet", calling(ZelGUIToggleGet)},
        {"ZelGUIToggleSet", calling(ZelGUIToggleSet)},
        {"ZelGUIVertSeparatorAdd", calling(ZelGUIVertSeparatorAdd)},
    };
    return all;
}
