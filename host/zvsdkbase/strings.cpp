// SPDX-License-Identifier: MIT
#include <zvsdkbase/boundary.h>
#include <zvsdkbase/ledger.h>
#include <zvsdkbase/observed.h>
#include <zvsdkbase/zelutil.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>

using namespace orvane::host;

namespace {

struct FreeMemory
{
    void operator()(void *memory) const { std::free(memory); }
};

} // namespace

char *ZelUtilStringAlloc(size_t size, const char *label)
{
    // No object can be larger; allocators disagree on what to do when they are asked for one.
    if (size > static_cast<size_t>(PTRDIFF_MAX))
        return nullptr;
    char *const string = guarded<char *>(nullptr, 0, [size, label]() -> char * {
        // Zeroed, so that what a caller forgets to fill reads as an empty string.
        std::unique_ptr<char, FreeMemory> memory(static_cast<char *>(std::calloc(std::max<size_t>(size, 1), 1)));
        if (memory)
            Ledger::instance().enter(memory.get(), Ledger::Text, size, label ? label : "no label");
        return memory.release();
    });
    return observeHandedOut(string, "ZelUtilStringAlloc", __builtin_return_address(0));
}

void ZelUtilStringDealloc(char **string)
{
    if (!string)
        return;
    const bool isHeld = Ledger::instance().strike(*string, Ledger::Text);
    observeReleased(*string, isHeld, "ZelUtilStringDealloc", __builtin_return_address(0));
    if (!isHeld)
        return;
    std::free(*string);
    *string = nullptr;
}
