// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <zelgui/zelgui.h>

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>

#include <algorithm>
#include <numeric>

namespace bench {

namespace {

const std::vector<int> kToAMillion = {1000, 10000, 100000, 1000000};
const std::vector<int> kToAHundredThousand = {1000, 10000, 100000};
constexpr Goal kNoGoal = {Goal::None, 0};
/// Against code that costs the square of the number of items.
constexpr Goal kFarFaster = {Goal::Ratio, 1.0 / 300};

volatile int sink = 0;

void report(const int *) {}

/// A list and what an add-on has in hand for it.
class List
{
public:
    List(int count, bool isVisible) : m_dialog(isVisible), size(count), positions(std::size_t(count))
    {
        id = ZelGUIListAdd(m_dialog.id(), 100, 100, 2000, 1000, 1, report);
        widget = object<QListWidget>(id);
        widget->setVisible(isVisible);
        texts = ZelUtilStringListAlloc();
        for (int i = 0; i < size; ++i)
            ZelUtilStringListAppendString(texts, "An item");
        std::iota(positions.begin(), positions.end(), 1);
        for (int position = 1; position <= size; position += 2)
            alternate.push_back(position);
        scattered = alternate;
        // A step that has no divisor in common with the number of items.
        for (std::size_t i = 0; i < scattered.size(); ++i)
            scattered[i] = alternate[i * 7919 % alternate.size()];
    }
    ~List() { ZelUtilStringListDealloc(&texts); }
    List(const List &) = delete;
    List &operator=(const List &) = delete;

