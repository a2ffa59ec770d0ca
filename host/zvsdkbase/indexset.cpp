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

/// A set with more runs than this, each some sixty bytes, would be a mistake of the user's rather than a use.
const std::size_t MostRuns = 1U << 24U;
/// Members of two steps that don't fit are held one by one. More at once would keep the user waiting for seconds.
const LgIndex MostMerged = LgIndex(1) << 22U;

/// first, first + step and so on up to `last`, which is one of them.
struct Progression
{
    LgIndex first;
    LgIndex last;
    LgIndex step;

    /// The last member that is not above `limit`, which is not below the first one.
    LgIndex lastUpTo(LgIndex limit) const { return first + (std::min(limit, last) - first) / step * step; }
};

/// Members in runs that don't overlap: each run ends before the next one begins.
///
/// - Consecutive members are always in one run, all of them: its step is 1. So is the step of a run of one member.
/// - Runs with a greater step hold at least two members, and no neighbour of these is in the set.
struct IndexSet_s
{
    struct Run
    {
        LgIndex last;
        LgIndex step;
    };
    /// By their first members.
    using Runs = std::map<LgIndex, Run>;

    Runs runs;

    /// What the set takes, its nodes estimated as four words (links and balance) beside the run itself.
    std::size_t bytes() const { return sizeof(*this) + runs.size() * (sizeof(*runs.begin()) + 4 * sizeof(void *)); }

    void add(LgIndex member);
    /// May throw std::bad_alloc, and has added only a part then.
    void add(const Progression &added);
    LgIndex runEnd(LgIndex member) const;
    LgIndex next(LgIndex after) const;

private:
    static bool isSingle(const Runs::value_type &run) { return run.first == run.second.last; }
    /// The first member of a run that is not below `from`; the run has to end there or later.
    static LgIndex firstFrom(const Runs::value_type &run, LgIndex from);
    /// The run that begins at `index` or before, and ends there or later; the end of all runs if there is none.
    Runs::const_iterator runAround(LgIndex index) const;
    bool holds(LgIndex member) const;

    Runs::iterator cutBefore(LgIndex index);
    Runs::iterator cutBehind(LgIndex index) { return index == INT64_MAX ? runs.end() : cutBefore(index + 1); }
    Runs::iterator runBy(LgIndex index);
    void requireRoom(LgIndex moreRuns) const;
    void addConsecutive(LgIndex first, LgIndex last);
    void addIsolated(const Progression &added) { addIsolated(cutBefore(added.first), added); }
    void addIsolated(Runs::iterator above, const Progression &added);
    void merge(const Runs::value_type &run, const Progression &added);
    LgIndex addAcross(Runs::iterator run, const Progression &added);
};

LgIndex IndexSet_s::firstFrom(const Runs::value_type &run, LgIndex from)
{
    if (from <= run.first)
        return run.first;
    const LgIndex step = run.second.step;
    const LgIndex behind = (from - run.first) % step;
    return behind == 0 ? from : from + (step - behind);
}

IndexSet_s::Runs::const_iterator IndexSet_s::runAround(LgIndex index) const
{
    const auto above = runs.upper_bound(index);
    if (above == runs.begin() || std::prev(above)->second.last < index)
        return runs.end();
    return std::prev(above);
}

bool IndexSet_s::holds(LgIndex member) const
{
    const auto run = runAround(member);
    return run != runs.end() && firstFrom(*run, member) == member;
}

LgIndex IndexSet_s::runEnd(LgIndex member) const
{
    const auto run = runAround(member);
    if (run == runs.end() || firstFrom(*run, member) != member)
        return 0;
    return run->second.step == 1 ? run->second.last : member;
}

LgIndex IndexSet_s::next(LgIndex after) const
{
    if (after == INT64_MAX)
        return 0;
    const LgIndex wanted = after + 1;
    const auto above = runs.upper_bound(wanted);
    if (above != runs.begin() && std::prev(above)->second.last >= wanted)
        return firstFrom(*std::prev(above), wanted);
    return above == runs.end() ? 0 : above->first;
}

