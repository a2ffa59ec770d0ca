// SPDX-License-Identifier: MIT
#ifndef ZELGUI_CORE_CALLBACK_H
#define ZELGUI_CORE_CALLBACK_H

#include "core/departure.h"
#include "core/repository.h"
#include "core/text.h"

#include <zelgui/zelgui.h>

#include <QObject>
#include <QPointer>

/// The way out to add-ons: nothing else in the library calls a callback. An add-on may do anything inside one, so who
/// has called out believes nothing afterwards that it hasn't looked up again; these functions answer for the sender.
namespace orvane::zelgui {

/// True if `call`, which calls an add-on on behalf of `sender`, has run to its end and the sender is still there.
/// Exceptions of the add-on's stay here, since the toolkit would not survive them.
template <typename Call>
bool callOut(QObject *sender, Call &&call) noexcept
{
    if (isDeparting(sender))
        return false;
    const QPointer<QObject> guard(sender);
    const CallbackInProgress inProgress;
    try {
        call();
    } catch (...) {
        return false;
    }
    return guard && !isDeparting(guard);
}

/// Reports to an add-on; a null callback is skipped.
template <typename... Parameters, typename... Arguments>
void report(QObject *sender, void (*callback)(Parameters...), Arguments... arguments) noexcept
{
    if (callback)
        callOut(sender, [&] { callback(arguments...); });
}

/// Reports a new value, which the add-on sees through a pointer that is valid during the call. Silent while the add-on
/// changes a value itself.
inline void reportChange(QObject *sender, ZelGUIIntCallback callback, int value) noexcept
{
    if (!ZelGUIWidgetRepository::instance()->callbacksSuppressed())
        report<const int *>(sender, callback, &value);
}

/// Tells an add-on the whole of a text, in UTF-8, and asks what it thinks of it: false if it rejects the text. There is
/// nobody to reject one without a callback, nor when the sender is gone.
inline bool askWhetherAccepted(QObject *sender, ZelGUITextCallback callback, const QString &text) noexcept
{
    int answer = 1;
    const bool isAnswered = callback && callOut(sender, [&] { answer = callback(toUtf8(text).constData()); });
    return !isAnswered || answer != 0;
}

} // namespace orvane::zelgui

#endif
