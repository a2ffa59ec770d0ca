// SPDX-License-Identifier: MIT
#include "call.h"

#include <QString>

#include <dlfcn.h>

#include <type_traits>

int Harmless::integer(const Parameter &parameter)
{
    const auto found = identifiers.find(&parameter);
    if (found != identifiers.end())
        return found->second;
    return parameter.kind == Kind::Id ? ZELGUI_INVALID_ID : 1;
}

std::string Harmless::text(const Parameter &parameter)
{
    return &parameter == empty ? "" : parameter.kind == Kind::Format ? "%g" : "1";
}

std::vector<int> Harmless::positions(const Parameter &parameter)
{
    return std::vector<int>(&parameter == empty ? 0 : 1, 1);
}

std::vector<std::pair<LgIndex, LgIndex>> Harmless::runs(const Parameter &parameter)
{
    return std::vector<std::pair<LgIndex, LgIndex>>(&parameter == empty ? 0 : 1, {1, 1});
}

std::vector<std::string> Harmless::texts(const Parameter &parameter)
{
    return std::vector<std::string>(&parameter == empty ? 0 : 1, "1");
}

ZelGUIVoidCallback Harmless::voidCallback()
{
    return [] {};
}

ZelGUIIntCallback Harmless::intCallback()
{
    return [](const int *) {};
}

ZelGUITextCallback Harmless::textCallback()
{
    return [](const char *) { return 1; };
}

bool isUtf8(const char *text)
{
    // A byte order mark at the very start would be dropped on the way.
    const QByteArray bytes = QByteArray(".") + text;
    return QString::fromUtf8(bytes).toUtf8() == bytes;
}

/// Draws the argument for a parameter, whose C type is the one it is called with.
struct Call::Drawing
{
    Call &call;
    Source &source;
    const Parameter &parameter;

    Value operator()(std::monostate) const { return {}; }
    Value operator()(int) const
    {
        return parameter.kind == Kind::Count ? source.count(int(call.m_positions.size())) : source.integer(parameter);
    }
    Value operator()(ZelBoolean) const { return source.byte(); }
    Value operator()(double) const { return source.number(); }
    Value operator()(LgIndex) const { return source.index(); }
    Value operator()(const char *) const
    {
        call.m_texts.push_back(source.text(parameter));
        return call.m_texts.back().c_str();
    }
    Value operator()(const unsigned char *) const
    {
        constexpr int kMostPixels = 10000;
        const int rows = std::get<int>(call.m_arguments.back());
        const int columns = std::get<int>(call.m_arguments[call.m_arguments.size() - 2]);
        if (columns < 1 || rows < 1 || columns > kMostPixels / rows)
            return parameter.null;
        call.m_bytes.assign(std::size_t(columns) * std::size_t(rows) * 3, source.byte());
        return static_cast<const unsigned char *>(call.m_bytes.data());
    }
    Value operator()(const int *) const
    {
        call.m_positions = source.positions(parameter);
        return static_cast<const int *>(call.m_positions.data());
    }
    Value operator()(IndexSet) const
    {
        call.m_set = ZelUtilSetAlloc(0);
        for (const auto &[first, last] : source.runs(parameter))
            ZelUtilSetAddRange(call.m_set, first, last, 1, 0);
        return call.m_set;
    }
    Value operator()(StringList_s *) const
    {
        call.m_list = ZelUtilStringListAlloc();
        for (const std::string &text : source.texts(parameter))
            ZelUtilStringListAppendString(call.m_list, text.c_str());
        return call.m_list;
    }
    Value operator()(double *) const { return &call.m_outputs.number; }
    Value operator()(LgIndex *) const { return &call.m_outputs.index; }
    Value operator()(int *) const { return &call.m_outputs.count; }
    Value operator()(ZelBoolean *) const { return &call.m_outputs.flag; }
    Value operator()(int **) const { return &call.m_outputs.array; }
    Value operator()(IndexSet *) const { return &call.m_outputs.set; }
    Value operator()(ZelGUIVoidCallback) const { return source.voidCallback(); }
    Value operator()(ZelGUIIntCallback) const { return source.intCallback(); }
    Value operator()(ZelGUITextCallback) const { return source.textCallback(); }
    Value operator()(char *) const { return parameter.null; }
};

Call::Call(const Function &function, Source &source) : m_function(function)
{
    m_arguments.reserve(function.parameters.size());
    for (const Parameter &parameter : function.parameters) {
        const bool isPointer = std::visit([](auto null) { return std::is_pointer_v<decltype(null)>; }, parameter.null);
        const bool isNull = isPointer && source.isNull(parameter);
        m_arguments.push_back(isNull ? parameter.null : std::visit(Drawing{*this, source, parameter}, parameter.null));
    }
}

Call::~Call()
{
    orvane::interface::release(m_answer);
    if (m_outputs.array != &m_outputs.count)
        orvane::interface::release(&m_outputs.array);
    if (m_outputs.set != reinterpret_cast<IndexSet>(&m_outputs))
        orvane::interface::release(&m_outputs.set);
    ZelUtilSetDealloc(&m_set);
    ZelUtilStringListDealloc(&m_list);
}

const Value &Call::run()
{
    // Never deleted: calls are made while the process ends, too.
    static auto &addresses = *new std::map<const Function *, void (*)()>;
    auto &address = addresses[&m_function];
    if (!address)
        address = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, m_function.name));
    return m_answer = m_function.call(address, m_arguments);
}

std::string Call::answer() const
{
    if (const auto *const number = std::get_if<int>(&m_answer))
        return std::to_string(*number);
    if (const auto *const boolean = std::get_if<ZelBoolean>(&m_answer))
        return std::to_string(*boolean);
    if (const auto *const text = std::get_if<char *>(&m_answer))
        return *text ? *text : "null";
    return {};
}

bool Call::areOutputsUntouched() const
{
    return m_outputs.number == 77 && m_outputs.index == 77 && m_outputs.count == 77 && m_outputs.flag == 77 &&
           m_outputs.array == &m_outputs.count && m_outputs.set == reinterpret_cast<const IndexSet_s *>(&m_outputs);
}

std::vector<const Parameter *> identifiersOf(const Function &function)
{
    std::vector<const Parameter *> all;
    for (const Parameter &parameter : function.parameters) {
        if (parameter.kind == Kind::Id)
            all.push_back(&parameter);
    }
    return all;
}
