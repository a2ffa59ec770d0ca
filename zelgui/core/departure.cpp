// SPDX-License-Identifier: MIT
#include "core/departure.h"

#include "core/repository.h"

#include <QDialog>
#include <QLayout>
#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace orvane::zelgui {

namespace {

int callbacksInProgress = 0;

using Departing = std::vector<const QObject *>;
using Kept = std::vector<QPointer<QWidget>>;

// Neither is ever deleted: a host may destroy its main window after the library's static objects. Neither is made
// before it is needed, so that loading the library does no work.

/// What is leaving, down from its topmost object.
Departing &departing()
{
    static auto *const objects = new Departing;
    return *objects;
}

/// What is to be deleted when the last callback has returned.
Kept &keptForCallbacks()
{
    static auto *const widgets = new Kept;
    return *widgets;
}

bool isDepartingItself(const QObject *object)
{
    return std::find(departing().begin(), departing().end(), object) != departing().end();
}

void markDeparting(QWidget *window)
{
    if (isDepartingItself(window))
        return;
    departing().push_back(window);
    leavingCount = departing().size();
    QObject::connect(window, &QObject::destroyed, [window] {
        departing().erase(std::remove(departing().begin(), departing().end(), window), departing().end());
        leavingCount = departing().size();
    });
}

/// Hides a window and the dialogs inside it; the modal loops of all of them end.
void hideWithDialogs(QWidget *window)
{
    for (QDialog *const dialog : window->findChildren<QDialog *>())
        dialog->hide();
    window->hide();
}

/// Gives what is directly inside a dying window to one that stays until the callbacks have returned.
void keepContent(QWidget *window)
{
    auto *const keeper = new QWidget;
    markDeparting(keeper);
    keptForCallbacks().emplace_back(keeper);
    const auto content = window->findChildren<QObject *>(QString(), Qt::FindDirectChildrenOnly);
    for (QObject *const object : content) {
        if (auto *const widget = qobject_cast<QWidget *>(object))
            widget->setParent(keeper, widget->windowFlags());
        else if (!qobject_cast<QLayout *>(object))
            object->setParent(keeper);
    }
}

} // namespace

CallbackInProgress::CallbackInProgress()
{
    ++callbacksInProgress;
}

CallbackInProgress::~CallbackInProgress()
{
    if (--callbacksInProgress > 0)
        return;
    // Not at once: the signal that led to the callback is still being sent.
    for (const QPointer<QWidget> &widget : keptForCallbacks()) {
        if (widget)
            widget->deleteLater();
    }
    keptForCallbacks().clear();
}

void outliveParentDuringCallbacks(QWidget *dialog)
{
    // A widget sends destroyed() while its children are still there.
    QObject::connect(dialog->parentWidget(), &QObject::destroyed, dialog, [dialog] {
        if (callbacksInProgress == 0)
            return;
        markDeparting(dialog);
        hideWithDialogs(dialog);
        dialog->setParent(nullptr, dialog->windowFlags());
        keptForCallbacks().emplace_back(dialog);
    });
}

void depart(QWidget *dialog)
{
    markDeparting(dialog);
    hideWithDialogs(dialog);
    if (callbacksInProgress > 0)
        keepContent(dialog);
}

std::size_t leavingCount = 0;

bool isInsideLeaving(const QObject *object)
{
    for (; object; object = object->parent()) {
        if (isDepartingItself(object))
            return true;
    }
    return false;
}

bool isDeparting(const QObject *object)
{
    return !ZelGUIWidgetRepository::instance()->isGuiAvailable() || isLeaving(object);
}

} // namespace orvane::zelgui
