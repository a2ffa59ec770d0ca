// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_STRICT_POSITIONS_H
#define ZELGUI_TRACE_STRICT_POSITIONS_H

#include "strict/faults.h"
#include "strict/objects.h"

namespace orvane::trace {

/// Positions are those of items that exist.
class Positions : public Listener
{
public:
    Positions(Faults &faults, const Objects &objects) : m_faults(faults), m_objects(objects) {}

    void called(const Call &call) override;

private:
    void check(const Call &call, const Parameter &parameter, int position, int count);

    Faults &m_faults;
    const Objects &m_objects;
};

} // namespace orvane::trace

#endif
