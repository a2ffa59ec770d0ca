// SPDX-License-Identifier: MIT
#include "entrypoints.h"

#include <zelgui/zelgui.h>

#include <QFile>
#include <QRegularExpression>

namespace {

/// Wraps a call without an answer.
template <typename Call>
auto silent(Call call)
{
    return [call](int id) {
        call(id);
        return QString();
    };
}

/// Wraps a call that answers a number.
template <typename Call>
auto number(Call call)
{
    return [call](int id) { return QString::number(call(id)); };
}

const QString kNone = QStringLiteral("-2");
const QString kFalse = QStringLiteral("0");
const QString kMinusOne = QStringLiteral("-1");
const QString kNull = QStringLiteral("null");

/// Wraps a call that answers a text, which has to be released.
template <typename Call>
auto text(Call call)
{
    return [call](int id) {
        char *answer = call(id);
        const QString result = answer ? QString::fromUtf8(answer) : QStringLiteral("null");
        ZelUtilStringDealloc(&answer);
        return result;
    };
}

/// Wraps a call that answers whether it has written something through its second argument, here 77 before.
template <typename Value, typename Call>
auto reader(Call call)
{
    return [call](int id) {
        Value value = 77;
        const ZelBoolean isRead = call(id, &value);
        return QStringLiteral("%1 %2").arg(isRead).arg(value);
    };
}

QString readSet(int id)
{
    IndexSet set = ZelUtilSetAlloc(0);
    const IndexSet before = set;
    const ZelBoolean isRead = ZelGUITextFieldGetSet(id, &set);
    const bool isUntouched = set == before;
    IndexSet unused = before;
    ZelUtilSetDealloc(&unused);
    if (!isUntouched)
        ZelUtilSetDealloc(&set);
    return QStringLiteral("%1 %2").arg(isRead).arg(isUntouched ? "untouched" : "new");
}

QString readSelection(int id)
{
    int untouched = 0;
    int *selected = &untouched;
    int count = 77;
    ZelGUIListGetSelectedItems(id, &selected, &count);
    const bool isUntouched = selected == &untouched;
    char *memory = reinterpret_cast<char *>(isUntouched ? nullptr : selected);
    ZelUtilStringDealloc(&memory);
    return QStringLiteral("%1 %2").arg(count).arg(isUntouched ? "untouched" : "new");
}

} // namespace

