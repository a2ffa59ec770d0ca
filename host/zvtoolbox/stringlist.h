// SPDX-License-Identifier: MIT
#ifndef ZVTOOLBOX_STRINGLIST_H
#define ZVTOOLBOX_STRINGLIST_H

#include <zvsdkbase/zelutil.h>

#include <string>

namespace orvane {
namespace toolbox {

/// Reads a string list of the host. The list stays its creator's; a null handle reads as an empty list.
class StringList
{
public:
    explicit StringList(StringList_s *handle);
    ~StringList();

    int size() const;
    /// The string at a position, 1 being the first; empty where there is none.
    std::string get(int position) const;

private:
    StringList_s *m_handle;
};

} // namespace toolbox
} // namespace orvane

#endif
