// SPDX-License-Identifier: MIT
// Its names would hide types that are declared before.
#include "support/entrypoints.h"

#include "calls.h"

#include "rounds.h"

#include <array>
#include <map>
#include <type_traits>
#include <utility>

namespace torture {

void Outputs::release()
{
    if (array != &count) {
        char *memory = reinterpret_cast<char *>(array);
        ZelUtilStringDealloc(&memory);
    }
    if (set != reinterpret_cast<IndexSet>(this))
        ZelUtilSetDealloc(&set);
}

namespace {

long long evaluated(int answer)
{
    return answer;
}

long long evaluated(char *answer)
{
    if (!answer)
        return 0;
    if (!isUtf8(answer))
        fail("a text that was handed out is no UTF-8");
    ZelUtilStringDealloc(&answer);
    return 1;
}

template <typename Result, typename... Parameters>
long long evaluatedWith(Result (*function)(Parameters...), const std::tuple<Parameters...> &arguments)
{
    if constexpr (std::is_void_v<Result>) {
        std::apply(function, arguments);
        return 0;
    } else {
        return evaluated(std::apply(function, arguments));
    }
}

template <typename Result, typename... Rest>
long long draw(Result (*function)(int, Rest...), int id, const Draw &from)
{
    return evaluatedWith(function,
                         std::tuple<int, Rest...>{id, (static_cast<void>(sizeof(Rest)), static_cast<Rest>(from))...});
}

template <typename Result, typename... Parameters>
long long draw(Result (*function)(Parameters...), int, const Draw &from)
{
    return evaluatedWith(function, std::tuple<Parameters...>{static_cast<Parameters>(from)...});
}

/// One function; those whose arguments depend on each other come after it.
template <auto Function>
long long call(int id, const Draw &from)
{
    return draw(Function, id, from);
}

template <>
long long call<ZelGUIButtonSetDefault>(int id, const Draw &from)
{
    ZelGUIButtonSetDefault(from, id);
    return 0;
}

template <>
long long call<ZelGUITabSetCurrentPage>(int id, const Draw &from)
{
    ZelGUITabSetCurrentPage(id, id ^ from.random.between(0, 15));
    return 0;
}

template <>
long long call<ZelGUIListSetSelectedItems>(int id, const Draw &from)
{
    std::array<int, 30> positions{};
    for (int &position : positions)
        position = from;
    const int count = from.random.between(-2, int(positions.size()));
    ZelGUIListSetSelectedItems(id, from.orNull(positions.data()), count);
    return 0;
}

template <typename Function, typename Callback>
int callWithBitmap(Function function, int id, const Draw &from, Callback callback)
{
    static const std::array<unsigned char, 9 * 9 * 3> pixels{};
    const int x = from, y = from, width = from, height = from;
    const int columns = from.random.between(-1, 9), rows = from.random.between(-1, 9);
    // Sizes that the data doesn't have are asked for only without data.
    const bool isLarge = from.random.oneIn(8);
    return function(id, x, y, width, height, isLarge ? int(from) : columns, isLarge ? int(from) : rows,
                    isLarge ? nullptr : from.orNull(pixels.data()), from, from, from, from, callback);
}

template <>
long long call<ZelGUIBitmapButtonAdd>(int id, const Draw &from)
{
    return callWithBitmap(ZelGUIBitmapButtonAdd, id, from, from.callbacks.done);
}

template <>
long long call<ZelGUIBitmapToggleAdd>(int id, const Draw &from)
{
    return callWithBitmap(ZelGUIBitmapToggleAdd, id, from, from.callbacks.changed);
}

/// What a creating function makes, as classes that the toolkit knows; all are "QObject" too, which stands for all.
const std::map<QByteArray, QByteArray> &classesOfCreated()
{
    static const QByteArray dialog = "orvane::zelgui::ZelGUIDialog,QWidget";
    static const QByteArray bitmap = "QPushButton,QAbstractButton,QWidget";
    static const std::map<QByteArray, QByteArray> classes = {
        {"ZelGUIDialogCreateModal", dialog},
        {"ZelGUIDialogCreateModeless", dialog},
        {"ZelGUIButtonAdd", bitmap},
        {"ZelGUIBitmapButtonAdd", bitmap},
        {"ZelGUIBitmapToggleAdd", bitmap},
        {"ZelGUIToggleAdd", "QAbstractButton,QWidget"},
        {"ZelGUIRadioBoxAdd", "QButtonGroup"},
        {"ZelGUIOptionMenuAdd", "QComboBox,QWidget"},
        {"ZelGUILabelAdd", "QLabel,QWidget"},
        {"ZelGUITextFieldAdd", "QLineEdit,QWidget"},
        {"ZelGUISpinTextFieldAdd", "QAbstractSpinBox,QWidget"},
        {"ZelGUITextAdd", "QPlainTextEdit,QWidget"},
        {"ZelGUIListAdd", "QListWidget,QWidget"},
        {"ZelGUIScaleAdd", "orvane::zelgui::ZelGUIScale,QAbstractSlider,QWidget"},
        {"ZelGUIFormAdd", "QStackedWidget,QWidget"},
        {"ZelGUIFormAddPage", "form page,QWidget"},
        {"ZelGUITabAdd", "QTabWidget,QWidget"},
        {"ZelGUITabAddPage", "QWidget"},
        {"ZelGUIFrameAdd", "QWidget"},
        {"ZelGUIVertSeparatorAdd", "QWidget"},
        {"ZelGUIHorzSeparatorAdd", "QWidget"},
        {"ZelGUIMenuBarAdd", "QMenuBar,QWidget"},
        {"ZelGUIMenuAdd", "QMenu,QWidget"},
        {"ZelGUIMenuAddItem", "QAction"},
        {"ZelGUIMenuAddToggle", "QAction,orvane::zelgui::ZelGUIMenuToggleAction"},
    };
    return classes;
}

Kinds kindMadeBy(const QByteArray &name)
{
    const auto found = classesOfCreated().find(name);
    return found == classesOfCreated().end() ? kNoKinds : Kinds{1} << std::distance(classesOfCreated().begin(), found);
}

Kinds kindsOfClasses(const QByteArray &accepted)
{
    Kinds kinds = kNoKinds;
    for (const auto &[creator, classes] : classesOfCreated()) {
        for (const QByteArray &name : (classes + ",QObject").split(',')) {
            if (accepted.split(',').contains(name))
                kinds |= kindMadeBy(creator);
        }
    }
    return kinds;
}

bool isSilent(const QByteArray &name)
{
    if (name.endsWith("Add") || name.contains("Validate"))
        return false;
    const QByteArray families[] = {"ZelGUIList",   "ZelGUIOptionMenu", "ZelGUIText",     "ZelGUISpin",
                                   "ZelGUIToggle", "ZelGUIRadioBox",   "ZelGUIScaleSet", "ZelGUILabel"};
    return std::any_of(std::begin(families), std::end(families),
                       [&name](const QByteArray &family) { return name.startsWith(family); });
}

/// Of the first identifier that is looked up.
Kinds acceptedBy(const EntryPoint &entryPoint)
{
    for (const Parameter &parameter : entryPoint.parameters) {
        if (!parameter.accepts.isEmpty())
            return kindsOfClasses(parameter.accepts.join(QLatin1Char(',')).toLatin1());
    }
    return kNoKinds;
}

template <auto Function>
Call makeCall(const char *name)
{
    for (const EntryPoint &entryPoint : entryPoints()) {
        if (qstrcmp(entryPoint.name, name) == 0)
            return {name,
                    call<Function>,
                    acceptedBy(entryPoint),
                    kindMadeBy(name),
                    QByteArray(name).startsWith("ZelGUIDialogCreate"),
                    entryPoint.neutral.toLongLong(),
                    entryPoint.withoutGui.toLongLong(),
                    isSilent(name)};
    }
    fail(std::string("not in the table of entry points: ") + name);
}

} // namespace

const std::vector<Call> &calls()
{
#define ENTRY(name) makeCall<name>(#name),
    static const std::vector<Call> all = {
#include "entries.inc"
    };
#undef ENTRY
    return all;
}

} // namespace torture
