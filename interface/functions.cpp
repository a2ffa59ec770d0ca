// SPDX-License-Identifier: MIT
#include "functions.h"

namespace orvane::interface {

void release(const Value &handedOut)
{
    if (char *const *const text = std::get_if<char *>(&handedOut)) {
        char *released = *text;
        ZelUtilStringDealloc(&released);
    } else if (int **const *const array = std::get_if<int **>(&handedOut)) {
        ZelUtilStringDealloc(reinterpret_cast<char **>(*array));
    } else if (IndexSet *const *const set = std::get_if<IndexSet *>(&handedOut)) {
        ZelUtilSetDealloc(*set);
    }
}

} // namespace orvane::interface
