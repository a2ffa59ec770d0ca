// SPDX-License-Identifier: MIT
#include <zvtoolbox/stringlist.h>

#include <algorithm>
#include <limits>
#include <memory>

namespace orvane {
namespace toolbox {

namespace {

struct ReleaseString
{
    void operator()(char *string) const { ZelUtilStringDealloc(&string); }
};

} // namespace

StringList::StringList(StringList_s *handle) : m_handle(handle) {}

StringList::~StringList() = default;

int StringList::size() const
{
    const LgIndex largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(ZelUtilStringListGetCount(m_handle), largest));
}

std::string StringList::get(int position) const
{
    const std::unique_ptr<char, ReleaseString> string(ZelUtilStringListGetString(m_handle, position));
    return string ? string.get() : std::string();
}

} // namespace toolbox
} // namespace orvane
