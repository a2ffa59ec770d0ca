// SPDX-License-Identifier: MIT
#include <zvsdkbase/boundary.h>
#include <zvsdkbase/ledger.h>
#include <zvsdkbase/observed.h>
#include <zvsdkbase/zelutil.h>

#include <memory>
#include <string>
#include <vector>

using namespace orvane::host;

struct StringList_s
{
    std::vector<std::string> strings;
    /// What the list takes: itself, its strings and their terminators.
    std::size_t bytes = sizeof(StringList_s);
};

StringList_s *ZelUtilStringListAlloc(void)
{
    StringList_s *const handle = guarded<StringList_s *>(nullptr, 0, [] {
        auto list = std::make_unique<StringList_s>();
        Ledger::instance().enter(list.get(), Ledger::List, list->bytes, "string list");
        return list.release();
    });
    return observeHandedOut(handle, "ZelUtilStringListAlloc", __builtin_return_address(0));
}

void ZelUtilStringListDealloc(StringList_s **list)
{
    if (!list)
        return;
    const bool isHeld = Ledger::instance().strike(*list, Ledger::List);
    observeReleased(*list, isHeld, "ZelUtilStringListDealloc", __builtin_return_address(0));
    if (!isHeld)
        return;
    delete *list;
    *list = nullptr;
}

ZelBoolean ZelUtilStringListAppendString(StringList_s *list, const char *string)
{
    if (!Ledger::instance().holds(list, Ledger::List))
        return 0;
    return guarded<ZelBoolean>(0, 0, [list, string]() -> ZelBoolean {
        list->strings.emplace_back(string ? string : "");
        list->bytes += sizeof(std::string) + list->strings.back().size() + 1;
        Ledger::instance().resize(list, list->bytes);
        return 1;
    });
}

LgIndex ZelUtilStringListGetCount(StringList_s *list)
{
    return Ledger::instance().holds(list, Ledger::List) ? static_cast<LgIndex>(list->strings.size()) : 0;
}

char *ZelUtilStringListGetString(StringList_s *list, LgIndex position)
{
    if (position < 1 || position > ZelUtilStringListGetCount(list))
        return nullptr;
    const std::string &string = list->strings[static_cast<std::size_t>(position - 1)];
    char *copy = ZelUtilStringAlloc(string.size() + 1, "string of a string list");
    if (copy)
        string.copy(copy, string.size());
    return observeHandedOut(copy, "ZelUtilStringListGetString", __builtin_return_address(0));
}
