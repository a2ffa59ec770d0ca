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

} // namespace

QVector<EntryPoint> entryPoints()
{
    return {
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
        {"ZelGUILabelAdd", "QWidget", number([](int id) { return ZelGUILabelAdd(id, 1, 1, nullptr); }), kNone},
        {"ZelGUILabelSetDouble", "QLabel", silent([](int id) { ZelGUILabelSetDouble(id, 1, "%g"); }), {}},
        {"ZelGUILabelSetLgIndex", "QLabel", silent([](int id) { ZelGUILabelSetLgIndex(id, 1); }), {}},
        {"ZelGUILabelSetSet", "", silent([](int id) { ZelGUILabelSetSet(id, nullptr, 1); }), {}},
        {"ZelGUILabelSetText", "QLabel", silent([](int id) { ZelGUILabelSetText(id, nullptr); }), {}},
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
