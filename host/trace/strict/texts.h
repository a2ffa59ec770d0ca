// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_STRICT_TEXTS_H
#define ZELGUI_TRACE_STRICT_TEXTS_H

#include "strict/faults.h"

#include "call.h"

namespace orvane::trace {

/// Texts are in the encoding that the function reads, and number formats are such formats.
class Texts : public Listener
{
public:
    explicit Texts(Faults &faults) : m_faults(faults) {}

    void called(const Call &call) override;

private:
    void checkText(const Call &call, const Parameter &parameter, const char *text);
    void checkFormat(const Call &call, const char *format);

    Faults &m_faults;
};

} // namespace orvane::trace

#endif
