// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <zelgui/zelgui.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include <cstring>

namespace bench {

namespace {

constexpr int kCalls = 2000;

/// A call that sets or gets the value of one widget. Both sides work on the same one, with values that differ from
/// call to call.
template <typename T>
Case value(const char *name, Goal goal, int (*add)(int dialog), void (*library)(int id, int call),
           void (*bare)(T &widget, int call))
{
    const auto make = [=](int) {
        const auto dialog = std::make_shared<Dialog>();
        const int id = add(dialog->id());
        T *const widget = object<T>(id);
        const auto callLibrary = [=, keep = dialog] {
            for (int call = 0; call < kCalls; ++call)
                library(id, call);
        };
        const auto callBare = [=, keep = dialog] {
            for (int call = 0; call < kCalls; ++call)
                bare(*widget, call);
        };
        return Comparison{{nullptr, callLibrary}, bare ? Side{nullptr, callBare} : Side{}};
    };
    return {name, goal, {0}, kCalls, make};
}

const char *const kTexts[] = {"Pressure", "Temperature \xC2\xB0"};

int addField(int dialog)
{
    const int id = ZelGUITextFieldAdd(dialog, 100, 100, 2000, 130, nullptr);
    ZelGUITextFieldSetString(id, "12345");
    return id;
}

int addToggle(int dialog)
{
    return ZelGUIToggleAdd(dialog, 100, 100, 2000, 130, "Toggle", nullptr);
}

int addScale(int dialog)
{
    return ZelGUIScaleAdd(dialog, 100, 300, 2000, 130, 0, 100, 0, nullptr, nullptr);
}

int addMenu(int dialog)
{
    return ZelGUIOptionMenuAdd(dialog, 100, 100, 2000, 130, "first,second,third", nullptr);
}

int addLabel(int dialog)
{
    return ZelGUILabelAdd(dialog, 100, 100, "A label");
}

/// What any code has to do that hands out a text in the host's memory, which costs by the length of the label too.
void handOut(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    const auto size = static_cast<std::size_t>(utf8.size()) + 1;
    char *copy = ZelUtilStringAlloc(size, "ZelGUITextFieldGetStringQt");
    std::memcpy(copy, utf8.constData(), size);
    ZelUtilStringDealloc(&copy);
}

void release(char *text)
{
    ZelUtilStringDealloc(&text);
}

/// Keeps the compiler from leaving out a call whose answer nobody reads.
volatile int sink = 0;

constexpr Goal kTextOrCheckSetter = {Goal::Ratio, 1.05};
constexpr Goal kSetter = {Goal::Ratio, 1.10};
constexpr Goal kTextGetter = {Goal::Ratio, 1.10};
constexpr Goal kGetter = {Goal::Difference, 10e-9};

/// One of a million identifiers, most of whose objects are gone.
Case lookup(const char *name, Goal goal, bool isExisting)
{
    const auto make = [isExisting](int count) {
        int last = Dialog().id();
        while (last < count) {
            const Dialog passing;
            for (int i = 0; i < 500; ++i)
                last = ZelGUIVertSeparatorAdd(passing.id(), 1, 1, 10);
        }
        const auto dialog = std::make_shared<Dialog>();
        const int id = addScale(dialog->id());
        const auto *const slider = object<QSlider>(id);
        const auto callLibrary = [=, keep = dialog] {
            for (int call = 0; call < kCalls; ++call)
                sink = ZelGUIScaleGetValue(isExisting ? id : call);
        };
        const auto callBare = [=, keep = dialog] {
            for (int call = 0; call < kCalls; ++call)
                sink = slider->value();
        };
        return Comparison{{nullptr, callLibrary}, {nullptr, callBare}};
    };
    return {name, goal, {1000000}, kCalls, make};
}

} // namespace

std::vector<Case> valueCases()
{
    return {
        value<QLineEdit>(
            "text field: set text", kTextOrCheckSetter, addField,
            [](int id, int call) { ZelGUITextFieldSetString(id, kTexts[call % 2]); },
            [](QLineEdit &field, int call) { field.setText(QString::fromUtf8(kTexts[call % 2])); }),
        value<QLineEdit>(
            "text field: get text", kTextGetter, addField, [](int id, int) { release(ZelGUITextFieldGetString(id)); },
            [](QLineEdit &field, int) { handOut(field.text()); }),
        value<QLineEdit>(
            "text field: set number", kTextOrCheckSetter, addField,
            [](int id, int call) { ZelGUITextFieldSetDouble(id, call * 0.1, "%.3f"); },
            [](QLineEdit &field, int call) { field.setText(QString::asprintf("%.3f", call * 0.1)); }),
        value<QLineEdit>(
            "text field: get number", kGetter, addField,
            [](int id, int) {
                double number = 0;
                ZelGUITextFieldGetDouble(id, &number);
            },
            [](QLineEdit &field, int) { sink = int(field.text().toDouble()); }),
        value<QLineEdit>(
            "text field: set integer", kTextOrCheckSetter, addField,
            [](int id, int call) { ZelGUITextFieldSetLgIndex(id, call, 0); },
            [](QLineEdit &field, int call) { field.setText(QString::number(call)); }),
        value<QLineEdit>(
            "text field: get integer", kGetter, addField,
            [](int id, int) {
                LgIndex number = 0;
                ZelGUITextFieldGetLgIndex(id, &number);
            },
            [](QLineEdit &field, int) { sink = field.text().toInt(); }),
        value<QCheckBox>(
            "toggle: set", kTextOrCheckSetter, addToggle,
            [](int id, int call) { ZelGUIToggleSet(id, ZelBoolean(call % 2 != 0)); },
            [](QCheckBox &toggle, int call) { toggle.setChecked(call % 2); }),
        value<QCheckBox>(
            "toggle: get", kGetter, addToggle, [](int id, int) { sink = ZelGUIToggleGet(id); },
            [](QCheckBox &toggle, int) { sink = toggle.isChecked(); }),
        value<QSlider>(
            "slider: set", kSetter, addScale, [](int id, int call) { ZelGUIScaleSetValue(id, call % 100); },
            [](QSlider &slider, int call) { slider.setValue(call % 100); }),
        value<QSlider>(
            "slider: get", kGetter, addScale, [](int id, int) { sink = ZelGUIScaleGetValue(id); },
            [](QSlider &slider, int) { sink = slider.value(); }),
        value<QComboBox>(
            "option menu: set", kSetter, addMenu, [](int id, int call) { ZelGUIOptionMenuSet(id, call % 3 + 1); },
            [](QComboBox &menu, int call) { menu.setCurrentIndex(call % 3); }),
        value<QComboBox>(
            "option menu: get", kGetter, addMenu, [](int id, int) { sink = ZelGUIOptionMenuGet(id); },
            [](QComboBox &menu, int) { sink = menu.currentIndex(); }),
        value<QComboBox>(
            "option menu: get text", kTextGetter, addMenu,
            [](int id, int call) { release(ZelGUIOptionMenuGetString(id, call % 3 + 1)); },
            [](QComboBox &menu, int call) { handOut(menu.itemText(call % 3)); }),
        value<QLabel>(
            "label: set text", kSetter, addLabel, [](int id, int call) { ZelGUILabelSetText(id, kTexts[call % 2]); },
            [](QLabel &label, int call) { label.setText(QString::fromUtf8(kTexts[call % 2])); }),
        value<QLabel>(
            "label: set number", kSetter, addLabel,
            [](int id, int call) { ZelGUILabelSetDouble(id, call * 0.1, "%.3f"); },
            [](QLabel &label, int call) { label.setText(QString::asprintf("%.3f", call * 0.1)); }),
        value<QSlider>(
            "wrong identifier: none", {Goal::Most, 50e-9}, addScale,
            [](int, int call) { ZelGUIScaleGetValue(1 << 30 | call); }, nullptr),
        value<QSlider>(
            "wrong identifier: other kind", {Goal::Most, 50e-9}, addScale,
            [](int id, int) { ZelGUITextFieldSetString(id, "text"); }, nullptr),
        lookup("identifier among a million", kGetter, true),
        lookup("identifier of what is gone", {Goal::Most, 50e-9}, false),
    };
}

} // namespace bench
