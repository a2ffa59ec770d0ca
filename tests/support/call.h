// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_CALL_H
#define TESTS_SUPPORT_CALL_H

#include <interface/functions.h>

#include <deque>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

using orvane::interface::Function;
using orvane::interface::functions;
using orvane::interface::Kind;
using orvane::interface::ObjectType;
using orvane::interface::ObjectTypes;
using orvane::interface::Parameter;
using orvane::interface::Value;

/// Where the arguments of calls come from. They are asked for in the order of the parameters.
class Source
{
public:
    Source() = default;
    Source(const Source &) = delete;
    Source &operator=(const Source &) = delete;
    virtual ~Source() = default;

    /// Asked first for each pointer.
    virtual bool isNull(const Parameter &parameter) = 0;
    /// Identifiers too.
    virtual int integer(const Parameter &parameter) = 0;
    /// Booleans, and the bytes of pictures.
    virtual unsigned char byte() = 0;
    virtual double number() = 0;
    virtual LgIndex index() = 0;
    virtual std::string text(const Parameter &parameter) = 0;
    virtual std::vector<int> positions(const Parameter &parameter) = 0;
    /// What an array of a size is said to have.
    virtual int count(int size) { return size; }
    /// From the first to the last member of each run of a set.
    virtual std::vector<std::pair<LgIndex, LgIndex>> runs(const Parameter &parameter) = 0;
    virtual std::vector<std::string> texts(const Parameter &parameter) = 0;
    virtual ZelGUIVoidCallback voidCallback() = 0;
    virtual ZelGUIIntCallback intCallback() = 0;
    virtual ZelGUITextCallback textCallback() = 0;
};

/// Sensible data, callbacks that do nothing, and identifiers of nothing; but for the parameters named here.
class Harmless : public Source
{
public:
    std::map<const Parameter *, int> identifiers;
    std::set<const Parameter *> nulls;
    /// Without text, members or items.
    const Parameter *empty = nullptr;

    bool isNull(const Parameter &parameter) override { return nulls.count(&parameter) != 0; }
    int integer(const Parameter &parameter) override;
    unsigned char byte() override { return 1; }
    double number() override { return 1; }
    LgIndex index() override { return 1; }
    std::string text(const Parameter &parameter) override;
    std::vector<int> positions(const Parameter &parameter) override;
    std::vector<std::pair<LgIndex, LgIndex>> runs(const Parameter &parameter) override;
    std::vector<std::string> texts(const Parameter &parameter) override;
    ZelGUIVoidCallback voidCallback() override;
    ZelGUIIntCallback intCallback() override;
    ZelGUITextCallback textCallback() override;
};

/// Whether a text is valid UTF-8, as everything that the library hands out has to be.
bool isUtf8(const char *text);

/// One call of a function of the interface. Lives as long as what it passes and what it gets.
class Call
{
public:
    Call(const Function &function, Source &source);
    ~Call();
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;

    const Function &function() const { return m_function; }
    const std::vector<Value> &arguments() const { return m_arguments; }

    /// Calls it, once.
    const Value &run();
    const Value &result() const { return m_answer; }
    /// The same for people, and for texts, of which each is another pointer.
    std::string answer() const;
    bool areOutputsUntouched() const;

private:
    /// Output arguments, with what they held before.
    struct Outputs
    {
        double number = 77;
        LgIndex index = 77;
        int count = 77;
        ZelBoolean flag = 77;
        int *array = &count;
        IndexSet set = reinterpret_cast<IndexSet>(this);
    };
    struct Drawing;

    const Function &m_function;
    std::vector<Value> m_arguments;
    Value m_answer;
    Outputs m_outputs;
    std::deque<std::string> m_texts;
    /// Bytes of a picture.
    std::vector<unsigned char> m_bytes;
    std::vector<int> m_positions;
    IndexSet m_set = nullptr;
    StringList_s *m_list = nullptr;
};

/// What an identifier of a parameter may name without its being an error that has no effect.
inline ObjectTypes workingTypes(const Parameter &parameter)
{
    return parameter.accepted | parameter.tolerated;
}

/// The parameters whose identifiers a function looks up.
std::vector<const Parameter *> identifiersOf(const Function &function);

#endif
