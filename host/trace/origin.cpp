// SPDX-License-Identifier: MIT
#include "origin.h"

#include <dlfcn.h>
#include <sys/auxv.h>

namespace orvane::trace {

namespace {

struct Module
{
    const void *base = nullptr;
    std::string file = {};
    std::string fileName = {};
};

Module moduleOf(const void *address)
{
    Dl_info info{};
    if (dladdr(address, &info) == 0)
        return {};
    const std::string file = info.dli_fname;
    return {info.dli_fbase, file, file.substr(file.rfind('/') + 1)};
}

/// Whether an address is in the program itself: an add-on's ZelAddOnInit has ended with a call.
bool isProgram(const Module &module)
{
    // The system tells addresses as numbers.
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    static const void *const program = moduleOf(reinterpret_cast<const void *>(getauxval(AT_ENTRY))).base;
    return module.base == program;
}

bool hasAddOnInit(const Module &module)
{
    void *const handle = dlopen(module.file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (!handle)
        return false;
    const void *const function = dlsym(handle, "ZelAddOnInit");
    dlclose(handle);
    // It is also found in what the module depends on.
    return function && moduleOf(function).base == module.base;
}

} // namespace

void Origin::add(const void *launch, const std::string &name)
{
    m_entries[moduleOf(launch).base].push_back(name);
}

void Origin::enter(const void *function, const std::string &entry)
{
    const Module module = moduleOf(function);
    m_running.push_back({module.base, module.fileName, entry});
}

std::string Origin::nameOfRunning() const
{
    return m_running.empty() ? "an add-on" : nameOf(m_running.back().module, m_running.back().file);
}

std::string Origin::nameOfCaller(const void *address)
{
    const Module module = moduleOf(address);
    if (isProgram(module) || (!isAddOn(address) && !m_running.empty()))
        return nameOfRunning();
    return nameOf(module.base, module.fileName);
}

bool Origin::isAddOn(const void *address)
{
    const Module module = moduleOf(address);
    const auto [found, isNew] = m_areAddOns.try_emplace(module.base, false);
    if (isNew)
        found->second = hasAddOnInit(module);
    return found->second;
}

std::string Origin::nameOf(Base module, const std::string &file) const
{
    // A module may have several entries: the one that has been launched is meant.
    for (auto running = m_running.rbegin(); running != m_running.rend(); ++running) {
        if (running->module == module && !running->entry.empty())
            return running->entry;
    }
    const auto found = m_entries.find(module);
    return found != m_entries.end() && found->second.size() == 1 ? found->second.front() : file;
}

} // namespace orvane::trace
