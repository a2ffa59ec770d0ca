// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_STRICT_IDENTIFIERS_H
#define ZELGUI_TRACE_STRICT_IDENTIFIERS_H

#include "strict/faults.h"
#include "strict/objects.h"

namespace orvane::trace {

/// Identifiers name an object that is there, and of a type that the function works on.
class Identifiers : public Listener
{
public:
    Identifiers(Faults &faults, const Objects &objects) : m_faults(faults), m_objects(objects) {}

    void called(const Call &call) override;

private:
    Faults &m_faults;
    const Objects &m_objects;
};

} // namespace orvane::trace

#endif