    void fill()
    {
        ZelGUIListSetItems(id, texts);
        settle();
    }
    void select(const std::vector<int> &which) { ZelGUIListSetSelectedItems(id, which.data(), int(which.size())); }
    void read()
    {
        int *selected = nullptr;
        int count = 0;
        ZelGUIListGetSelectedItems(id, &selected, &count);
        char *memory = reinterpret_cast<char *>(selected);
        ZelUtilStringDealloc(&memory);
    }
    void selectBare(int position)
    {
        const QModelIndex index = widget->model()->index(position - 1, 0);
        widget->selectionModel()->select(index, QItemSelectionModel::Select);
    }
    /// What the list still has to do to be seen as it is.
    void settle() { QApplication::processEvents(); }

private:
    Dialog m_dialog;

public:
    int size;
    int id;
    QListWidget *widget;
    StringList_s *texts;
    std::vector<int> positions;
    std::vector<int> alternate;
    std::vector<int> scattered;
};

using Action = void (*)(List &);

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

void fillAndSelect(List &list)
{
    list.fill();
    list.select(list.alternate);
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

void selectOneByOne(List &list)
{
    for (const int position : list.alternate)
        ZelGUIListSetSelectedItem(list.id, position);
    list.settle();
}

void selectOneByOneBare(List &list)
{
    for (const int position : list.alternate)
        list.selectBare(position);
    list.settle();
}

/// The library's work, and the toolkit's if there is one to compare with, on lists of several sizes.
Case listCase(const char *name, Goal goal, const std::vector<int> &sizes, Action prepare, Action library,
              Action bare = nullptr, bool isVisible = false)
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

/// A list of the toolkit's own, which tells somebody of its selection as the library's does.
std::shared_ptr<QListWidget> bareList(const List &list)
{
    const auto bare = std::make_shared<QListWidget>();
    bare->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (int i = 0; i < list.size; ++i)
        bare->addItem(QString::fromUtf8("An item"));
    QObject::connect(bare.get(), &QListWidget::itemSelectionChanged, bare.get(), [widget = bare.get()] {
        std::vector<int> positions;
        for (const QItemSelectionRange &range : widget->selectionModel()->selection()) {
            for (int row = range.top(); row <= range.bottom(); ++row)
                positions.push_back(row + 1);
        }
        std::sort(positions.begin(), positions.end());
        sink = int(positions.size());
    });
    return bare;
}

/// The fastest that the toolkit has: all ranges in one selection, onto none.
void selectInOne(QListWidget &widget, const std::vector<int> &positions)
{
    QItemSelection selection;
    for (const int position : positions)
        selection.append(QItemSelectionRange(widget.model()->index(position - 1, 0)));
    widget.clearSelection();
    widget.selectionModel()->select(selection, QItemSelectionModel::Select);
}

void selectAlternate(QListWidget &widget, const List &list)
{
    selectInOne(widget, list.alternate);
    widget.selectionModel()->setCurrentIndex(widget.model()->index(0, 0), QItemSelectionModel::NoUpdate);
}

/// A key of the user's while every other item is selected.
Case keyCase(const char *name, Goal goal, const std::vector<int> &sizes, Qt::Key key)
{
    const auto make = [=](int size) {
        const auto list = std::make_shared<List>(size, false);
        list->fill();
        const auto bare = bareList(*list);
        const auto side = [list, bare, key](QListWidget &widget) {
            return Side{[&widget, list, bare] { selectAlternate(widget, *list); },
                        [&widget, list, key] {
                            QKeyEvent press(QEvent::KeyPress, key, Qt::ControlModifier);
                            QApplication::sendEvent(&widget, &press);
                        }};
        };
        return Comparison{side(*list->widget), side(*bare)};
    };
    return {name, goal, sizes, 1, make};
}

Case menuCase(const char *name, Goal goal, void (*library)(int id, int call), void (*bare)(QComboBox &menu, int call),
              bool isFilled = true)
{
    const auto make = [=](int size) {
        const auto dialog = std::make_shared<Dialog>();
        const int id = ZelGUIOptionMenuAdd(dialog->id(), 100, 100, 2000, 130, "", nullptr);
        auto *const menu = object<QComboBox>(id);
        const auto prepare = [=, keep = dialog] {
            menu->clear();
            for (int i = 0; i < (isFilled ? size : 0); ++i)
                menu->addItem(QString::number(i));
        };
        const auto callLibrary = [=] {
            for (int call = 0; call < size; ++call)
                library(id, call);
        };
        const auto callBare = [=] {
            for (int call = 0; call < size; ++call)
                bare(*menu, call);
        };
        return Comparison{{prepare, callLibrary}, {prepare, callBare}};
    };
    return {name, goal, {1000, 10000}, 1, make};
}

std::vector<Case> fillingCases()
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

std::vector<Case> selectionCases()
{
    const auto deselect = [](List &list) { ZelGUIListDeselectAllItems(list.id); };
    const auto read = [](List &list) { list.read(); };
    const auto selectAlternate = [](List &list) { list.select(list.alternate); };
    Case scrolled = listCase("10,000 of 20,000: select one at a time", kFarFaster, {20000}, deselect, selectOneByOne,
                             selectOneByOneBare);
    scrolled.toolkitsLimit = "each call scrolls to the item; see the next row";
    return {
        listCase(
            "list: select all", kNoGoal, kToAMillion, fillAndSelect,
            [](List &list) { ZelGUIListSelectAllItems(list.id); },
            [](List &list) {
                const QAbstractItemModel *const model = list.widget->model();
                list.widget->clearSelection();
                const QItemSelection all(model->index(0, 0), model->index(list.size - 1, 0));
                list.widget->selectionModel()->select(all, QItemSelectionModel::Select);
            }),
        listCase("list: select every other item", kNoGoal, kToAMillion, deselect, selectAlternate,
                 [](List &list) { selectInOne(*list.widget, list.alternate); }),
        listCase(
            "list: select onto a selection", kNoGoal, kToAMillion, fillAndSelect,
            [](List &list) { list.select(list.scattered); },
            [](List &list) { selectInOne(*list.widget, list.scattered); }),
        listCase("list: deselect every other item", kNoGoal, kToAMillion, fillAndSelect, deselect,
                 [](List &list) { list.widget->clearSelection(); }),
        listCase("list: read the selection", kNoGoal, kToAMillion, fillAndSelect, read),
        listCase("list: select one item at a time", kNoGoal, kToAMillion, deselect, selectOneByOne),
        listCase("visible list: select one item at a time", kNoGoal, kToAHundredThousand, deselect, selectOneByOne,
                 nullptr, true),
        listCase(
            "visible list: select, read, select, ...", kNoGoal, {500, 3000}, deselect,
            [](List &list) {
                for (const int position : list.alternate) {
                    ZelGUIListSetSelectedItem(list.id, position);
                    ZelGUIListGetSelectedItem(list.id);
                }
            },
            [](List &list) {
                for (const int position : list.alternate) {
                    list.selectBare(position);
                    list.widget->scrollTo(list.widget->model()->index(position - 1, 0));
                    sink = list.widget->selectionModel()->selection().first().top();
                }
            },
            true),
        keyCase("list: user selects all with Ctrl+A", {Goal::Ratio, 1.15}, {1000, 3000, 9000}, Qt::Key_A),
        keyCase("list: user selects one more with Ctrl", {Goal::Ratio, 1.15}, {1000, 9000}, Qt::Key_Space),
        listCase("10,000 of 20,000: select", kFarFaster, {20000}, deselect, selectAlternate, selectOneByOneBare),
        scrolled,
        listCase("10,000 of 20,000: the same beside scrolling alone", kNoGoal, {20000}, deselect, selectOneByOne,
                 [](List &list) {
                     for (const int position : list.alternate)
                         list.widget->scrollTo(list.widget->model()->index(position - 1, 0));
                 }),
        listCase("10,000 of 20,000: read by selectedRows()", kFarFaster, {20000}, fillAndSelect, read,
                 [](List &list) { list.widget->selectionModel()->selectedRows(0); }),
        listCase("10,000 of 20,000: read by isSelected()", kFarFaster, {20000}, fillAndSelect, read,
                 [](List &list) {
                     for (int i = 0; i < list.size; ++i)
                         list.widget->item(i)->isSelected();
                 }),
    };
}

std::vector<Case> menuCases()
{
    return {
        menuCase(
            "option menu: append items", {Goal::Ratio, 1.15},
            [](int id, int) { ZelGUIOptionMenuAppendItem(id, "An item"); },
            [](QComboBox &menu, int) { menu.addItem(QString::fromUtf8("An item")); }, false),
        menuCase(
            "option menu: choose each item", {Goal::Ratio, 1.10},
            [](int id, int call) { ZelGUIOptionMenuSet(id, call + 1); },
            [](QComboBox &menu, int call) { menu.setCurrentIndex(call); }),
    };
}

} // namespace

std::vector<Case> listCases()
{
    std::vector<Case> all = fillingCases();
    for (const auto &more : {selectionCases(), menuCases()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

} // namespace bench
