// SPDX-License-Identifier: MIT
// A text that a user types for an index set; compared with the model, and written again.
#include "fuzz/fuzzhost.h"
#include "fuzz/fuzzinput.h"
#include "models/setmodel.h"

#include <zelgui/zelgui.h>

using FuzzHost::require;

namespace {

// What takes too long is allowed, and not compared.
constexpr LgIndex kMostMentions = 3000;

std::vector<LgIndex> membersOf(IndexSet set)
{
    std::vector<LgIndex> members;
    for (LgIndex member = ZelUtilSetGetNextMember(set, 0); member != 0; member = ZelUtilSetGetNextMember(set, member))
        members.push_back(member);
    return members;
}

void writeAndReadAgain(int field, IndexSet set, const std::vector<LgIndex> &members)
{
    for (const bool includeBrackets : {false, true}) {
        const QString before = FuzzHost::textOf(field);
        ZelGUITextFieldSetSet(field, set, includeBrackets);
        const QString told = SetModel::write(members, includeBrackets);
        constexpr int kLongestLine = 32767;
        require(FuzzHost::textOf(field) == (told.size() > kLongestLine ? before : told),
                "a set is written as the model tells");
        IndexSet again = nullptr;
        const bool isRead = ZelGUITextFieldGetSet(field, &again) == 1;
        require(isRead && membersOf(again) == members, "what is written can be read");
        ZelUtilSetDealloc(&again);
    }
}

void readAndWrite(int field)
{
    const auto told = SetModel::read(FuzzHost::textOf(field));
    if (SetModel::mentions(told.ranges) > kMostMentions)
        return;
    IndexSet set = nullptr;
    const bool isRead = ZelGUITextFieldGetSet(field, &set) == 1;
    require(isRead == told.isSet, "a text is a set where the model tells so");
    if (told.isSet) {
        const auto members = SetModel::members(told.ranges);
        require(membersOf(set) == members, "a set has the members that the model tells");
        writeAndReadAgain(field, set, members);
    }
    ZelUtilSetDealloc(&set);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const FuzzDialog *const dialog = new FuzzDialog;
    static const int field = ZelGUITextFieldAdd(dialog->id(), 100, 100, 1000, 100, nullptr);
    ZelGUITextFieldSetString(field, FuzzInput(data, size).text().c_str());
    readAndWrite(field);
    FuzzHost::endInput();
    return 0;
}
