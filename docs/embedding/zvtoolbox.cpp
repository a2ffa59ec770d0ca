// SPDX-License-Identifier: MIT
#include <zvtoolbox/stringlist.h>

namespace orvane {
namespace toolbox {

StringList::StringList(StringList_s *handle) : m_handle(handle) {}

StringList::~StringList() = default;

int StringList::size() const
{
    return static_cast<int>(ZelUtilStringListGetCount(m_handle));
}

std::string StringList::get(int position) const
{
    char *text = ZelUtilStringListGetString(m_handle, position);
    const std::string result = text ? text : "";
    ZelUtilStringDealloc(&text);
    return result;
}

} // namespace toolbox
} // namespace orvane
