// SPDX-License-Identifier: MIT
#include <zvsdkbase/ledger.h>

#include <new>

namespace orvane {
namespace host {

Ledger &Ledger::instance()
{
    // In place, so that not even the first call can fail.
    alignas(Ledger) static unsigned char place[sizeof(Ledger)];
    static auto *const ledger = new (place) Ledger;
    return *ledger;
}

void Ledger::enter(const void *item, Kind kind, std::size_t bytes, const std::string &label)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const Totals::iterator total = m_totals.try_emplace(label).first;
    try {
        m_entries.insert_or_assign(item, Entry{kind, bytes, total});
    } catch (...) {
        if (total->second.count == 0)
            m_totals.erase(total);
        throw;
    }
    ++total->second.count;
    total->second.bytes += bytes;
}

bool Ledger::strike(const void *item, Kind kind)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_entries.find(item);
    if (found == m_entries.end() || found->second.kind != kind)
        return false;
    const Totals::iterator total = found->second.total;
    total->second.bytes -= found->second.bytes;
    if (--total->second.count == 0)
        m_totals.erase(total);
    m_entries.erase(found);
    if (m_lastHeld[kind] == item)
        m_lastHeld[kind] = nullptr;
    return true;
}

bool Ledger::holds(const void *item, Kind kind)
{
    if (!item)
        return false;
    if (m_lastHeld[kind].load(std::memory_order_acquire) == item)
        return true;
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_entries.find(item);
    if (found == m_entries.end() || found->second.kind != kind)
        return false;
    m_lastHeld[kind] = item;
    return true;
}

std::size_t Ledger::size(const void *item, Kind kind)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_entries.find(item);
    return found == m_entries.end() || found->second.kind != kind ? 0 : found->second.bytes;
}

void Ledger::resize(const void *item, std::size_t bytes)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_entries.find(item);
    if (found == m_entries.end())
        return;
    found->second.total->second.bytes += bytes - found->second.bytes;
    found->second.bytes = bytes;
}

std::vector<Unreleased> Ledger::unreleased()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<Unreleased> result;
    result.reserve(m_totals.size());
    for (const auto &[label, total] : m_totals)
        result.push_back({label, total.count, total.bytes});
    return result;
}

std::vector<Unreleased> unreleased()
{
    return Ledger::instance().unreleased();
}

std::size_t heldBytes(const void *item)
{
    return Ledger::instance().size(item, Ledger::Text);
}

} // namespace host
} // namespace orvane
