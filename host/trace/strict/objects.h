// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_STRICT_OBJECTS_H
#define ZELGUI_TRACE_STRICT_OBJECTS_H

#include "call.h"

#include <QObject>
#include <QPointer>

#include <map>
#include <string>

namespace orvane::trace {

/// Whether identifiers mean anything: without a GUI every function is neutral, and no use of it is wrong.
bool isGuiAvailable();

/// What was created, by identifier.
class Objects
{
public:
    struct Object
    {
        int id;
        ObjectType type;
        int parentId;
        std::string creator;
        std::string addOn;
        /// Null when it was destroyed, and if it was not found at its creation.
        QPointer<QObject> object;
        bool wasFound;
        /// How many items it has for good: the buttons of a radio box.
        int parts;

        bool isDestroyed() const { return wasFound && !object; }
    };

    /// Null for an identifier that no call has returned.
    const Object *find(int id) const;
    const std::map<int, Object> &all() const { return m_objects; }

    void returned(const Call &call);

private:
    std::map<int, Object> m_objects;
};

/// The identifier that a call has created an object under; ZELGUI_INVALID_ID if it has created none.
int createdId(const Call &call);

} // namespace orvane::trace

#endif
