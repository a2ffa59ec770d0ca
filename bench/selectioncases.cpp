// SPDX-License-Identifier: MIT
#include "list.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>

namespace bench {

namespace {

/// Against code that costs the square of the number of items.
constexpr Goal kFarFaster = {Goal::Ratio, 1.0 / 300};

volatile int sink = 0;

void fillAndSelect(List &list)
{
    list.fillAndSelect();
}

void selectBare(List &list, int position)
{
    const QModelIndex index = list.widget->model()->index(position - 1, 0);
    list.widget->selectionModel()->select(index, QItemSelectionModel::Select);
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
        selectBare(list, position);
    list.settle();
}

/// A list of the toolkit's own, which tells somebody of its selection as the library's does.
std::shared_ptr<QListWidget> bareList(const List &list)
{
    auto bare = std::make_shared<QListWidget>();
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

} // namespace

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
                    selectBare(list, position);
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

} // namespace bench
