// SPDX-License-Identifier: MIT
#include "strict/faults.h"

#include "console.h"

namespace orvane::trace {

void Faults::add(const std::string &addOn, const std::string &function, const std::string &wrong,
                 const std::string &remedy)
{
    const std::string line = "zelhost: misuse: " + addOn + ": " + function + ": " + wrong + "; " + remedy;
    if (m_lines.insert(line).second)
        console::write(line);
}

} // namespace orvane::trace
