// SPDX-License-Identifier: MIT
#include "tracer.h"

#include "console.h"
#include "words.h"

namespace orvane::trace {

namespace {

std::string prefix(const std::string &addOn, int depth)
{
    return addOn + ": " + std::string(2 * static_cast<std::size_t>(depth), ' ');
}

} // namespace

void Tracer::called(const Call &call)
{
    begin(call.addOn, call.function.name + argumentsText(call), willHaveResult(call));
}

void Tracer::returned(const Call &call)
{
    end(call.addOn, call.function.name, resultText(call));
}

void Tracer::entered(const Run &run)
{
    begin(run.addOn, run.name + argumentsText(run), run.hasAnswer);
}

void Tracer::left(const Run &run)
{
    end(run.addOn, run.name, answerText(run));
}

void Tracer::begin(const std::string &addOn, const std::string &text, bool willHaveResult)
{
    console::begin(prefix(addOn, m_depth) + text);
    if (!willHaveResult)
        console::finish({});
    ++m_depth;
}

void Tracer::end(const std::string &addOn, const std::string &name, const std::string &result)
{
    --m_depth;
    if (console::isOpen())
        console::finish(result);
    else if (!result.empty())
        console::write(prefix(addOn, m_depth) + name + result);
}

} // namespace orvane::trace
