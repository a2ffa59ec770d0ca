// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_WIDGETACTIONS_H
#define ZELHOST_SCRIPT_WIDGETACTIONS_H

#include "finder.h"
#include "stage.h"

/// The steps with fields, option menus, radio boxes, lists and scales; see perform().
QString performOnWidget(Stage &stage, const Step &step);

/// Clicks, if the click would reach the widget; else says why not.
QString clickOn(Stage &stage, QWidget *widget, const QPoint &position,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// What the step's first word names, if a user can act on it; else null, with the reason.
template <typename T>
T *target(Stage &stage, const Step &step, const Kind &kind, QString &failure)
{
    QWidget *const window = windowFor(stage, step, failure);
    if (!window)
        return nullptr;
    const SearchResult finding = findUsable(*window, step.words[0], kind);
    failure = finding.failure;
    return finding.as<T>();
}

#endif
