// SPDX-License-Identifier: MIT
#include "call.h"

#include <zelgui/zelgui.h>

#include <algorithm>
#include <array>
#include <vector>

namespace {

/// Room for an output of any type.
using Output = std::array<unsigned char, 8>;

Output untouched()
{
    Output output;
    output.fill(0x5A);
    return output;
}

template <typename Function>
Argument doingNothing(Function function)
{
    return reinterpret_cast<void (*)()>(function);
}

} // namespace

struct Call::Data
{
    char text[8] = "1";
    char format[8] = "%g";
    char empty[1] = "";
    unsigned char pixels[3] = {1, 2, 3};
    int positions[1] = {1};
    IndexSet set = ZelUtilSetAlloc(0);
    StringList_s *strings = ZelUtilStringListAlloc();
    IndexSet emptySet = ZelUtilSetAlloc(0);
    StringList_s *noStrings = ZelUtilStringListAlloc();
    std::vector<std::unique_ptr<Output>> outputs;
};

Call::Call(const EntryPoint &entryPoint) : m_entryPoint(entryPoint), m_data(std::make_unique<Data>())
{
    ZelUtilSetAddMember(m_data->set, 1, 0);
    ZelUtilStringListAppendString(m_data->strings, "1");
    for (const Parameter &parameter : entryPoint.parameters) {
        switch (parameter.kind) {
        case Kind::Id:
            m_arguments << qint64{ZELGUI_INVALID_ID};
            break;
        case Kind::Int:
        case Kind::Byte:
        case Kind::LgIndex:
            m_arguments << qint64{1};
            break;
        case Kind::Double:
            m_arguments << 1.0;
            break;
        case Kind::VoidCallback:
            m_arguments << doingNothing(+[] {});
            break;
        case Kind::IntCallback:
            m_arguments << doingNothing(+[](const int *) {});
            break;
        case Kind::TextCallback:
            m_arguments << doingNothing(+[](const char *) { return 1; });
            break;
        default:
            m_arguments << dataFor(parameter);
        }
    }
}

Call::~Call()
{
    for (IndexSet *const set : {&m_data->set, &m_data->emptySet})
        ZelUtilSetDealloc(set);
    for (StringList_s **const list : {&m_data->strings, &m_data->noStrings})
        ZelUtilStringListDealloc(list);
    int output = 0;
    for (const int position : m_entryPoint.positionsOf(isOutput)) {
        Output &bytes = *m_data->outputs[static_cast<std::size_t>(output++)];
        void *const data = bytes.data();
        const Kind kind = m_entryPoint.parameters[position].kind;
        if (bytes == untouched())
            continue;
        if (kind == Kind::OutSet && *static_cast<IndexSet *>(data))
            ZelUtilSetDealloc(static_cast<IndexSet *>(data));
        else if (kind == Kind::OutInts)
            ZelUtilStringDealloc(static_cast<char **>(data));
    }
}

void *Call::dataFor(const Parameter &parameter)
{
    switch (parameter.kind) {
    case Kind::Text:
        return parameter.name == QLatin1String("format") ? m_data->format : m_data->text;
    case Kind::Pixels:
        return m_data->pixels;
    case Kind::Positions:
        return m_data->positions;
    case Kind::Set:
        return m_data->set;
    case Kind::StringList:
        return m_data->strings;
    default:
        m_data->outputs.push_back(std::make_unique<Output>(untouched()));
        return m_data->outputs.back()->data();
    }
}

void Call::setNull(int position)
{
    if (isCallback(m_entryPoint.parameters[position].kind))
        m_arguments[position] = static_cast<void (*)()>(nullptr);
    else
        m_arguments[position] = static_cast<void *>(nullptr);
}

void Call::setEmpty(int position)
{
    switch (m_entryPoint.parameters[position].kind) {
    case Kind::Text:
        m_arguments[position] = static_cast<void *>(m_data->empty);
        break;
    case Kind::Set:
        m_arguments[position] = static_cast<void *>(m_data->emptySet);
        break;
    case Kind::StringList:
        m_arguments[position] = static_cast<void *>(m_data->noStrings);
        break;
    case Kind::Positions:
        m_data->positions[0] = 0;
        break;
    default:
        break;
    }
}

bool Call::areOutputsUntouched() const
{
    return std::all_of(m_data->outputs.begin(), m_data->outputs.end(),
                       [](const auto &output) { return *output == untouched(); });
}
