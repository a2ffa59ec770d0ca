// SPDX-License-Identifier: MIT
#include "strict/releases.h"

#include <zvsdkbase/hostcontrol.h>

namespace orvane::trace {

namespace {

const char *releaserOf(const std::string &function)
{
    if (function == "ZelUtilSetAlloc" || function == "ZelGUITextFieldGetSet")
        return "ZelUtilSetDealloc";
    return function == "ZelUtilStringListAlloc" ? "ZelUtilStringListDealloc" : "ZelUtilStringDealloc";
}

} // namespace

void Releases::returned(const Call &call)
{
    if (const auto *const text = std::get_if<char *>(&call.result))
        handedOut(*text, call.function.name, call.addOn);
    const auto *const isDone = std::get_if<ZelBoolean>(&call.result);
    for (std::size_t i = 0; i < call.arguments.size(); ++i) {
        // After a call without effect an output argument may hold anything.
        if (const auto *const set = call.argument<IndexSet *>(i); set && isDone && *isDone)
            handedOut(*set, call.function.name, call.addOn);
        if (const auto *const array = call.argument<int **>(i); array && host::heldBytes(*array) > 0)
            handedOut(*array, call.function.name, call.addOn);
    }
}

void Releases::handedOut(const void *item, const char *function, const std::string &addOn)
{
    if (!item)
        return;
    m_held.insert_or_assign(item, Source{addOn, function});
    m_released.erase(item);
}

void Releases::released(const void *item, bool wasHeld, const char *function, const std::string &addOn)
{
    if (wasHeld) {
        m_held.erase(item);
        m_released.insert(item);
    } else if (m_released.count(item) > 0) {
        m_faults.add(addOn, function, "this was released before",
                     "release a thing once, through the only pointer to it that is kept");
    } else {
        m_faults.add(addOn, function, "this is not what the function releases",
                     "pass what the host has handed out and says to release so");
    }
}

void Releases::finish()
{
    std::map<Source, int> counts;
    for (const auto &[item, source] : m_held)
        ++counts[source];
    for (const auto &[source, count] : counts) {
        m_faults.add(source.addOn, source.function, std::to_string(count) + " of its results not released",
                     std::string("pass each to ") + releaserOf(source.function) + " when it is no longer needed");
    }
}

} // namespace orvane::trace
