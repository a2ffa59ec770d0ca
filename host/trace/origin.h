// SPDX-License-Identifier: MIT
#ifndef ZELGUI_TRACE_ORIGIN_H
#define ZELGUI_TRACE_ORIGIN_H

#include <map>
#include <string>
#include <vector>

namespace orvane::trace {

/// Says which add-on does something, by what it is called in the host's menu.
///
/// A return address tells the module that has called. But where a function ends with a call, compilers make a jump of
/// it; the address is then that of whoever has called the function. So in any code but an add-on's, the add-on whose
/// function is running is meant.
class Origin
{
public:
    /// An entry of the host's menu, and the function that launches it.
    void add(const void *launch, const std::string &name);

    /// From enter() to leave() runs an add-on's function: a callback, or with `entry` the launch of that entry.
    void enter(const void *function, const std::string &entry);
    void leave() { m_running.pop_back(); }

    std::string nameOfRunning() const;
    std::string nameOfCaller(const void *address);

private:
    /// Where a module is loaded, which stands for the module.
    using Base = const void *;

    struct Running
    {
        Base module;
        std::string file;
        std::string entry;
    };

    bool isAddOn(const void *address);
    /// `file` where the module's entries don't tell.
    std::string nameOf(Base module, const std::string &file) const;

    std::map<Base, std::vector<std::string>> m_entries;
    std::map<Base, bool> m_areAddOns;
    std::vector<Running> m_running;
};

} // namespace orvane::trace

#endif
