// SPDX-License-Identifier: MIT
#include "util/setstring.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstring>
#include <string>

// A host may lack these two, and its header too.
extern "C" {
// NOLINTBEGIN(readability-redundant-declaration)
__attribute__((weak)) ZelBoolean ZelUtilSetAddRange(IndexSet set, LgIndex first, LgIndex last, LgIndex step,
                                                    ZelBoolean showErrors);
__attribute__((weak)) LgIndex ZelUtilSetGetRunEnd(IndexSet set, LgIndex member);
// NOLINTEND(readability-redundant-declaration)
}

namespace orvane::zelgui {

namespace {

/// Digits of the longest number that a text may hold.
constexpr int kMostDigits = 10;

template <typename Function, typename Other>
bool areOfOneLibrary(Function *function, Other *other)
{
    Dl_info one{};
    Dl_info another{};
    return dladdr(reinterpret_cast<void *>(function), &one) != 0 &&
           dladdr(reinterpret_cast<void *>(other), &another) != 0 && one.dli_fbase == another.dli_fbase;
}

/// Whether the host handles whole runs of members. Its functions for runs are of use only with sets of its own: each
/// has to come from the library that does the same with single members.
bool hostHasRuns()
{
    static const bool hasRuns = ZelUtilSetAddRange && ZelUtilSetGetRunEnd &&
                                areOfOneLibrary(&ZelUtilSetAddRange, &ZelUtilSetAddMember) &&
                                areOfOneLibrary(&ZelUtilSetGetRunEnd, &ZelUtilSetGetNextMember);
    return hasRuns;
}

/// The last of the members that follow one another from `member` on. `next` becomes the member after them, or 0.
LgIndex runEnd(IndexSet set, LgIndex member, LgIndex &next)
{
    LgIndex last = member;
    next = ZelUtilSetGetNextMember(set, last);
    while (next != 0 && next - 1 == last) {
        last = hostHasRuns() ? std::max(next, ZelUtilSetGetRunEnd(set, next)) : next;
        next = ZelUtilSetGetNextMember(set, last);
    }
    return last;
}

/// Adds every step-th member from first to last, all of them even if some can't be added.
bool addRange(IndexSet set, LgIndex first, LgIndex last, LgIndex step)
{
    if (hostHasRuns())
        return ZelUtilSetAddRange(set, first, last, step, 1) != 0;
    bool isComplete = true;
    for (LgIndex member = first; member <= last; member += step)
        isComplete = ZelUtilSetAddMember(set, member, 1) != 0 && isComplete;
    return isComplete;
}

void appendHostString(char **text, const std::string &more)
{
    const std::size_t length = *text ? std::strlen(*text) : 0;
    char *const longer = ZelUtilStringAlloc(length + more.size() + 1, "new string");
    if (longer) {
        std::copy_n(*text, length, longer);
        std::copy_n(more.c_str(), more.size() + 1, longer + length);
    }
    if (*text)
        ZelUtilStringDealloc(text);
    *text = longer;
}

/// Reads a text from its start to its end.
class SetReader
{
public:
    explicit SetReader(const char *text) : m_cursor(text) {}

    /// Adds what the text says to a set.
    bool read(IndexSet set, bool expectBrackets)
    {
        skipBlanks();
        if (expectBrackets && !skip('['))
            return false;
        while (true) {
            if (*m_cursor == '\0')
                return true;
            if (expectBrackets) {
                skipBlanks();
                if (skip(']'))
                    return true;
            }
            if (!readItem(set))
                return false;
            skipBlanks();
            skip(',');
            skipBlanks();
        }
    }

private:
    /// A number, a range, or a range with a step.
    bool readItem(IndexSet set)
    {
        LgIndex first = 0;
        if (!readSetNumber(&first) || first < 1)
            return false;
        LgIndex last = first;
        LgIndex step = 1;
        skipBlanks();
        if (skip('-')) {
            if (!readSetNumber(&last) || last < first)
                return false;
            skipBlanks();
            if (skip(':') && (!readSetNumber(&step) || step < 1))
                return false;
        }
        return addRange(set, first, last, step);
    }

    bool readSetNumber(LgIndex *value)
    {
        skipBlanks();
        const bool isNegative = skip('-');
        LgIndex number = 0;
        int digits = 0;
        for (; *m_cursor >= '0' && *m_cursor <= '9'; ++m_cursor) {
            if (++digits > kMostDigits)
                return false;
            number = number * 10 + (*m_cursor - '0');
        }
        *value = isNegative ? -number : number;
        return digits > 0;
    }

    void skipBlanks()
    {
        while (*m_cursor == ' ' || *m_cursor == '\t')
            ++m_cursor;
    }

    bool skip(char character)
    {
        if (*m_cursor != character)
            return false;
        ++m_cursor;
        return true;
    }

    const char *m_cursor;
};

} // namespace

bool setToString(IndexSet set, bool includeBrackets, std::size_t longest, char **text)
{
    std::string written(includeBrackets ? "[" : "");
    LgIndex next = 0;
    LgIndex first = set ? ZelUtilSetGetNextMember(set, 0) : 0;
    for (; first != 0 && written.size() <= longest; first = next) {
        const LgIndex last = runEnd(set, first, next);
        written += std::to_string(first);
        if (last != first)
            written += '-' + std::to_string(last);
        if (next != 0)
            written += ',';
    }
    if (includeBrackets)
        written += ']';
    if (written.size() > longest)
        return false;
    appendHostString(text, written);
    return true;
}

bool stringToSet(const char *text, IndexSet *set, bool expectBrackets)
{
    *set = ZelUtilSetAlloc(1);
    if (!*set)
        return false;
    if (SetReader(text).read(*set, expectBrackets))
        return true;
    ZelUtilSetDealloc(set);
    return false;
}

} // namespace orvane::zelgui
