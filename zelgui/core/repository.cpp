// SPDX-License-Identifier: MIT
#include "core/repository.h"

#include <common_ui_qt/mainwindow.h>
#include <zvsdkbase/zelutil.h>

#include <QWidget>

namespace orvane::zelgui {

ZelGUIWidgetRepository *ZelGUIWidgetRepository::instance()
{
    // Never deleted: add-ons may still call while the process ends.
    static auto *const repository = new ZelGUIWidgetRepository;
    return repository;
}

ZelGUIWidgetRepository::ZelGUIWidgetRepository()
    : m_guiAvailable(!ZelUtilMacroIsBatchModeActive() && ui::findMainWindow(true))
{
    if (m_guiAvailable)
        connect(ui::findMainWindow(false), &QObject::destroyed, this, &ZelGUIWidgetRepository::onMainWindowDestroyed);
}

int ZelGUIWidgetRepository::addWidget(QObject *object)
{
    const auto id = static_cast<int>(m_objects.size());
    object->setObjectName(QString::number(id));
    m_objects.emplace_back(object);
    return id;
}

int ZelGUIWidgetRepository::idOf(const QObject *object) const
{
    // The object's name says where to look; it proves nothing, since the host may give names too.
    bool isNumber = false;
    const int id = object->objectName().toInt(&isNumber);
    return isNumber && widget(id) == object ? id : kInvalidWidgetId;
}

void ZelGUIWidgetRepository::forget(QObject *root)
{
    const auto forgetOne = [this](const QObject *object) {
        const int id = idOf(object);
        if (id != kInvalidWidgetId)
            m_objects[static_cast<std::size_t>(id)].clear();
    };
    forgetOne(root);
    for (const QObject *const object : root->findChildren<QObject *>())
        forgetOne(object);
}

void ZelGUIWidgetRepository::onMainWindowDestroyed()
{
    markGuiUnavailable();
}

} // namespace orvane::zelgui
