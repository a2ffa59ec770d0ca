// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_RANDOMSOURCE_H
#define TESTS_TORTURE_RANDOMSOURCE_H

#include "random.h"
#include "support/model.h"

namespace torture {

/// The add-on's callbacks of the round.
struct Callbacks
{
    ZelGUIVoidCallback done;
    ZelGUIIntCallback changed;
    ZelGUITextCallback edited;
};

/// Arguments as a careless, confused or malicious add-on might pass them, with enough sane ones between to get far.
class RandomSource : public Source
{
public:
    RandomSource(Random &random, const Model &model, const Callbacks &callbacks)
        : m_random(random), m_model(model), m_callbacks(callbacks)
    {}

    bool isNull(const Parameter &parameter) override;
    int integer(const Parameter &parameter) override;
    unsigned char byte() override;
    double number() override;
    LgIndex index() override;
    std::string text(const Parameter &parameter) override;
    std::vector<int> positions(const Parameter &parameter) override;
    int count(int size) override { return m_random.between(-2, size); }
    std::vector<std::pair<LgIndex, LgIndex>> runs(const Parameter &parameter) override;
    std::vector<std::string> texts(const Parameter &parameter) override;
    ZelGUIVoidCallback voidCallback() override { return m_callbacks.done; }
    ZelGUIIntCallback intCallback() override { return m_callbacks.changed; }
    ZelGUITextCallback textCallback() override { return m_callbacks.edited; }

    /// An object of one of these types, each type as often as any other; -2 if there is none.
    int anyOf(ObjectTypes types);

private:
    int anyInteger();
    int identifier(const Parameter &parameter);

    Random &m_random;
    const Model &m_model;
    const Callbacks &m_callbacks;
};

} // namespace torture

#endif
