// SPDX-License-Identifier: MIT
#include "fuzz/calls.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <tuple>
#include <type_traits>
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

template <typename Result, typename... Parameters>
void callWith(Result (*function)(Parameters...), CallContext &context)
{
    Arguments arguments(context);
    // In braces, arguments are made from left to right, the same with every compiler.
    const std::tuple<Parameters...> values{static_cast<Parameters>(arguments)...};
    if constexpr (std::is_same_v<Result, char *>) {
        char *text = std::apply(function, values);
        ZelUtilStringDealloc(&text);
    } else {
        static_cast<void>(std::apply(function, values));
    }
}

/// One function; those whose arguments have to fit one another come after it.
template <auto Function>
void call(CallContext &context)
{
    callWith(Function, context);
}

template <>
void call<ZelGUIDialogLaunch>(CallContext &context)
{
    callWith(launch, context);
}

template <>
void call<ZelGUIListSetSelectedItems>(CallContext &context)
{
    const int list = anyInt(context);
    std::vector<int> positions(context.input.byte() % 16U);
    for (int &position : positions)
        position = context.input.number<int>();
    ZelGUIListSetSelectedItems(list, positions.data(), int(positions.size()));
}

template <typename Callback, typename Function>
void callWithPicture(Function function, CallContext &context)
{
    Arguments from(context);
    const int parent = from, x = from, y = from, width = from, height = from;
    const int columns = context.input.number<int>();
    const int rows = context.input.number<int>();
    std::vector<unsigned char> pixels;
    constexpr int kMostPixels = 10000;
    if (columns > 0 && rows > 0 && columns <= kMostPixels / rows)
        pixels.assign(std::size_t(columns) * std::size_t(rows) * 3, context.input.byte());
    const ZelBoolean isTransparent = from;
    const unsigned char red = from, green = from, blue = from;
    function(parent, x, y, width, height, columns, rows, pixels.empty() ? nullptr : pixels.data(), isTransparent, red,
             green, blue, static_cast<Callback>(from));
}

template <>
void call<ZelGUIBitmapButtonAdd>(CallContext &context)
{
    callWithPicture<ZelGUIVoidCallback>(ZelGUIBitmapButtonAdd, context);
}

template <>
void call<ZelGUIBitmapToggleAdd>(CallContext &context)
{
    callWithPicture<ZelGUIIntCallback>(ZelGUIBitmapToggleAdd, context);
}

} // namespace

void setModalStep(std::function<void()> step)
{
    modalStep = std::move(step);
}

const std::vector<Call> &calls()
{
#define ENTRY(name) {#name, call<name>},
    static const std::vector<Call> all = {
#include "calls.inc"
    };
#undef ENTRY
    return all;
}
