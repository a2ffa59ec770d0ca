// SPDX-License-Identifier: MIT
#include "list.h"

#include <QApplication>

namespace bench {

namespace {

void report(const int *) {}

} // namespace

List::List(int count, bool isVisible) : m_dialog(isVisible), size(count)
{
    id = ZelGUIListAdd(m_dialog.id(), 100, 100, 2000, 1000, 1, report);
    widget = object<QListWidget>(id);
    widget->setVisible(isVisible);
    texts = ZelUtilStringListAlloc();
    for (int i = 0; i < size; ++i)
        ZelUtilStringListAppendString(texts, "An item");
    for (int position = 1; position <= size; position += 2)
        alternate.push_back(position);
    scattered = alternate;
    // A step that has no divisor in common with the number of items.
    for (std::size_t i = 0; i < scattered.size(); ++i)
        scattered[i] = alternate[i * 7919 % alternate.size()];
}

void List::fill()
{
    ZelGUIListSetItems(id, texts);
    settle();
}

void List::fillAndSelect()
{
    fill();
    select(alternate);
}

void List::select(const std::vector<int> &which)
{
    ZelGUIListSetSelectedItems(id, which.data(), int(which.size()));
}

void List::read()
{
    int *selected = nullptr;
    int count = 0;
    ZelGUIListGetSelectedItems(id, &selected, &count);
    char *memory = reinterpret_cast<char *>(selected);
    ZelUtilStringDealloc(&memory);
}

void List::settle()
{
    QApplication::processEvents();
}

Case listCase(const char *name, Goal goal, const std::vector<int> &sizes, Action prepare, Action library, Action bare,
              bool isVisible)
{
    const auto make = [=](int size) {
        const auto list = std::make_shared<List>(size, isVisible);
        list->fill();
        const auto side = [list, prepare](Action action) {
            if (!action)
                return Side{};
            return Side{[=] { prepare(*list); }, [=] { action(*list); }};
        };
        return Comparison{side(library), side(bare)};
    };
    return {name, goal, sizes, 1, make};
}

} // namespace bench
