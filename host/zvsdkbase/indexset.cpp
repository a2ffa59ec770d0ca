// SPDX-License-Identifier: MIT
#include <zvsdkbase/boundary.h>
#include <zvsdkbase/ledger.h>
#include <zvsdkbase/zelutil.h>

#include <iterator>
#include <map>
#include <memory>

using namespace orvane::host;

/// Runs of consecutive members, each its first member and its last. Between two runs at least one index is missing.
struct IndexSet_s
{
    std::map<LgIndex, LgIndex> runs;

    /// What the set takes, its nodes estimated as four words (links and balance) beside the run itself.
    std::size_t bytes() const { return sizeof(*this) + runs.size() * (sizeof(*runs.begin()) + 4 * sizeof(void *)); }

    void add(LgIndex member)
    {
        if (!runs.empty()) {
            const auto last = std::prev(runs.end());
            if (member > last->second) {
                // Members mostly come in ascending order.
                if (member - 1 == last->second)
                    last->second = member;
                else
                    runs.emplace_hint(runs.end(), member, member);
                return;
            }
        }
        const auto above = runs.upper_bound(member);
        const bool touchesAbove = above != runs.end() && above->first - 1 == member;
        if (above != runs.begin()) {
            const auto below = std::prev(above);
            if (member <= below->second)
                return;
            if (member - 1 == below->second) {
                below->second = member;
                if (touchesAbove) {
                    below->second = above->second;
                    runs.erase(above);
                }
                return;
            }
        }
        if (touchesAbove) {
            const auto behind = std::next(above);
            auto run = runs.extract(above);
            run.key() = member;
            runs.insert(behind, std::move(run));
            return;
        }
        runs.emplace_hint(above, member, member);
    }

    LgIndex next(LgIndex after) const
    {
        if (after == INT64_MAX)
            return 0;
        const LgIndex wanted = after + 1;
        const auto above = runs.upper_bound(wanted);
        if (above != runs.begin() && std::prev(above)->second >= wanted)
            return wanted;
        return above == runs.end() ? 0 : above->first;
    }
};

IndexSet ZelUtilSetAlloc(ZelBoolean showErrors)
{
    return guarded<IndexSet>(nullptr, showErrors, [] {
        auto set = std::make_unique<IndexSet_s>();
        Ledger::instance().enter(set.get(), Ledger::Set, set->bytes(), "index set");
        return set.release();
    });
}

ZelBoolean ZelUtilSetAddMember(IndexSet set, LgIndex member, ZelBoolean showErrors)
{
    if (member < 1 || !Ledger::instance().holds(set, Ledger::Set))
        return 0;
    return guarded<ZelBoolean>(0, showErrors, [set, member]() -> ZelBoolean {
        const std::size_t runs = set->runs.size();
        set->add(member);
        if (set->runs.size() != runs)
            Ledger::instance().resize(set, set->bytes());
        return 1;
    });
}

LgIndex ZelUtilSetGetNextMember(IndexSet set, LgIndex after)
{
    return Ledger::instance().holds(set, Ledger::Set) ? set->next(after) : 0;
}

void ZelUtilSetDealloc(IndexSet *set)
{
    if (!set || !Ledger::instance().strike(*set, Ledger::Set))
        return;
    delete *set;
    *set = nullptr;
}
