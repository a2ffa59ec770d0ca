// SPDX-License-Identifier: MIT
// A stream of bytes as calls of any functions with any arguments, between what a user does; callbacks and modal dialogs
// go on with the same stream. With ZELGUI_FUZZ_TRACE in the environment, tells what it does.
#include "fuzz/calls.h"
#include "fuzz/fuzzhost.h"
#include "support/declared.h"

#include <QApplication>
#include <QDialog>
#include <QTest>

#include <cstdio>
#include <cstring>

namespace {

CallContext *current = nullptr;
int depth = 0;

void trace(const char *what, const char *detail = "")
{
    static const bool isTraced = qEnvironmentVariableIsSet("ZELGUI_FUZZ_TRACE");
    if (isTraced)
        std::printf("%*s%s%s\n", depth * 2, "", what, detail);
}

QWidget *visibleWidget(CallContext &context)
{
    auto *const widget = FuzzHost::object<QWidget>(anyInt(context));
    return widget && widget->isVisible() ? widget : nullptr;
}

void pressKey(CallContext &context)
{
    static const int keys[] = {Qt::Key_Return, Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Space, Qt::Key_Up, Qt::Key_Down,
                               Qt::Key_PageUp, Qt::Key_Escape, Qt::Key_End,     Qt::Key_F4,    Qt::Key_5,  Qt::Key_M};
    QWidget *const widget = QApplication::focusWidget();
    const int key = keys[context.input.byte() % std::size(keys)];
    const bool isWithControl = context.input.byte() % 8 == 1;
    if (widget && widget->isVisible())
        QTest::keyClick(widget, Qt::Key(key), isWithControl ? Qt::ControlModifier : Qt::NoModifier);
}

void click(CallContext &context)
{
    QWidget *const widget = visibleWidget(context);
    const QPoint place(context.input.byte(), context.input.byte() / 4);
    if (widget)
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, place);
}

void closeWindow(CallContext &context)
{
    if (QWidget *const widget = visibleWidget(context))
        widget->window()->close();
}

// The host may do that between calls; what happens within one has tests of its own.
void destroyDialog(CallContext &context)
{
    auto *const dialog = FuzzHost::object<QDialog>(anyInt(context));
    if (depth == 0)
        delete dialog;
}

void actAsUser(CallContext &context, unsigned choice)
{
    static const char *const details[] = {"presses a key", "clicks", "closes a window", "sees a dialog destroyed"};
    trace("the user ", choice < std::size(details) ? details[choice] : "waits");
    switch (choice) {
    case 0:
        pressKey(context);
        return;
    case 1:
        click(context);
        return;
    case 2:
        closeWindow(context);
        return;
    case 3:
        destroyDialog(context);
        return;
    default:
        QCoreApplication::processEvents();
    }
}

void step(CallContext &context)
{
    const std::size_t choice = context.input.byte();
    const auto &all = calls();
    if (choice < all.size()) {
        trace(all[choice].name);
        all[choice].make(context);
    } else {
        actAsUser(context, unsigned(choice - all.size()) % 6);
    }
}

// What a callback and a modal dialog's loop do.
void stepWithin(int count)
{
    constexpr int kDeepest = 6;
    if (!current || depth == kDeepest)
        return;
    ++depth;
    for (; count > 0 && !current->input.isAtEnd(); --count)
        step(*current);
    --depth;
}

} // namespace

ZelGUIVoidCallback anyVoidCallback(FuzzInput &input)
{
    static const ZelGUIVoidCallback all[] = {[] {}, nullptr, [] { stepWithin(1); }, [] { stepWithin(3); }};
    return all[input.byte() % std::size(all)];
}

ZelGUIIntCallback anyIntCallback(FuzzInput &input)
{
    static const ZelGUIIntCallback all[] = {[](const int *value) { trace("reported ", QByteArray::number(*value)); },
                                            nullptr, [](const int *value) { stepWithin(*value % 2 + 1); }};
    return all[input.byte() % std::size(all)];
}

ZelGUITextCallback anyTextCallback(FuzzInput &input)
{
    static const ZelGUITextCallback all[] = {[](const char *text) { return int(std::strlen(text) % 2); }, nullptr,
                                             [](const char *text) {
                                                 stepWithin(1);
                                                 return int(std::strlen(text) % 2);
                                             }};
    return all[input.byte() % std::size(all)];
}

static void requireAllFunctions()
{
    QStringList names;
    for (const Call &call : calls())
        names << QString::fromLatin1(call.name);
    FuzzHost::require(!names.isEmpty() && names == declaredFunctions(), "all functions are called");
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool isComplete = (requireAllFunctions(), true);
    Q_UNUSED(isComplete)
    const FuzzDialog dialog;
    FuzzInput input(data, size);
    CallContext context = {input, dialog.id()};
    current = &context;
    setModalStep([] { stepWithin(3); });
    while (!input.isAtEnd())
        step(context);
    current = nullptr;
    return 0;
}