/// Splits the run that has members on both sides of the gap before `index`. The answer is the first run from there on.
IndexSet_s::Runs::iterator IndexSet_s::cutBefore(LgIndex index)
{
    const auto above = runs.lower_bound(index);
    if (above == runs.begin() || std::prev(above)->second.last < index)
        return above;
    const auto below = std::prev(above);
    const Run whole = below->second;
    const LgIndex first = firstFrom(*below, index);
    const auto cut = runs.emplace_hint(above, first, Run{whole.last, first == whole.last ? 1 : whole.step});
    below->second.last = first - whole.step;
    if (isSingle(*below))
        below->second.step = 1;
    return cut;
}

void IndexSet_s::addConsecutive(LgIndex first, LgIndex last)
{
    // Neighbours are taken in, with all of their run if that is consecutive too.
    const auto before = runAround(first - 1);
    if (before != runs.end() && firstFrom(*before, first - 1) == first - 1)
        first = before->second.step == 1 ? before->first : first - 1;
    const auto behind = last == INT64_MAX ? runs.end() : runAround(last + 1);
    if (behind != runs.end() && firstFrom(*behind, last + 1) == last + 1)
        last = behind->second.step == 1 ? behind->second.last : last + 1;

    const auto begin = cutBefore(first);
    const auto end = cutBehind(last);
    if (begin == end) {
        runs.emplace_hint(end, first, Run{last, 1});
        return;
    }
    runs.erase(std::next(begin), end);
    auto run = runs.extract(begin);
    run.key() = first;
    run.mapped() = {last, 1};
    runs.insert(end, std::move(run));
}

/// Adds what has no neighbours in the set and is below the run `above`, which is above every run that begins lower.
void IndexSet_s::addIsolated(Runs::iterator above, const Progression &added)
{
    const bool isSingleAdded = added.first == added.last;
    const auto goesOn = [](const Run &run, bool isSingleRun, LgIndex distance) {
        return distance > 1 && (isSingleRun || run.step == distance);
    };
    if (above != runs.begin()) {
        const auto below = std::prev(above);
        const LgIndex distance = added.first - below->second.last;
        if (goesOn(below->second, isSingle(*below), distance) && (isSingleAdded || added.step == distance)) {
            below->second = {added.last, distance};
            const bool joins = above != runs.end() && above->first - added.last == distance &&
                               goesOn(above->second, isSingle(*above), distance);
            if (joins) {
                below->second.last = above->second.last;
                runs.erase(above);
            }
            return;
        }
    }
    if (above != runs.end()) {
        const LgIndex distance = above->first - added.last;
        if (goesOn(above->second, isSingle(*above), distance) && (isSingleAdded || added.step == distance)) {
            const auto hint = std::next(above);
            auto run = runs.extract(above);
            run.key() = added.first;
            run.mapped().step = distance;
            runs.insert(hint, std::move(run));
            return;
        }
    }
    runs.emplace_hint(above, added.first, Run{added.last, isSingleAdded ? 1 : added.step});
}

void IndexSet_s::add(LgIndex member)
{
    if (!runs.empty()) {
        // Members mostly come in ascending order, with the same distances.
        const auto last = std::prev(runs.end());
        if (member > last->second.last && member - last->second.last == last->second.step) {
            last->second.last = member;
            return;
        }
    }
    const auto above = runs.upper_bound(member);
    const bool isNearBelow = above != runs.begin() && std::prev(above)->second.last >= member - 1;
    const bool isNearAbove = above != runs.end() && above->first - 1 == member;
    if (!isNearBelow && !isNearAbove)
        addIsolated(above, {member, member, 1});
    else if (holds(member))
        return;
    else if (isNearAbove || holds(member - 1) || (member < INT64_MAX && holds(member + 1)))
        addConsecutive(member, member);
    else
        addIsolated({member, member, 1});
}

