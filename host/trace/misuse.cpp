// SPDX-License-Identifier: MIT
#include "misuse.h"

#include "strict/identifiers.h"
#include "strict/placing.h"
#include "strict/positions.h"
#include "strict/repetition.h"
#include "strict/texts.h"

namespace orvane::trace {

Misuse::Misuse() : m_releases(m_faults)
{
    m_rules.push_back(std::make_unique<Identifiers>(m_faults, m_objects));
    m_rules.push_back(std::make_unique<Texts>(m_faults));
    m_rules.push_back(std::make_unique<Positions>(m_faults, m_objects));
    m_rules.push_back(std::make_unique<Repetition>(m_faults, m_objects));
    m_rules.push_back(std::make_unique<Placing>(m_faults, m_objects));
}

Misuse::~Misuse() = default;

void Misuse::called(const Call &call)
{
    for (const auto &rule : m_rules)
        rule->called(call);
}

void Misuse::returned(const Call &call)
{
    m_objects.returned(call);
    m_releases.returned(call);
    for (const auto &rule : m_rules)
        rule->returned(call);
}

void Misuse::entered(const Run &run)
{
    for (const auto &rule : m_rules)
        rule->entered(run);
}

void Misuse::left(const Run &run)
{
    for (const auto &rule : m_rules)
        rule->left(run);
}

void Misuse::handedOut(const void *item, const char *function, const std::string &addOn)
{
    m_releases.handedOut(item, function, addOn);
}

void Misuse::released(const void *item, bool wasHeld, const char *function, const std::string &addOn)
{
    m_releases.released(item, wasHeld, function, addOn);
}

int Misuse::finish()
{
    m_releases.finish();
    return m_faults.count();
}

} // namespace orvane::trace
