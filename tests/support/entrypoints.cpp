// SPDX-License-Identifier: MIT
#include "entrypoints.h"

#include "declared.h"

#include <zelgui/zelgui.h>

#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <type_traits>
#include <utility>

namespace {

/// The parameters' names of every function.
const QMap<QString, QStringList> &declarations()
{
    static const auto declared = [] {
        QMap<QString, QStringList> names;
        QFile header(QStringLiteral(ZELGUI_HEADER));
        if (!header.open(QIODevice::ReadOnly))
            return names;
        static const QRegularExpression declaration(QStringLiteral(R"(^ZELGUI_API [^(;]*?(ZelGUI\w+)\(([^)]*)\);)"),
                                                    QRegularExpression::MultilineOption);
        static const QRegularExpression name(QStringLiteral(R"((\w+)\s*(?:,|$))"));
        auto matches = declaration.globalMatch(QString::fromUtf8(header.readAll()));
        while (matches.hasNext()) {
            const auto match = matches.next();
            QStringList &parameters = names[match.captured(1)];
            for (auto all = name.globalMatch(match.captured(2)); all.hasNext();)
                parameters << all.next().captured(1);
        }
        return names;
    }();
    return declared;
}

/// Types in the order of the kinds, identifiers aside.
template <typename... Types>
struct TypeList
{
    template <typename T>
    static constexpr int find()
    {
        int found = -1;
        int index = 0;
        ((found = std::is_same_v<T, Types> ? index : found, ++index), ...);
        return found;
    }
};
using Kinds = TypeList<int, unsigned char, LgIndex, double, const char *, const unsigned char *, const int *, IndexSet,
                       StringList_s *, int *, int **, unsigned char *, LgIndex *, double *, IndexSet *,
                       ZelGUIVoidCallback, ZelGUIIntCallback, ZelGUITextCallback>;

template <typename T>
Kind kindOf(const QString &name)
{
    static_assert(Kinds::find<T>() >= 0);
    const bool isId = std::is_same_v<T, int> && (name == QLatin1String("id") || name.endsWith(QLatin1String("Id")));
    return isId ? Kind::Id : static_cast<Kind>(static_cast<int>(Kind::Int) + Kinds::find<T>());
}

template <typename T>
T as(const Argument &argument)
{
    if constexpr (std::is_integral_v<T>)
        return static_cast<T>(std::get<qint64>(argument));
    else if constexpr (std::is_floating_point_v<T>)
        return std::get<double>(argument);
    else if constexpr (std::is_function_v<std::remove_pointer_t<T>>)
        return reinterpret_cast<T>(std::get<void (*)()>(argument));
    else
        return static_cast<T>(std::get<void *>(argument));
}

QString written(int answer)
{
    return QString::number(answer);
}
QString written(char *answer)
{
    const QString text = answer ? QString::fromUtf8(answer) : QStringLiteral("null");
    ZelUtilStringDealloc(&answer);
    return text;
}

template <typename Result, typename... Types, std::size_t... i>
QString callWith(Result (*function)(Types...), const QVector<Argument> &arguments, std::index_sequence<i...>)
{
    if constexpr (std::is_void_v<Result>) {
        function(as<Types>(arguments[static_cast<int>(i)])...);
        return {};
    } else {
        return written(function(as<Types>(arguments[static_cast<int>(i)])...));
    }
}

template <typename Result>
const char *usualNeutral()
{
    if (std::is_void_v<Result>)
        return "";
    if (std::is_same_v<Result, ZelBoolean>)
        return "0";
    return std::is_pointer_v<Result> ? "null" : "-2";
}

/// `accepts` has a comma-separated list of classes for each identifier.
template <typename Result, typename... Types>
EntryPoint describe(const char *name, Result (*function)(Types...), const QVector<const char *> &accepts,
                    const char *neutral = usualNeutral<Result>(), const char *withoutGui = nullptr)
{
    const QStringList names = declarations().value(QString::fromLatin1(name));
    QVector<Parameter> parameters;
    int identifiers = 0;
    [[maybe_unused]] const auto add = [&](Kind (*kindOfName)(const QString &)) {
        const QString parameter = names.value(parameters.size());
        const Kind kind = kindOfName(parameter);
        const char *const classes = kind == Kind::Id ? accepts.value(identifiers++, "") : "";
        parameters.append({kind, parameter, QString::fromLatin1(classes).split(QLatin1Char(','), Qt::SkipEmptyParts)});
    };
    (add(kindOf<Types>), ...);
    const auto call = [function](const QVector<Argument> &arguments) {
        return callWith(function, arguments, std::index_sequence_for<Types...>());
    };
    return {name, parameters, call, QString::fromLatin1(neutral),
            QString::fromLatin1(withoutGui ? withoutGui : neutral)};
}

#define ENTRY(function, ...) describe(#function, function, __VA_ARGS__)

constexpr const char *kObject = "QObject";
constexpr const char *kWidget = "QWidget";
constexpr const char *kDialog = "orvane::zelgui::ZelGUIDialog";
constexpr const char *kButton = "QAbstractButton";
constexpr const char *kLabel = "QLabel";
constexpr const char *kField = "QLineEdit,QAbstractSpinBox";
constexpr const char *kText = "QPlainTextEdit";
constexpr const char *kList = "QListWidget";
constexpr const char *kOptionMenu = "QComboBox";
constexpr const char *kSlider = "QAbstractSlider";
constexpr const char *kMenu = "QMenu";
constexpr const char *kItem = "QAction";

} // namespace

