// SPDX-License-Identifier: MIT
// Texts of option menus and lists, put in and taken out at any position.
#include "fuzz/fuzzhost.h"
#include "fuzz/fuzzinput.h"

#include <zelgui/zelgui.h>

#include <vector>

using FuzzHost::require;

namespace {

void release(char *text)
{
    ZelUtilStringDealloc(&text);
}

void setItems(int list, FuzzInput &input)
{
    StringList_s *items = ZelUtilStringListAlloc();
    for (int count = input.byte() % 20; count > 0; --count)
        ZelUtilStringListAppendString(items, input.text().c_str());
    ZelGUIListSetItems(list, items);
    ZelUtilStringListDealloc(&items);
}

void select(int list, FuzzInput &input)
{
    std::vector<int> positions(input.byte() % 20U);
    for (int &position : positions)
        position = input.number<int>();
    ZelGUIListSetSelectedItems(list, positions.data(), int(positions.size()));
}

void changeList(int list, FuzzInput &input)
{
    switch (input.byte() % 10) {
    case 0:
        setItems(list, input);
        return;
    case 1:
        ZelGUIListReplaceItem(list, input.text().c_str(), input.number<int>());
        return;
    case 2:
        ZelGUIListDeleteItemAtPos(list, input.number<int>());
        return;
    case 3:
        ZelGUIListSetSelectedItem(list, input.number<int>());
        return;
    case 4:
        ZelGUIListSelectAllItems(list);
        return;
    case 5:
        ZelGUIListDeselectAllItems(list);
        return;
    case 6:
        ZelGUIListSetTopItemNum(list, input.number<int>());
        return;
    case 7:
        select(list, input);
        return;
    case 8:
        release(ZelGUIListGetString(list, input.number<int>()));
        return;
    default:
        ZelGUIListAppendItem(list, input.text().c_str());
    }
}

void changeMenu(int menu, FuzzInput &input)
{
    switch (input.byte() % 5) {
    case 0:
        ZelGUIOptionMenuDeleteItemAtPos(menu, input.number<int>());
        return;
    case 1:
        ZelGUIOptionMenuSet(menu, input.number<int>());
        return;
    case 2:
        release(ZelGUIOptionMenuGetString(menu, input.number<int>()));
        return;
    case 3: {
        const int position = ZelGUIOptionMenuSetByString(menu, input.text().c_str());
        require(position == -1 || position == ZelGUIOptionMenuGet(menu), "the item that was found is chosen");
        return;
    }
    default:
        ZelGUIOptionMenuAppendItem(menu, input.text().c_str());
    }
}

void checkSelection(int list)
{
    int *selected = nullptr;
    int count = -1;
    ZelGUIListGetSelectedItems(list, &selected, &count);
    const int items = ZelGUIListGetItemCount(list);
    require(0 <= count && count <= items, "no more items are selected than there are");
    require((selected == nullptr) == (count == 0), "what is selected is listed");
    std::vector<bool> isSelected(std::size_t(items) + 1);
    for (int i = 0; i < count; ++i) {
        const int position = selected[i];
        require(1 <= position && position <= items, "what is selected exists");
        require(!isSelected[std::size_t(position)], "what is selected is listed once");
        isSelected[std::size_t(position)] = true;
    }
    require(ZelGUIListGetSelectedItem(list) == (count == 0 ? -1 : selected[0]), "the first is listed first");
    require(ZelGUIListGetTopItemNum(list) <= items, "the top item exists");
    release(reinterpret_cast<char *>(selected));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const FuzzDialog dialog;
    FuzzInput input(data, size);
    const int menu = ZelGUIOptionMenuAdd(dialog.id(), 100, 100, 1000, 100, input.text().c_str(), nullptr);
    const int list = ZelGUIListAdd(dialog.id(), 100, 300, 1000, 500, input.byte() % 2, nullptr);
    while (!input.isAtEnd()) {
        if (input.byte() % 3 == 0)
            changeMenu(menu, input);
        else
            changeList(list, input);
        const int chosen = ZelGUIOptionMenuGet(menu);
        require(0 <= chosen && chosen <= ZelGUIOptionMenuGetItemCount(menu), "the chosen item exists, or none is");
        checkSelection(list);
    }
    return 0;
}
