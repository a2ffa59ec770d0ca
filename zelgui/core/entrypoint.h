// SPDX-License-Identifier: MIT
#ifndef ZELGUI_CORE_ENTRYPOINT_H
#define ZELGUI_CORE_ENTRYPOINT_H

#include "core/repository.h"

#include <QWidget>

#include <utility>

/// The way in from add-ons. Every exported function is one of these calls: it asks whether there is a GUI, finds the
/// object, does one thing with it, and answers the neutral value in every other case. They are also the wall behind
/// which exceptions stay, those of the host's libraries included; no exported function has a `try` of its own.
namespace orvane::zelgui {

/// The answer of `action`, or `neutral` when an exception ends it: an add-on could not act on the reason.
template <typename Result, typename Action>
Result behindWall(Result neutral, Action &&action) noexcept
{
    try {
        return std::forward<Action>(action)();
    } catch (...) {
        return neutral;
    }
}

/// The answer of `action`, or `neutral` without a GUI.
template <typename Result, typename Action>
Result withGui(Result neutral, Action &&action) noexcept
{
    return behindWall(neutral, [&]() -> Result {
        return ZelGUIWidgetRepository::instance()->isGuiAvailable() ? std::forward<Action>(action)() : neutral;
    });
}

/// The answer of `action` for the object of class T that `id` names, or `neutral` where there is none.
template <typename T, typename Result, typename Action>
Result withWidget(int id, Result neutral, Action &&action) noexcept
{
    return withGui(neutral, [&]() -> Result {
        T *const object = ZelGUIWidgetRepository::instance()->widgetAs<T>(id);
        return object ? std::forward<Action>(action)(*object) : neutral;
    });
}

/// The same for an action without an answer.
template <typename T, typename Action>
void withWidget(int id, Action &&action) noexcept
{
    withWidget<T>(id, true, [&](T &object) {
        std::forward<Action>(action)(object);
        return true;
    });
}

/// Registers what `make` makes in the parent; the answer is its identifier.
template <typename Make>
int addTo(int parentId, Make &&make) noexcept
{
    return withWidget<QWidget>(parentId, kInvalidWidgetId, [&](QWidget &parent) {
        return ZelGUIWidgetRepository::instance()->addWidget(std::forward<Make>(make)(parent));
    });
}

/// The same for a T, constructed from its parent and `arguments`.
template <typename T, typename... Arguments>
int addWidgetTo(int parentId, Arguments... arguments) noexcept
{
    return addTo(parentId, [&](QWidget &parent) { return new T(&parent, arguments...); });
}

} // namespace orvane::zelgui

#endif
