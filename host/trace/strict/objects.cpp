// SPDX-License-Identifier: MIT
#include "strict/objects.h"

#include <common_ui_qt/mainwindow.h>

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace orvane::trace {

namespace {

/// The library names its objects by their identifiers.
QObject *findObject(int id, const QObject *parent)
{
    const QString name = QString::number(id);
    QObject *found = parent ? parent->findChild<QObject *>(name) : nullptr;
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (!found)
            found = window->findChild<QObject *>(name);
    }
    return found;
}

int countLabels(const Call &call)
{
    const auto isLabel = [](const Value &value) {
        const auto *const text = std::get_if<const char *>(&value);
        return text && *text;
    };
    // Null counts as an empty label for the first two.
    const auto count = std::count_if(call.arguments.begin(), call.arguments.end(), isLabel);
    return std::max(2, static_cast<int>(count));
}

} // namespace

bool isGuiAvailable()
{
    return !ZelUtilMacroIsBatchModeActive() && ui::findMainWindow(false);
}

int createdId(const Call &call)
{
    const int *const id = std::get_if<int>(&call.result);
    return call.function.created != ObjectType::None && id && *id >= 0 ? *id : ZELGUI_INVALID_ID;
}

const Objects::Object *Objects::find(int id) const
{
    const auto found = m_objects.find(id);
    return found == m_objects.end() ? nullptr : &found->second;
}

void Objects::returned(const Call &call)
{
    const int id = createdId(call);
    if (id == ZELGUI_INVALID_ID || !isGuiAvailable())
        return;
    const int parentId = call.argument<int>(0);
    const Object *const parent = find(parentId);
    QObject *const object = findObject(id, parent ? parent->object.data() : nullptr);
    const int parts = call.function.created == ObjectType::RadioBox ? countLabels(call) : 0;
    m_objects.insert_or_assign(id, Object{id, call.function.created, parentId, call.function.name, call.addOn, object,
                                          object != nullptr, parts});
}

} // namespace orvane::trace
