// SPDX-License-Identifier: MIT
#include "fuzz/arguments.h"

namespace {

std::vector<int> readPositions(CallContext &context)
{
    std::vector<int> positions(context.input.byte() % 16U);
    for (int &position : positions)
        position = context.input.number<int>();
    return positions;
}

Picture readPicture(CallContext &context)
{
    Picture picture;
    picture.width = context.input.number<int>();
    picture.height = context.input.number<int>();
    constexpr int kMostPixels = 10000;
    const bool isSized = picture.width > 0 && picture.height > 0 && picture.width <= kMostPixels / picture.height;
    if (isSized)
        picture.pixels.assign(std::size_t(picture.width) * std::size_t(picture.height) * 3, context.input.byte());
    return picture;
}

} // namespace

DecodedArgument<IndexSet>::DecodedArgument(CallContext &context)
{
    const int count = context.input.byte() % 16;
    if (count == 1)
        return;
    m_set = ZelUtilSetAlloc(0);
    for (int i = 0; i < count; ++i)
        ZelUtilSetAddMember(m_set, context.input.number<LgIndex>(), 0);
}

DecodedArgument<StringList_s *>::DecodedArgument(CallContext &context)
{
    const int count = context.input.byte() % 16;
    if (count == 1)
        return;
    m_list = ZelUtilStringListAlloc();
    for (int i = 0; i < count; ++i)
        ZelUtilStringListAppendString(m_list, context.input.text().c_str());
}

DecodedArgument<Positions>::DecodedArgument(CallContext &context) : PlainArgument({readPositions(context)}) {}

DecodedArgument<Picture>::DecodedArgument(CallContext &context) : PlainArgument(readPicture(context)) {}
