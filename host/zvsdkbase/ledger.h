// SPDX-License-Identifier: MIT
#ifndef ZVSDKBASE_LEDGER_H
#define ZVSDKBASE_LEDGER_H

#include <zvsdkbase/hostcontrol.h>

#include <array>
#include <atomic>
#include <cstddef>
#include <map>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane {
namespace host {

/// Everything that was handed out and not released yet. A pointer of a caller is looked up here before it is used, so
/// a wild, foreign or released one does no harm. May be used from any thread.
class Ledger
{
public:
    enum Kind { Text, Set, List };

    /// The process's ledger. It is never destroyed: add-ons may release memory while the process ends.
    static Ledger &instance();

    /// May throw std::bad_alloc, and has entered nothing then.
    void enter(const void *item, Kind kind, std::size_t bytes, const std::string &label);
    /// Takes an item out; false if it is not in the ledger as one of that kind. The caller that gets true owns it.
    bool strike(const void *item, Kind kind);
    bool holds(const void *item, Kind kind);
    /// An item's size; 0 if it is not in the ledger as one of that kind.
    std::size_t size(const void *item, Kind kind);
    /// Notes an item's present size.
    void resize(const void *item, std::size_t bytes);

    std::vector<Unreleased> unreleased();

private:
    struct Total
    {
        std::size_t count = 0;
        std::size_t bytes = 0;
    };
    using Totals = std::map<std::string, Total>;

    struct Entry
    {
        Kind kind;
        std::size_t bytes;
        Totals::iterator total;
    };

    std::mutex m_mutex;
    std::unordered_map<const void *, Entry> m_entries;
    /// By label; holds only labels that have entries.
    Totals m_totals;
    /// For each kind an item that is in the ledger, or null: filling a set asks for the same one again and again.
    /// Written only while the mutex is held.
    std::array<std::atomic<const void *>, 3> m_lastHeld = {};
};

} // namespace host
} // namespace orvane

#endif
