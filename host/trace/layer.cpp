// SPDX-License-Identifier: MIT
#include "layer.h"

#include "closure.h"
#include "misuse.h"
#include "tracer.h"

#include <dlfcn.h>

namespace orvane::trace {

namespace {

/// Makes the layer when the library is loaded, which happens before any add-on is.
[[maybe_unused]] const Layer &madeAtLoad = Layer::instance();

} // namespace

void *realAddress(const char *name)
{
    // By its name it is the one that this library depends on, and has loaded already.
    static void *const library = dlopen(ZELGUI_LIBRARY_NAME, RTLD_NOW | RTLD_NOLOAD);
    return dlsym(library, name);
}

Layer &Layer::instance()
{
    static auto *const layer = new Layer;
    return *layer;
}

Layer::Layer()
{
    const host::Observation wanted = host::requestedObservation();
    if (wanted.trace)
        m_listeners.push_back(std::make_unique<Tracer>());
    if (wanted.strict) {
        auto misuse = std::make_unique<Misuse>();
        m_misuse = misuse.get();
        m_listeners.push_back(std::move(misuse));
    }
    host::setObserver(this);
}

void Layer::begin(Call &call)
{
    call.addOn = m_origin.nameOfCaller(call.caller);
    m_libraryAtWork.push_back(true);
    for (const auto &listener : m_listeners)
        listener->called(call);
}

void Layer::end(const Call &call)
{
    for (const auto &listener : m_listeners)
        listener->returned(call);
    m_libraryAtWork.pop_back();
}

void Layer::enter(Run &run, const Closure &closure)
{
    m_origin.enter(reinterpret_cast<const void *>(closure.target), closure.entry);
    m_libraryAtWork.push_back(false);
    run.addOn = m_origin.nameOfRunning();
    run.number = ++m_runs;
    for (const auto &listener : m_listeners)
        listener->entered(run);
}

void Layer::leave(const Run &run)
{
    for (const auto &listener : m_listeners)
        listener->left(run);
    m_libraryAtWork.pop_back();
    m_origin.leave();
}

ZelUtilAddOnCallback Layer::registering(const char *name, ZelUtilAddOnCallback launch)
{
    m_origin.add(reinterpret_cast<const void *>(launch), name);
    return closureFor(launch, false, name);
}

void Layer::handedOut(const void *item, const char *function, const void *caller)
{
    // What the library gets for itself, or for its answer, is no business of the add-on's yet.
    const bool isAddOns = m_libraryAtWork.empty() || !m_libraryAtWork.back();
    if (m_misuse && isAddOns)
        m_misuse->handedOut(item, function, m_origin.nameOfCaller(caller));
}

void Layer::released(const void *item, bool wasHeld, const char *function, const void *caller)
{
    if (m_misuse)
        m_misuse->released(item, wasHeld, function, m_origin.nameOfCaller(caller));
}

int Layer::finish()
{
    return m_misuse ? m_misuse->finish() : 0;
}

} // namespace orvane::trace
