// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_STRICT_FAULTS_H
#define ZELGUI_TRACE_STRICT_FAULTS_H

#include <set>
#include <string>

namespace orvane::trace {

/// Prints what is wrong, and counts it. The same line appears once.
class Faults
{
public:
    void add(const std::string &addOn, const std::string &function, const std::string &wrong,
             const std::string &remedy);
    int count() const { return static_cast<int>(m_lines.size()); }

private:
    std::set<std::string> m_lines;
};

} // namespace orvane::trace

#endif
