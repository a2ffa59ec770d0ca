// SPDX-License-Identifier: MIT
#include "core/repository.h"

#include <common_ui_qt/mainwindow.h>
#include <zvsdkbase/zelutil.h>

#include <QWidget>

#include <algorithm>

namespace orvane::zelgui {

ZelGUIWidgetRepository *ZelGUIWidgetRepository::s_instance = nullptr;

ZelGUIWidgetRepository *ZelGUIWidgetRepository::create()
{
    // Never deleted: add-ons may still call while the process ends.
    static auto *const repository = new ZelGUIWidgetRepository;
    s_instance = repository;
    return repository;
}

ZelGUIWidgetRepository::ZelGUIWidgetRepository()
    : m_guiAvailable(QCoreApplication::instance() && !ZelUtilMacroIsBatchModeActive() && ui::findMainWindow(true))
{
    if (!m_guiAvailable)
        return;
    connect(ui::findMainWindow(false), &QObject::destroyed, this, &ZelGUIWidgetRepository::onMainWindowDestroyed);
    // exit() may be called in a callback, where the application object outlives it, but not all that the toolkit needs.
    // First of all it destroys what belongs to the thread, before static objects and what was given to atexit().
    struct EndOfThread
    {
        ~EndOfThread() { s_instance->markGuiUnavailable(); }
    };
    static thread_local const EndOfThread end;
}

int ZelGUIWidgetRepository::addWidget(QObject *object)
{
    if (!m_objects.empty() && !m_objects.back())
        releaseDead();
    const auto id = static_cast<int>(m_objects.size());
    object->setObjectName(QString::number(id));
    m_objects.emplace_back(object);
    return id;
}

void ZelGUIWidgetRepository::releaseDead()
{
    for (; m_releasedUpTo < m_objects.size(); ++m_releasedUpTo) {
        if (!m_objects[m_releasedUpTo])
            m_objects[m_releasedUpTo].clear();
    }
}

int ZelGUIWidgetRepository::idOf(const QObject *object) const
{
    // The name tells where to look, unless the host has given another.
    bool isNumber = false;
    const int id = object->objectName().toInt(&isNumber);
    if (isNumber && widget(id) == object)
        return id;
    const auto found = std::find(m_objects.begin(), m_objects.end(), object);
    return found == m_objects.end() ? kInvalidWidgetId : static_cast<int>(found - m_objects.begin());
}

void ZelGUIWidgetRepository::onMainWindowDestroyed()
{
    markGuiUnavailable();
}

} // namespace orvane::zelgui