QVector<EntryPoint> entryPoints()
{
    return {
        {"ZelGUIBitmapButtonAdd", "QWidget",
         number([](int id) { return ZelGUIBitmapButtonAdd(id, 1, 1, 1, 1, 8, 8, nullptr, 1, 0, 0, 0, nullptr); }),
         kNone},
        {"ZelGUIBitmapToggleAdd", "QWidget",
         number([](int id) { return ZelGUIBitmapToggleAdd(id, 1, 1, 1, 1, -8, 8, nullptr, 1, 0, 0, 0, nullptr); }),
         kNone},
        {"ZelGUIListAdd", "QWidget", number([](int id) { return ZelGUIListAdd(id, 1, 1, 1, 1, 1, nullptr); }), kNone},
        {"ZelGUIListAppendItem", "QListWidget", silent([](int id) { ZelGUIListAppendItem(id, nullptr); }), {}},
        {"ZelGUIListDeleteAllItems", "QListWidget", silent([](int id) { ZelGUIListDeleteAllItems(id); }), {}},
        {"ZelGUIListDeleteItemAtPos", "QListWidget", silent([](int id) { ZelGUIListDeleteItemAtPos(id, 1); }), {}},
        {"ZelGUIListDeselectAllItems", "QListWidget", silent([](int id) { ZelGUIListDeselectAllItems(id); }), {}},
        {"ZelGUIListGetCapacity", "QListWidget", number([](int id) { return ZelGUIListGetCapacity(id); }), kMinusOne},
        {"ZelGUIListGetItemCount", "QListWidget", number([](int id) { return ZelGUIListGetItemCount(id); }), kNone},
        {"ZelGUIListGetSelectedItem", "QListWidget", number([](int id) { return ZelGUIListGetSelectedItem(id); }),
         kMinusOne},
        {"ZelGUIListGetSelectedItems", "QListWidget", readSelection, QStringLiteral("77 untouched")},
        {"ZelGUIListGetString", "QListWidget", text([](int id) { return ZelGUIListGetString(id, 1); }), kNull},
        {"ZelGUIListGetTopItemNum", "QListWidget", number([](int id) { return ZelGUIListGetTopItemNum(id); }),
         kMinusOne},
        {"ZelGUIListReplaceItem", "QListWidget", silent([](int id) { ZelGUIListReplaceItem(id, nullptr, 1); }), {}},
        {"ZelGUIListSelectAllItems", "QListWidget", silent([](int id) { ZelGUIListSelectAllItems(id); }), {}},
        {"ZelGUIListSetItems", "QListWidget", silent([](int id) { ZelGUIListSetItems(id, nullptr); }), {}},
        {"ZelGUIListSetSelectedItem", "QListWidget", silent([](int id) { ZelGUIListSetSelectedItem(id, 1); }), {}},
        {"ZelGUIListSetSelectedItems",
         "QListWidget",
         silent([](int id) { ZelGUIListSetSelectedItems(id, nullptr, 9); }),
         {}},
        {"ZelGUIListSetTopItemNum", "QListWidget", silent([](int id) { ZelGUIListSetTopItemNum(id, 1); }), {}},
        {"ZelGUIOptionMenuAdd", "QWidget",
         number([](int id) { return ZelGUIOptionMenuAdd(id, 1, 1, 1, 1, nullptr, nullptr); }), kNone},
        {"ZelGUIOptionMenuAppendItem",
         "QComboBox",
         silent([](int id) { ZelGUIOptionMenuAppendItem(id, nullptr); }),
         {}},
        {"ZelGUIOptionMenuDeleteAllItems", "QComboBox", silent([](int id) { ZelGUIOptionMenuDeleteAllItems(id); }), {}},
        {"ZelGUIOptionMenuDeleteItemAtPos",
         "QComboBox",
         silent([](int id) { ZelGUIOptionMenuDeleteItemAtPos(id, 1); }),
         {}},
        {"ZelGUIOptionMenuGet", "QComboBox", number([](int id) { return ZelGUIOptionMenuGet(id); }), kMinusOne},
        {"ZelGUIOptionMenuGetItemCount", "QComboBox", number([](int id) { return ZelGUIOptionMenuGetItemCount(id); }),
         kMinusOne},
        {"ZelGUIOptionMenuGetString", "QComboBox", text([](int id) { return ZelGUIOptionMenuGetString(id, 1); }),
         kNull},
        {"ZelGUIOptionMenuSet", "QComboBox", silent([](int id) { ZelGUIOptionMenuSet(id, 0); }), {}},
        {"ZelGUIOptionMenuSetByString", "QComboBox",
         number([](int id) { return ZelGUIOptionMenuSetByString(id, nullptr); }), kMinusOne},
        {"ZelGUIRadioBoxAdd", "QWidget", number([](int id) {
             return ZelGUIRadioBoxAdd(id, 1, 1, 1, 1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
         }),
         kNone},
        {"ZelGUIRadioBoxGetToggle", "QButtonGroup", number([](int id) { return ZelGUIRadioBoxGetToggle(id); }),
         kMinusOne},
        {"ZelGUIRadioBoxSetToggle", "QButtonGroup", silent([](int id) { ZelGUIRadioBoxSetToggle(id, 2); }), {}},
        {"ZelGUISpinTextFieldAdd", "QWidget",
         number([](int id) { return ZelGUISpinTextFieldAdd(id, 1, 1, 1, 1, nullptr, nullptr, nullptr); }), kNone},
        {"ZelGUISpinTextFieldIncDouble", "QAbstractSpinBox",
         number([](int id) { return ZelGUISpinTextFieldIncDouble(id, nullptr, 1, 0, 9); }), kFalse},
        {"ZelGUISpinTextFieldIncLgIndex", "QAbstractSpinBox",
         number([](int id) { return ZelGUISpinTextFieldIncLgIndex(id, 1, 0, 9); }), kFalse},
        {"ZelGUITextAdd", "QWidget", number([](int id) { return ZelGUITextAdd(id, 1, 1, 1, 1, 0, nullptr); }), kNone},
        {"ZelGUITextAllowWordWrap", "QPlainTextEdit", silent([](int id) { ZelGUITextAllowWordWrap(id, 0); }), {}},
        {"ZelGUITextAppendString", "QPlainTextEdit", silent([](int id) { ZelGUITextAppendString(id, nullptr); }), {}},
        {"ZelGUITextGetString", "QPlainTextEdit", text([](int id) { return ZelGUITextGetString(id); }), kNull},
        {"ZelGUITextSetString", "QPlainTextEdit", silent([](int id) { ZelGUITextSetString(id, nullptr); }), {}},
        {"ZelGUITextUseFixedPitchFont",
         "QPlainTextEdit",
         silent([](int id) { ZelGUITextUseFixedPitchFont(id, 1); }),
         {}},
        // 0, not -2, without a GUI.
        {"ZelGUITextFieldAdd", "QWidget", number([](int id) { return ZelGUITextFieldAdd(id, 1, 1, 1, 1, nullptr); }),
         kNone, kFalse},
        {"ZelGUITextFieldGetDouble", "QLineEdit,QAbstractSpinBox", reader<double>(ZelGUITextFieldGetDouble),
         QStringLiteral("0 77")},
        {"ZelGUITextFieldGetLgIndex", "QLineEdit,QAbstractSpinBox", reader<LgIndex>(ZelGUITextFieldGetLgIndex),
         QStringLiteral("0 77")},
        {"ZelGUITextFieldGetSet", "QLineEdit", readSet, QStringLiteral("0 untouched")},
        {"ZelGUITextFieldGetString", "QLineEdit,QAbstractSpinBox",
         text([](int id) { return ZelGUITextFieldGetString(id); }), kNull},
        {"ZelGUITextFieldSetDouble",
         "QLineEdit,QAbstractSpinBox",
         silent([](int id) { ZelGUITextFieldSetDouble(id, 1, "%g"); }),
         {}},
        {"ZelGUITextFieldSetLgIndex",
         "QLineEdit,QAbstractSpinBox",
         silent([](int id) { ZelGUITextFieldSetLgIndex(id, 1, 0); }),
         {}},
        {"ZelGUITextFieldSetSet", "QLineEdit", silent([](int id) { ZelGUITextFieldSetSet(id, nullptr, 1); }), {}},
        {"ZelGUITextFieldSetString",
         "QLineEdit,QAbstractSpinBox",
         silent([](int id) { ZelGUITextFieldSetString(id, nullptr); }),
         {}},
        {"ZelGUITextFieldValidateDouble", "QLineEdit,QAbstractSpinBox",
         number([](int id) { return ZelGUITextFieldValidateDouble(id, "Name", 0, 9); }), kFalse},
        {"ZelGUITextFieldValidateLgIndex", "QLineEdit,QAbstractSpinBox",
         number([](int id) { return ZelGUITextFieldValidateLgIndex(id, "Name", 0, 9, 1); }), kFalse},
        {"ZelGUIBlockForModalDialog", "", silent([](int) { ZelGUIBlockForModalDialog(nullptr); }), {}},
        {"ZelGUIButtonAdd", "QWidget", number([](int id) { return ZelGUIButtonAdd(id, 1, 1, 1, 1, nullptr, nullptr); }),
         kNone},
        {"ZelGUIButtonSetDefault", "QPushButton", silent([](int id) { ZelGUIButtonSetDefault(id, id); }), {}},
        {"ZelGUIButtonSetText", "QAbstractButton", silent([](int id) { ZelGUIButtonSetText(id, nullptr); }), {}},
        {"ZelGUIColoredButtonAdd", "",
         number([](int id) { return ZelGUIColoredButtonAdd(id, 1, 1, 1, 1, 1, nullptr); }), kNone},
        {"ZelGUIColoredButtonSetColor",
         "QAbstractButton",
         silent([](int id) { ZelGUIColoredButtonSetColor(id, 1 << 30); }),
         {}},
        {"ZelGUIDialogAddButtonToButtonBox",
         "orvane::zelgui::ZelGUIDialog",
         silent([](int id) { ZelGUIDialogAddButtonToButtonBox(id, nullptr, 1, nullptr); }),
         {}},
        {"ZelGUIDialogApplySetSensitivity", "", silent([](int id) { ZelGUIDialogApplySetSensitivity(id, 1); }), {}},
        {"ZelGUIDialogCreateModal", "QWidget", number([](int id) {
             return ZelGUIDialogCreateModal(id, 1, 1, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
         }),
         kNone},
        {"ZelGUIDialogCreateModeless", "QWidget",
         number([](int id) { return ZelGUIDialogCreateModeless(id, 1, 1, nullptr, nullptr, nullptr, nullptr); }),
         kNone},
        {"ZelGUIDialogDrop", "orvane::zelgui::ZelGUIDialog", silent([](int id) { ZelGUIDialogDrop(id); }), {}},
        {"ZelGUIDialogEnableActionArea", "", silent([](int id) { ZelGUIDialogEnableActionArea(id, 0); }), {}},
        {"ZelGUIDialogIsUp", "orvane::zelgui::ZelGUIDialog", number([](int id) { return ZelGUIDialogIsUp(id); }),
         kFalse},
        {"ZelGUIDialogLaunch", "orvane::zelgui::ZelGUIDialog", silent([](int id) { ZelGUIDialogLaunch(id); }), {}},
        {"ZelGUIDialogSetLaunchPosition", "", silent([](int id) { ZelGUIDialogSetLaunchPosition(id, 1, 1); }), {}},
        {"ZelGUIDialogSetLaunchPositionX", "", silent([](int id) { ZelGUIDialogSetLaunchPositionX(id, 1, 1, 1); }), {}},
        {"ZelGUIDialogSetPosition", "", silent([](int id) { ZelGUIDialogSetPosition(id, 1, 1); }), {}},
        {"ZelGUIDialogSetPositionX", "", silent([](int id) { ZelGUIDialogSetPositionX(id, 1, 1, 1); }), {}},
        {"ZelGUIDialogSetTitle",
         "orvane::zelgui::ZelGUIDialog",
         silent([](int id) { ZelGUIDialogSetTitle(id, nullptr); }),
         {}},
        {"ZelGUIDialogSetTopmost", "", silent([](int id) { ZelGUIDialogSetTopmost(id, 1); }), {}},
        {"ZelGUIFormAdd", "QWidget", number([](int id) { return ZelGUIFormAdd(id, 1, 1, 1, 1); }), kNone},
        {"ZelGUIFormAddPage", "QStackedWidget", number([](int id) { return ZelGUIFormAddPage(id); }), kNone},
        {"ZelGUIFormSetCurrentPage", "QWidget", silent([](int id) { ZelGUIFormSetCurrentPage(id); }), {}},
        {"ZelGUIFrameAdd", "QWidget", number([](int id) { return ZelGUIFrameAdd(id, 1, 1, 1, 1, nullptr); }), kNone},
        {"ZelGUIHorzSeparatorAdd", "QWidget", number([](int id) { return ZelGUIHorzSeparatorAdd(id, 1, 1, 1); }),
         kNone},
        {"ZelGUIVertSeparatorAdd", "QWidget", number([](int id) { return ZelGUIVertSeparatorAdd(id, 1, 1, 1); }),
         kNone},
        {"ZelGUIScaleAdd", "QWidget",
         number([](int id) { return ZelGUIScaleAdd(id, 1, 1, 1, 1, 9, -9, 0, nullptr, nullptr); }), kNone},
        {"ZelGUIScaleGetValue", "QAbstractSlider", number([](int id) { return ZelGUIScaleGetValue(id); }), kMinusOne},
        {"ZelGUIScaleSetLimits", "QAbstractSlider", silent([](int id) { ZelGUIScaleSetLimits(id, 3, 4); }), {}},
        {"ZelGUIScaleSetValue", "QAbstractSlider", silent([](int id) { ZelGUIScaleSetValue(id, 3); }), {}},
        {"ZelGUIScaleShowNumericDisplay",
         "QAbstractSlider",
         silent([](int id) { ZelGUIScaleShowNumericDisplay(id, 0); }),
         {}},
        // These four take every kind of object.
        {"ZelGUISetInputFocus", "QObject", silent([](int id) { ZelGUISetInputFocus(id); }), {}},
        {"ZelGUISetSensitivity", "QObject", silent([](int id) { ZelGUISetSensitivity(id, 0); }), {}},
        {"ZelGUISetToolTip", "QObject", silent([](int id) { ZelGUISetToolTip(id, nullptr); }), {}},
        {"ZelGUISetVisibility", "QObject", silent([](int id) { ZelGUISetVisibility(id, 0); }), {}},
        {"ZelGUITabAdd", "QWidget", number([](int id) { return ZelGUITabAdd(id, 1, 1, 1, 1, nullptr, nullptr); }),
         kNone},
        {"ZelGUITabAddPage", "QTabWidget", number([](int id) { return ZelGUITabAddPage(id, nullptr); }), kNone},
        {"ZelGUITabSetCurrentPage", "QTabWidget", silent([](int id) { ZelGUITabSetCurrentPage(id, id); }), {}},
        {"ZelGUILabelAdd", "QWidget", number([](int id) { return ZelGUILabelAdd(id, 1, 1, nullptr); }), kNone},
        {"ZelGUILabelSetDouble", "QLabel", silent([](int id) { ZelGUILabelSetDouble(id, 1, "%g"); }), {}},
        {"ZelGUILabelSetLgIndex", "QLabel", silent([](int id) { ZelGUILabelSetLgIndex(id, 1); }), {}},
        {"ZelGUILabelSetSet", "", silent([](int id) { ZelGUILabelSetSet(id, nullptr, 1); }), {}},
        {"ZelGUILabelSetText", "QLabel", silent([](int id) { ZelGUILabelSetText(id, nullptr); }), {}},
        {"ZelGUIMenuAdd", "QMenuBar,QMenu", number([](int id) { return ZelGUIMenuAdd(id, nullptr); }), kNone},
        {"ZelGUIMenuAddItem", "QMenu", number([](int id) { return ZelGUIMenuAddItem(id, nullptr, nullptr, nullptr); }),
         kNone},
        {"ZelGUIMenuAddSeparator", "QMenu", silent([](int id) { ZelGUIMenuAddSeparator(id); }), {}},
        {"ZelGUIMenuAddToggle", "QMenu",
         number([](int id) { return ZelGUIMenuAddToggle(id, nullptr, nullptr, nullptr); }), kNone},
        {"ZelGUIMenuBarAdd", "orvane::zelgui::ZelGUIDialog", number([](int id) { return ZelGUIMenuBarAdd(id); }),
         kNone},
        {"ZelGUIMenuDeleteItem", "QAction", silent([](int id) { ZelGUIMenuDeleteItem(id); }), {}},
        {"ZelGUIMenuItemSetText", "QAction", silent([](int id) { ZelGUIMenuItemSetText(id, nullptr); }), {}},
        {"ZelGUIMenuSetToggle",
         "orvane::zelgui::ZelGUIMenuToggleAction",
         silent([](int id) { ZelGUIMenuSetToggle(id, 1); }),
         {}},
        {"ZelGUIOptionMenuReplaceItem", "", silent([](int id) { ZelGUIOptionMenuReplaceItem(id, nullptr, 1); }), {}},
        {"ZelGUISetStatusLine", "", silent([](int) { ZelGUISetStatusLine(nullptr); }), {}},
        {"ZelGUISidebarActivate", "", silent([](int id) { ZelGUISidebarActivate(id); }), {}},
        {"ZelGUISidebarDeactivateAll", "", silent([](int) { ZelGUISidebarDeactivateAll(); }), {}},
        {"ZelGUISidebarIsActive", "", number([](int id) { return ZelGUISidebarIsActive(id); }), kFalse},
        {"ZelGUISidebarRegister", "", number([](int) { return ZelGUISidebarRegister(nullptr, nullptr, nullptr); }),
         kNone},
        {"ZelGUITextAddKeyEventCallback", "", silent([](int id) { ZelGUITextAddKeyEventCallback(id, nullptr); }), {}},
        {"ZelGUITextInsertString", "", silent([](int id) { ZelGUITextInsertString(id, nullptr); }), {}},
        {"ZelGUITextSetInsertPos", "", silent([](int id) { ZelGUITextSetInsertPos(id, 1); }), {}},
        {"ZelGUITextSetMaxInsertPos", "", silent([](int id) { ZelGUITextSetMaxInsertPos(id, 1); }), {}},
        {"ZelGUITextSetMinInsertPos", "", silent([](int id) { ZelGUITextSetMinInsertPos(id, 1); }), {}},
        {"ZelGUIToggleAdd", "QWidget", number([](int id) { return ZelGUIToggleAdd(id, 1, 1, 1, 1, nullptr, nullptr); }),
         kNone},
        {"ZelGUIToggleGet", "QAbstractButton", number([](int id) { return ZelGUIToggleGet(id); }), kFalse},
        {"ZelGUIToggleSet", "QAbstractButton", silent([](int id) { ZelGUIToggleSet(id, 1); }), {}},
    };
}

QStringList declaredFunctions()
{
    QFile header(QStringLiteral(ZELGUI_HEADER));
    if (!header.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression declaration(QStringLiteral(R"(^ZELGUI_API [^(]*?(ZelGUI\w+)\()"),
                                                QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = declaration.globalMatch(QString::fromUtf8(header.readAll()));
    while (matches.hasNext())
        names << matches.next().captured(1);
    names.sort();
    return names;
}
