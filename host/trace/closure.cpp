// SPDX-License-Identifier: MIT
#include "closure.h"

#include "layer.h"

#include <map>
#include <memory>
#include <tuple>

namespace orvane::trace {

namespace {

/// A closure's code points to all of this, so it never moves nor goes.
struct Made
{
    Closure closure;
    Types parameters;
    ffi_cif interface {};
    void (*code)() = nullptr;
};

/// Sets up the code of one closure; leaves it null where that fails.
void makeCode(Made &made, Handler handler, ffi_type *result)
{
    if (ffi_prep_cif(&made.interface, FFI_DEFAULT_ABI, static_cast<unsigned>(made.parameters.size()), result,
                     made.parameters.data()) != FFI_OK)
        return;
    void *code = nullptr;
    auto *const memory = static_cast<ffi_closure *>(ffi_closure_alloc(sizeof(ffi_closure), &code));
    if (!memory)
        return;
    if (ffi_prep_closure_loc(memory, &made.interface, handler, &made.closure, code) == FFI_OK)
        made.code = reinterpret_cast<void (*)()>(code);
    else
        ffi_closure_free(memory);
}

} // namespace

RunScope::RunScope(const Closure &closure, std::vector<Value> arguments, bool hasAnswer)
    : m_run{closure.name, closure.hasPositions, std::move(arguments), hasAnswer}
{
    Layer::instance().enter(m_run, closure);
}

RunScope::~RunScope()
{
    m_run.hasThrown = std::uncaught_exceptions() > m_exceptions;
    Layer::instance().leave(m_run);
}

std::string callbackName(void (*target)())
{
    static auto &numbers = *new std::map<void (*)(), std::size_t>;
    if (!target)
        return "null";
    return "callback" + std::to_string(numbers.try_emplace(target, numbers.size() + 1).first->second);
}

void (*closureCode(Closure description, Handler handler, ffi_type *result, const Types &parameters))()
{
    using Key = std::tuple<void (*)(), Handler, bool, std::string>;
    static auto &all = *new std::map<Key, std::unique_ptr<Made>>;
    std::unique_ptr<Made> &made = all[{description.target, handler, description.hasPositions, description.entry}];
    if (!made) {
        description.name = description.entry.empty() ? callbackName(description.target) : "launch";
        made = std::make_unique<Made>(Made{std::move(description), parameters});
        makeCode(*made, handler, result);
    }
    return made->code ? made->code : made->closure.target;
}

} // namespace orvane::trace
