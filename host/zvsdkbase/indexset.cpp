// SPDX-License-Identifier: MIT
#include <zvsdkbase/boundary.h>
#include <zvsdkbase/ledger.h>
#include <zvsdkbase/observed.h>
#include <zvsdkbase/zelutil.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <new>

using namespace orvane::host;

/// A set with more runs than this, each some fifty bytes, would be a mistake of the user's rather than a use.
const std::size_t MostRuns = 1U << 24U;

/// Runs of consecutive members, each its first member and its last. Between two runs at least one index is missing.
struct IndexSet_s
{
    std::map<LgIndex, LgIndex> runs;

    /// What the set takes, its nodes estimated as four words (links and balance) beside the run itself.
    std::size_t bytes() const { return sizeof(*this) + runs.size() * (sizeof(*runs.begin()) + 4 * sizeof(void *)); }

    /// Adds the members from `first` to `last`.
    void addRun(LgIndex first, LgIndex last)
    {
        // From the run that this one may continue, to behind the last one that it covers or touches.
        auto begin = runs.upper_bound(first);
        if (begin != runs.begin() && std::prev(begin)->second >= first - 1)
            --begin;
        auto end = last == INT64_MAX ? runs.end() : runs.upper_bound(last + 1);
        if (begin != end) {
            first = std::min(first, begin->first);
            last = std::max(last, std::prev(end)->second);
        }
        end = runs.erase(begin, end);
        runs.emplace_hint(end, first, last);
    }

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

    LgIndex runEnd(LgIndex member) const
    {
        const auto above = runs.upper_bound(member);
        return above != runs.begin() && std::prev(above)->second >= member ? std::prev(above)->second : 0;
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
    IndexSet const handle = guarded<IndexSet>(nullptr, showErrors, [] {
        auto set = std::make_unique<IndexSet_s>();
        Ledger::instance().enter(set.get(), Ledger::Set, set->bytes(), "index set");
        return set.release();
    });
    return observeHandedOut(handle, "ZelUtilSetAlloc", __builtin_return_address(0));
}

ZelBoolean ZelUtilSetAddMember(IndexSet set, LgIndex member, ZelBoolean showErrors)
{
    if (member < 1 || !Ledger::instance().holds(set, Ledger::Set))
        return 0;
    return guarded<ZelBoolean>(0, showErrors, [set, member]() -> ZelBoolean {
        const std::size_t runs = set->runs.size();
        if (runs >= MostRuns && set->runEnd(member) == 0)
            throw std::bad_alloc();
        set->add(member);
        if (set->runs.size() != runs)
            Ledger::instance().resize(set, set->bytes());
        return 1;
    });
}

ZelBoolean ZelUtilSetAddRange(IndexSet set, LgIndex first, LgIndex last, LgIndex step, ZelBoolean showErrors)
{
    if (first < 1 || last < first || step < 1 || !Ledger::instance().holds(set, Ledger::Set))
        return 0;
    return guarded<ZelBoolean>(0, showErrors, [=]() -> ZelBoolean {
        if (set->runEnd(first) >= last)
            return 1;
        const auto newRuns = step == 1 ? 1U : static_cast<std::uint64_t>((last - first) / step) + 1;
        if (newRuns > MostRuns - std::min(MostRuns, set->runs.size()))
            throw std::bad_alloc();
        if (step == 1) {
            set->addRun(first, last);
        } else {
            const LgIndex lastStep = last - (last - first) % step;
            for (LgIndex member = first; member < lastStep; member += step)
                set->add(member);
            set->add(lastStep);
        }
        Ledger::instance().resize(set, set->bytes());
        return 1;
    });
}

LgIndex ZelUtilSetGetRunEnd(IndexSet set, LgIndex member)
{
    return Ledger::instance().holds(set, Ledger::Set) ? set->runEnd(member) : 0;
}

LgIndex ZelUtilSetGetNextMember(IndexSet set, LgIndex after)
{
    return Ledger::instance().holds(set, Ledger::Set) ? set->next(after) : 0;
}

void ZelUtilSetDealloc(IndexSet *set)
{
    if (!set)
        return;
    const bool isHeld = Ledger::instance().strike(*set, Ledger::Set);
    observeReleased(*set, isHeld, "ZelUtilSetDealloc", __builtin_return_address(0));
    if (!isHeld)
        return;
    delete *set;
    *set = nullptr;
}