/// The run that has `index` within its limits or beside them, rather the one above; the end if there is none.
IndexSet_s::Runs::iterator IndexSet_s::runBy(LgIndex index)
{
    const auto above = runs.upper_bound(index);
    if (above != runs.end() && above->first - 1 == index)
        return above;
    return above != runs.begin() && std::prev(above)->second.last >= index - 1 ? std::prev(above) : runs.end();
}

void IndexSet_s::requireRoom(LgIndex moreRuns) const
{
    if (runs.size() >= MostRuns || moreRuns > static_cast<LgIndex>(MostRuns - runs.size()))
        throw std::bad_alloc();
}

/// Adds what is within the limits of a run, or one below them, where the two steps don't fit.
void IndexSet_s::merge(const Runs::value_type &run, const Progression &added)
{
    const LgIndex count = (added.last - added.first) / added.step + 1;
    if (count > MostMerged)
        throw std::bad_alloc();
    requireRoom(count);
    // The run's members between those that are added, and beside these; 0 when there are no more.
    LgIndex old = firstFrom(run, added.first - 1);
    const auto nextOld = [&] { return run.second.last - old < run.second.step ? 0 : old + run.second.step; };
    const LgIndex lowest = std::min(old, added.first);
    IndexSet_s merged;
    for (LgIndex member = added.first;; member += added.step) {
        for (; old != 0 && old <= member; old = nextOld())
            merged.add(old);
        merged.add(member);
        if (member == added.last)
            break;
    }
    if (old != 0 && old - 1 == added.last)
        merged.add(old);
    const auto begin = cutBefore(lowest);
    const auto end = cutBehind(std::prev(merged.runs.end())->second.last);
    runs.erase(begin, end);
    while (!merged.runs.empty())
        runs.insert(end, merged.runs.extract(merged.runs.begin()));
    if (holds(lowest - 1))
        addConsecutive(lowest, lowest);
}

/// Adds what is within the limits of a run from runBy(added.first), or just a neighbour of that run. The answer is the
/// last member that was added.
LgIndex IndexSet_s::addAcross(Runs::iterator run, const Progression &added)
{
    const LgIndex step = run->second.step;
    const bool isBelow = added.first < run->first;
    if (added.first > run->second.last || (isBelow && step == 1)) {
        add(added.first);
        return added.first;
    }
    const LgIndex last = added.lastUpTo(run->second.last);
    const LgIndex offset = isBelow ? step - 1 : (added.first - run->first) % step;
    if (offset == 0 && added.step % step == 0)
        return last;
    if (step % added.step == 0 && offset % added.step == 0) {
        // From here on, the members of the run are among those that are added.
        const auto begin = cutBefore(added.first);
        runs.erase(begin, cutBehind(last));
        addIsolated({added.first, last, added.step});
        return last;
    }
    if (added.step == step && step % 2 == 0 && offset == step / 2) {
        // Each new member is in the middle between two of the run.
        const LgIndex first = isBelow ? added.first : added.first - offset;
        if (offset == 1) {
            addConsecutive(first, last + 1);
            return last;
        }
        const auto begin = cutBefore(first);
        runs.erase(begin, cutBehind(last + offset));
        addIsolated({first, last + offset, offset});
        return last;
    }
    merge(*run, {added.first, last, added.step});
    return last;
}

void IndexSet_s::add(const Progression &added)
{
    if (added.step == 1) {
        addConsecutive(added.first, added.last);
        return;
    }
    Progression rest = added;
    while (true) {
        LgIndex done = rest.last;
        const auto run = runBy(rest.first);
        if (run != runs.end()) {
            done = addAcross(run, rest);
        } else {
            requireRoom(1);
            const auto above = runs.upper_bound(rest.first);
            if (above != runs.end())
                done = rest.lastUpTo(above->first - 2);
            addIsolated({rest.first, done, rest.step});
        }
        if (done == rest.last)
            return;
        rest.first = done + rest.step;
    }
}

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
        const LgIndex lastAdded = last - (last - first) % step;
        if (first == lastAdded)
            set->add(first);
        else
            set->add(Progression{first, lastAdded, step});
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
