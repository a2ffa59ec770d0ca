// SPDX-License-Identifier: MIT
#include "fuzz/arguments.h"

int anyInt(CallContext &context)
{
    constexpr int kObjects = 48;
    const std::uint8_t choice = context.input.byte();
    return choice % 2 == 0 ? context.firstId + choice / 2 % kObjects : context.input.number<int>();
}

Arguments::~Arguments()
{
    ZelUtilStringDealloc(reinterpret_cast<char **>(&m_numbers));
    ZelUtilSetDealloc(&m_set);
    for (IndexSet &set : m_sets)
        ZelUtilSetDealloc(&set);
    for (StringList_s *&list : m_lists)
        ZelUtilStringListDealloc(&list);
}

Arguments::operator const char *()
{
    m_texts.push_back(m_input.text());
    return m_texts.back() == "null" ? nullptr : m_texts.back().c_str();
}

Arguments::operator IndexSet()
{
    const int count = m_input.byte() % 16;
    if (count == 1)
        return nullptr;
    m_sets.push_back(ZelUtilSetAlloc(0));
    for (int i = 0; i < count; ++i)
        ZelUtilSetAddMember(m_sets.back(), m_input.number<LgIndex>(), 0);
    return m_sets.back();
}

Arguments::operator StringList_s *()
{
    const int count = m_input.byte() % 16;
    if (count == 1)
        return nullptr;
    m_lists.push_back(ZelUtilStringListAlloc());
    for (int i = 0; i < count; ++i)
        ZelUtilStringListAppendString(m_lists.back(), m_input.text().c_str());
    return m_lists.back();
}