const QVector<EntryPoint> &entryPoints()
{
    static const QVector<EntryPoint> all = {
        ENTRY(ZelGUIBitmapButtonAdd, {kWidget}),
        ENTRY(ZelGUIBitmapToggleAdd, {kWidget}),
        ENTRY(ZelGUIListAdd, {kWidget}),
        ENTRY(ZelGUIListAppendItem, {kList}),
        ENTRY(ZelGUIListDeleteAllItems, {kList}),
        ENTRY(ZelGUIListDeleteItemAtPos, {kList}),
        ENTRY(ZelGUIListDeselectAllItems, {kList}),
        ENTRY(ZelGUIListGetCapacity, {kList}, "-1"),
        ENTRY(ZelGUIListGetItemCount, {kList}),
        ENTRY(ZelGUIListGetSelectedItem, {kList}, "-1"),
        ENTRY(ZelGUIListGetSelectedItems, {kList}),
        ENTRY(ZelGUIListGetString, {kList}),
        ENTRY(ZelGUIListGetTopItemNum, {kList}, "-1"),
        ENTRY(ZelGUIListReplaceItem, {kList}),
        ENTRY(ZelGUIListSelectAllItems, {kList}),
        ENTRY(ZelGUIListSetItems, {kList}),
        ENTRY(ZelGUIListSetSelectedItem, {kList}),
        ENTRY(ZelGUIListSetSelectedItems, {kList}),
        ENTRY(ZelGUIListSetTopItemNum, {kList}),
        ENTRY(ZelGUIOptionMenuAdd, {kWidget}),
        ENTRY(ZelGUIOptionMenuAppendItem, {kOptionMenu}),
        ENTRY(ZelGUIOptionMenuDeleteAllItems, {kOptionMenu}),
        ENTRY(ZelGUIOptionMenuDeleteItemAtPos, {kOptionMenu}),
        ENTRY(ZelGUIOptionMenuGet, {kOptionMenu}, "-1"),
        ENTRY(ZelGUIOptionMenuGetItemCount, {kOptionMenu}, "-1"),
        ENTRY(ZelGUIOptionMenuGetString, {kOptionMenu}),
        ENTRY(ZelGUIOptionMenuSet, {kOptionMenu}),
        ENTRY(ZelGUIOptionMenuSetByString, {kOptionMenu}, "-1"),
        ENTRY(ZelGUIRadioBoxAdd, {kWidget}),
        ENTRY(ZelGUIRadioBoxGetToggle, {"QButtonGroup"}, "-1"),
        ENTRY(ZelGUIRadioBoxSetToggle, {"QButtonGroup"}),
        ENTRY(ZelGUISpinTextFieldAdd, {kWidget}),
        ENTRY(ZelGUISpinTextFieldIncDouble, {"QAbstractSpinBox"}),
        ENTRY(ZelGUISpinTextFieldIncLgIndex, {"QAbstractSpinBox"}),
        ENTRY(ZelGUITextAdd, {kWidget}),
        ENTRY(ZelGUITextAllowWordWrap, {kText}),
        ENTRY(ZelGUITextAppendString, {kText}),
        ENTRY(ZelGUITextGetString, {kText}),
        ENTRY(ZelGUITextSetString, {kText}),
        ENTRY(ZelGUITextUseFixedPitchFont, {kText}),
        ENTRY(ZelGUITextFieldAdd, {kWidget}, "-2", "0"),
        ENTRY(ZelGUITextFieldGetDouble, {kField}),
        ENTRY(ZelGUITextFieldGetLgIndex, {kField}),
        ENTRY(ZelGUITextFieldGetSet, {"QLineEdit"}),
        ENTRY(ZelGUITextFieldGetString, {kField}),
        ENTRY(ZelGUITextFieldSetDouble, {kField}),
        ENTRY(ZelGUITextFieldSetLgIndex, {kField}),
        ENTRY(ZelGUITextFieldSetSet, {"QLineEdit"}),
        ENTRY(ZelGUITextFieldSetString, {kField}),
        ENTRY(ZelGUITextFieldValidateDouble, {kField}),
        ENTRY(ZelGUITextFieldValidateLgIndex, {kField}),
        ENTRY(ZelGUIBlockForModalDialog, {}),
        ENTRY(ZelGUIButtonAdd, {kWidget}),
        ENTRY(ZelGUIButtonSetDefault, {"", "QPushButton"}),
        ENTRY(ZelGUIButtonSetText, {kButton}),
        ENTRY(ZelGUIColoredButtonAdd, {""}),
        ENTRY(ZelGUIColoredButtonSetColor, {kButton}),
        ENTRY(ZelGUIDialogAddButtonToButtonBox, {kDialog}),
        ENTRY(ZelGUIDialogApplySetSensitivity, {""}),
        ENTRY(ZelGUIDialogCreateModal, {kWidget}),
        ENTRY(ZelGUIDialogCreateModeless, {kWidget}),
        ENTRY(ZelGUIDialogDrop, {kDialog}),
        ENTRY(ZelGUIDialogEnableActionArea, {""}),
        ENTRY(ZelGUIDialogIsUp, {kDialog}),
        ENTRY(ZelGUIDialogLaunch, {kDialog}),
        ENTRY(ZelGUIDialogSetLaunchPosition, {""}),
        ENTRY(ZelGUIDialogSetLaunchPositionX, {""}),
        ENTRY(ZelGUIDialogSetPosition, {""}),
        ENTRY(ZelGUIDialogSetPositionX, {""}),
        ENTRY(ZelGUIDialogSetTitle, {kDialog}),
        ENTRY(ZelGUIDialogSetTopmost, {""}),
        ENTRY(ZelGUIFormAdd, {kWidget}),
        ENTRY(ZelGUIFormAddPage, {"QStackedWidget"}),
        ENTRY(ZelGUIFormSetCurrentPage, {"form page"}),
        ENTRY(ZelGUIFrameAdd, {kWidget}),
        ENTRY(ZelGUIHorzSeparatorAdd, {kWidget}),
        ENTRY(ZelGUIVertSeparatorAdd, {kWidget}),
        ENTRY(ZelGUIScaleAdd, {kWidget}),
        ENTRY(ZelGUIScaleGetValue, {kSlider}, "-1"),
        ENTRY(ZelGUIScaleSetLimits, {kSlider}),
        ENTRY(ZelGUIScaleSetValue, {kSlider}),
        ENTRY(ZelGUIScaleShowNumericDisplay, {"orvane::zelgui::ZelGUIScale"}),
        ENTRY(ZelGUISetInputFocus, {kObject}),
        ENTRY(ZelGUISetSensitivity, {kObject}),
        ENTRY(ZelGUISetToolTip, {kObject}),
        ENTRY(ZelGUISetVisibility, {kObject}),
        ENTRY(ZelGUITabAdd, {kWidget}),
        ENTRY(ZelGUITabAddPage, {"QTabWidget"}),
        ENTRY(ZelGUITabSetCurrentPage, {"QTabWidget", "tab page"}),
        ENTRY(ZelGUILabelAdd, {kWidget}),
        ENTRY(ZelGUILabelSetDouble, {kLabel}),
        ENTRY(ZelGUILabelSetLgIndex, {kLabel}),
        ENTRY(ZelGUILabelSetSet, {""}),
        ENTRY(ZelGUILabelSetText, {kLabel}),
        ENTRY(ZelGUIMenuAdd, {"QMenuBar,QMenu"}),
        ENTRY(ZelGUIMenuAddItem, {kMenu}),
        ENTRY(ZelGUIMenuAddSeparator, {kMenu}),
        ENTRY(ZelGUIMenuAddToggle, {kMenu}),
        ENTRY(ZelGUIMenuBarAdd, {kDialog}),
        ENTRY(ZelGUIMenuDeleteItem, {kItem}),
        ENTRY(ZelGUIMenuItemSetText, {kItem}),
        ENTRY(ZelGUIMenuSetToggle, {"orvane::zelgui::ZelGUIMenuToggleAction"}),
        ENTRY(ZelGUIOptionMenuReplaceItem, {""}),
        ENTRY(ZelGUISetStatusLine, {}),
        ENTRY(ZelGUISidebarActivate, {""}),
        ENTRY(ZelGUISidebarDeactivateAll, {}),
        ENTRY(ZelGUISidebarIsActive, {""}),
        ENTRY(ZelGUISidebarRegister, {}),
        ENTRY(ZelGUITextAddKeyEventCallback, {""}),
        ENTRY(ZelGUITextInsertString, {""}),
        ENTRY(ZelGUITextSetInsertPos, {""}),
        ENTRY(ZelGUITextSetMaxInsertPos, {""}),
        ENTRY(ZelGUITextSetMinInsertPos, {""}),
        ENTRY(ZelGUIToggleAdd, {kWidget}),
        ENTRY(ZelGUIToggleGet, {kButton}),
        ENTRY(ZelGUIToggleSet, {kButton}),
    };
    return all;
}

QVector<int> EntryPoint::positionsOf(const std::function<bool(Kind)> &isMeant) const
{
    QVector<int> positions;
    for (int i = 0; i < parameters.size(); ++i) {
        if (isMeant(parameters[i].kind))
            positions << i;
    }
    return positions;
}

QStringList declaredFunctions()
{
    return declarations().keys();
}
