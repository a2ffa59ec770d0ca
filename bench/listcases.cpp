// SPDX-License-Identifier: MIT
#include "list.h"

namespace bench {

namespace {

void nothing(List &) {}

void fill(List &list)
{
    list.fill();
}

void clear(List &list)
{
    ZelGUIListDeleteAllItems(list.id);
    list.settle();
}

void append(List &list)
{
    for (int i = 0; i < list.size; ++i)
        ZelGUIListAppendItem(list.id, "An item");
    list.settle();
}

void appendBare(List &list)
{
    for (int i = 0; i < list.size; ++i)
        list.widget->addItem(QString::fromUtf8("An item"));
    list.settle();
}

} // namespace

std::vector<Case> listCases()
{
    const auto setItems = [](List &list) { list.fill(); };
    const auto setItemsBare = [](List &list) {
        list.widget->clear();
        QStringList texts;
        texts.reserve(list.size);
        for (int i = 0; i < list.size; ++i) {
            char *text = ZelUtilStringListGetString(list.texts, i + 1);
            texts << QString::fromLatin1(text);
            ZelUtilStringDealloc(&text);
        }
        list.widget->addItems(texts);
        list.settle();
    };
    return {
        listCase("list: set items", {Goal::Ratio, 1.15}, kToAMillion, clear, setItems, setItemsBare),
        listCase("list: append items", {Goal::Ratio, 1.15}, kToAMillion, clear, append, appendBare),
        listCase("visible list: append items", {Goal::Ratio, 1.15}, kToAHundredThousand, clear, append, appendBare,
                 true),
        listCase(
            "visible list: append and show each", {Goal::Ratio, 1.15}, {250, 1000}, clear,
            [](List &list) {
                for (int i = 1; i <= list.size; ++i) {
                    ZelGUIListAppendItem(list.id, "An item");
                    ZelGUIListSetTopItemNum(list.id, i);
                }
            },
            [](List &list) {
                for (int i = 0; i < list.size; ++i) {
                    list.widget->addItem(QString::fromUtf8("An item"));
                    list.widget->scrollTo(list.widget->model()->index(i, 0), QAbstractItemView::PositionAtTop);
                }
            },
            true),
        listCase("list: read items", kNoGoal, kToAMillion, nothing,
                 [](List &list) {
                     for (int i = 1; i <= list.size; ++i) {
                         char *text = ZelGUIListGetString(list.id, i);
                         ZelUtilStringDealloc(&text);
                     }
                 }),
        listCase("list: replace items", kNoGoal, kToAMillion, fill,
                 [](List &list) {
                     for (int i = 1; i <= list.size; ++i)
                         ZelGUIListReplaceItem(list.id, "Another", i);
                 }),
        listCase("list: delete items from the end", kNoGoal, kToAMillion, fill,
                 [](List &list) {
                     for (int i = list.size; i > 0; --i)
                         ZelGUIListDeleteItemAtPos(list.id, i);
                 }),
        listCase("list: delete items from the start", kNoGoal, kToAMillion, fill,
                 [](List &list) {
                     for (int i = list.size; i > 0; --i)
                         ZelGUIListDeleteItemAtPos(list.id, 1);
                 }),
        listCase("list: delete all items", kNoGoal, kToAMillion, fill, clear),
    };
}

} // namespace bench
