// SPDX-License-Identifier: MIT
#ifndef ZELGUI_CORE_REPOSITORY_H
#define ZELGUI_CORE_REPOSITORY_H

#include "core/departure.h"

#include <QCoreApplication>
#include <QObject>
#include <QPointer>

#include <vector>

namespace orvane::zelgui {

constexpr int kInvalidWidgetId = -2;
constexpr int kMainWindowParentId = -1;

/// Knows every object that the library has made for add-ons by its identifier, and whether there is a GUI at all.
///
/// There is one per process, made by the first call that needs it and never deleted. It owns none of the objects: they
/// belong to their toolkit parents, and an identifier whose object is gone finds nothing.
class ZelGUIWidgetRepository : public QObject
{
    Q_OBJECT

public:
    static ZelGUIWidgetRepository *instance() { return s_instance ? s_instance : create(); }

    /// Decided once, when the repository is made; afterwards a GUI can only be lost. Static destructors of add-ons may
    /// ask when the application object is gone, even if nobody has deleted the main window.
    bool isGuiAvailable() const { return m_guiAvailable && QCoreApplication::instance(); }
    void markGuiUnavailable() { m_guiAvailable = false; }

    /// Registers an object; its identifier also becomes its object name.
    int addWidget(QObject *object);
    bool isValidId(int id) const { return id >= 0 && static_cast<std::size_t>(id) < m_objects.size(); }
    /// Null also for what was destroyed, or is on its way out while a callback runs.
    QObject *widget(int id) const
    {
        QObject *const object = isValidId(id) ? m_objects[static_cast<std::size_t>(id)].data() : nullptr;
        return object && !isLeaving(object) ? object : nullptr;
    }
    template <typename T>
    T *widgetAs(int id) const
    {
        // What qobject_cast does, without a call; the language's own cast takes several times as long.
        QObject *const object = widget(id);
        const QMetaObject *type = object ? object->metaObject() : nullptr;
        while (type && type != &T::staticMetaObject)
            type = type->superClass();
        return type ? static_cast<T *>(object) : nullptr;
    }

    /// The identifier of an object, or kInvalidWidgetId.
    int idOf(const QObject *object) const;
    bool isRegistered(const QObject *object) const { return idOf(object) != kInvalidWidgetId; }

    bool callbacksSuppressed() const { return m_callbacksSuppressed; }
    void setCallbacksSuppressed(bool on) { m_callbacksSuppressed = on; }

private Q_SLOTS:
    void onMainWindowDestroyed();

private:
    ZelGUIWidgetRepository();
    static ZelGUIWidgetRepository *create();

    /// The toolkit keeps a small block of memory for each dead object that is still pointed to. Those of many dialogs
    /// would cut the heap into pieces and make each new dialog slower, so they are given back; each place is looked
    /// at once.
    void releaseDead();

    static ZelGUIWidgetRepository *s_instance;
    std::vector<QPointer<QObject>> m_objects;
    std::size_t m_releasedUpTo = 0;
    bool m_callbacksSuppressed = false;
    bool m_guiAvailable = false;
};

/// While one lives, what the add-on changes itself is not reported back to it.
///
/// The flag behind it is a single one, not a counter: the end of an inner suppressor ends the outer one's silence too.
/// So hold it around the change alone, and around nothing that calls an add-on.
class CallbackSuppressor
{
public:
    CallbackSuppressor() : m_repository(*ZelGUIWidgetRepository::instance())
    {
        m_repository.setCallbacksSuppressed(true);
    }
    ~CallbackSuppressor() { m_repository.setCallbacksSuppressed(false); }
    CallbackSuppressor(const CallbackSuppressor &) = delete;
    CallbackSuppressor &operator=(const CallbackSuppressor &) = delete;

private:
    ZelGUIWidgetRepository &m_repository;
};

} // namespace orvane::zelgui

#endif
