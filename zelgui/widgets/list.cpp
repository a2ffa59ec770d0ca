// SPDX-License-Identifier: MIT
#include "widgets/list.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"
#include "widgets/bulkchange.h"
#include "widgets/pendingselection.h"

#include <zvtoolbox/stringlist.h>

#include <QEvent>

#include <algorithm>
#include <cstring>
#include <numeric>
#include <utility>
#include <vector>

namespace orvane::zelgui {

namespace {

/// Up to as many ranges the toolkit is left to do what costs the square of their number.
constexpr int kFewRanges = 256;

/// The model's index for a position, which counts from 1; invalid if there is no such item.
QModelIndex indexAt(const QListWidget &list, int position)
{
    return list.model()->index(position < 1 ? -1 : position - 1, 0);
}

/// Positions of the selected items, in the order of the selection.
std::vector<int> selectedPositions(const QListWidget &list)
{
    std::vector<int> positions;
    for (const QItemSelectionRange &range : list.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            positions.push_back(row + 1);
    }
    return positions;
}

void handOutSelectedPositions(const QListWidget &list, int **selected, int *count)
{
    const std::vector<int> positions = selectedPositions(list);
    if (count)
        *count = static_cast<int>(positions.size());
    if (!selected)
        return;
    *selected = nullptr;
    if (positions.empty())
        return;
    const std::size_t size = positions.size() * sizeof(int);
    char *const copy = ZelUtilStringAlloc(size, "ZelGUIListGetSelectedItems");
    if (copy)
        std::memcpy(copy, positions.data(), size);
    // What a host allocates is aligned for any type.
    *selected = static_cast<int *>(static_cast<void *>(copy));
}

QStringList textsOf(StringList_s *items)
{
    const orvane::toolbox::StringList list(items);
    QStringList texts;
    const int size = list.size();
    texts.reserve(size);
    for (int position = 1; position <= size; ++position)
        texts << fromLatin1(list.get(position).c_str());
    return texts;
}

void setItems(QListWidget &list, const QStringList &texts)
{
    const BulkChange change(list);
    list.clear();
    list.addItems(texts);
}

void selectAll(QListWidget &list)
{
    const BulkChange change(list);
    // Joining the new range to a selection of many ranges would cost the square of their number.
    if (list.selectionModel()->selection().size() > kFewRanges)
        list.clearSelection();
    list.selectionModel()->select(QItemSelection(indexAt(list, 1), indexAt(list, list.count())),
                                  QItemSelectionModel::Select);
}

/// Adds to the selection, with the outcome of selecting one position after the other.
void select(ZelGUIList &list, const int *positions, int count)
{
    std::vector<int> rows;
    for (int i = 0; i < (positions ? count : 0); ++i) {
        if (indexAt(list, positions[i]).isValid())
            rows.push_back(positions[i] - 1);
    }
    if (!rows.empty())
        list.pendingSelection().selectNow(rows);
}

void selectAndShow(ZelGUIList &list, int position)
{
    const QModelIndex index = indexAt(list, position);
    // Without an item, single selection would be cleared.
    if (!index.isValid())
        return;
    if (list.selectionMode() == QAbstractItemView::ExtendedSelection) {
        list.pendingSelection().select(index.row());
    } else {
        list.settleSelection();
        const BulkChange change(list);
        list.selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
    }
    list.scrollTo(index);
}

/// Height in pixels that every row has, or would have.
int rowHeight(QListWidget &list)
{
    if (list.count() > 0)
        return list.visualItemRect(list.item(0)).height();
    const CallbackSuppressor suppressor;
    const QListWidgetItem passing(QString(), &list);
    return list.visualItemRect(&passing).height();
}

/// How many whole rows are as high as the list. A host's style may leave a row no height.
int capacity(QListWidget &list)
{
    return list.height() / std::max(rowHeight(list), 1);
}

/// The answer of `action` for a list whose selection is what the add-on has made it.
template <typename Result, typename Action>
Result withSettledList(int id, Result neutral, Action &&action) noexcept
{
    return withWidget<ZelGUIList>(id, neutral, [&](ZelGUIList &list) {
        list.settleSelection();
        return action(list);
    });
}

template <typename Action>
void withSettledList(int id, Action &&action) noexcept
{
    withSettledList(id, true, [&](ZelGUIList &list) {
        action(list);
        return true;
    });
}

} // namespace

ZelGUIList::ZelGUIList(QWidget *parent, int x, int y, int width, int height, bool isMultiSelection,
                       ZelGUIIntCallback callback)
    : QListWidget(parent), m_callback(callback)
{
    setSelectionMode(isMultiSelection ? ExtendedSelection : SingleSelection);
    placeWidget(this, x, y, width, height);
    connect(this, &QListWidget::itemSelectionChanged, this, &ZelGUIList::onItemSelectedChanged);
}

ZelGUIList::~ZelGUIList()
{
    // Before the model, whose end would have it select rows of what is no list any more.
    delete std::exchange(m_pendingSelection, nullptr);
}

void ZelGUIList::onItemSelectedChanged()
{
    if (!m_callback || ZelGUIWidgetRepository::instance()->callbacksSuppressed())
        return;
    const bool isStillThere = callOut(this, [this] {
        std::vector<int> positions = selectedPositions(*this);
        std::sort(positions.begin(), positions.end());
        positions.push_back(0);
        m_callback(positions.data());
    });
    if (isStillThere)
        settleSelection();
}

PendingSelection &ZelGUIList::pendingSelection()
{
    if (!m_pendingSelection)
        m_pendingSelection = new PendingSelection(*this);
    return *m_pendingSelection;
}

void ZelGUIList::settleSelection() noexcept
{
    if (m_pendingSelection)
        m_pendingSelection->flush();
}

/// For Ctrl+A. The toolkit compares what is selected with what was, which costs the square of the ranges; so a
/// selection of many is given up first. As ever, it is a change only if not all were selected.
void ZelGUIList::selectAll()
{
    settleSelection();
    const QItemSelection selection = selectionModel()->selection();
    if (selectionMode() != ExtendedSelection || selection.size() <= kFewRanges) {
        QListWidget::selectAll();
        return;
    }
    const auto addRows = [](int rows, const QItemSelectionRange &range) { return rows + range.height(); };
    const bool isChange = std::accumulate(selection.begin(), selection.end(), 0, addRows) < count();
    const bool wasBlocked = selectionModel()->blockSignals(true);
    clearSelection();
    selectionModel()->blockSignals(wasBlocked || !isChange);
    QListWidget::selectAll();
    selectionModel()->blockSignals(wasBlocked);
}

/// For what the user types. It is reported when the toolkit is done: it goes on with the item that it has found, which
/// a callback may delete.
void ZelGUIList::keyboardSearch(const QString &search)
{
    bool hasChanged = false;
    const auto note = [&hasChanged] { hasChanged = true; };
    const auto connection = connect(this, &QListWidget::itemSelectionChanged, this, note);
    {
        const CallbackSuppressor suppressor;
        QListWidget::keyboardSearch(search);
    }
    disconnect(connection);
    if (hasChanged)
        onItemSelectedChanged();
}

bool ZelGUIList::event(QEvent *event)
{
    settleSelection();
    return QListWidget::event(event);
}

bool ZelGUIList::viewportEvent(QEvent *event)
{
    settleSelection();
    return QListWidget::viewportEvent(event);
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIListAdd(int parentId, int x, int y, int width, int height, ZelBoolean isMultiSelection,
                  ZelGUIIntCallback callback)
{
    return addWidgetTo<ZelGUIList>(parentId, x, y, width, height, isMultiSelection != 0, callback);
}

void ZelGUIListAppendItem(int listId, const char *text)
{
    withWidget<QListWidget>(listId, [text](QListWidget &list) {
        const CallbackSuppressor suppressor;
        list.addItem(fromUtf8(text));
    });
}

void ZelGUIListSetItems(int listId, StringList_s *items)
{
    withSettledList(listId, [items](QListWidget &list) { setItems(list, textsOf(items)); });
}

char *ZelGUIListGetString(int listId, int position)
{
    return withWidget<QListWidget>(listId, static_cast<char *>(nullptr), [position](const QListWidget &list) {
        return allocHostString(indexAt(list, position).data().toString());
    });
}

int ZelGUIListGetItemCount(int listId)
{
    return withWidget<QListWidget>(listId, kInvalidWidgetId, [](const QListWidget &list) { return list.count(); });
}

void ZelGUIListDeleteAllItems(int listId)
{
    withSettledList(listId, [](QListWidget &list) {
        const BulkChange change(list);
        list.clear();
    });
}

void ZelGUIListDeleteItemAtPos(int listId, int position)
{
    withSettledList(listId, [position](QListWidget &list) {
        const CallbackSuppressor suppressor;
        list.model()->removeRow(indexAt(list, position).row());
    });
}

void ZelGUIListReplaceItem(int listId, const char *text, int position)
{
    withWidget<QListWidget>(listId, [text, position](QListWidget &list) {
        const CallbackSuppressor suppressor;
        list.model()->setData(indexAt(list, position), fromUtf8(text));
    });
}

int ZelGUIListGetSelectedItem(int listId)
{
    return withSettledList(listId, -1, [](const QListWidget &list) {
        const QItemSelection selection = list.selectionModel()->selection();
        return selection.isEmpty() ? -1 : selection.first().top() + 1;
    });
}

void ZelGUIListGetSelectedItems(int listId, int **selected, int *count)
{
    withSettledList(listId,
                    [selected, count](const QListWidget &list) { handOutSelectedPositions(list, selected, count); });
}

void ZelGUIListDeselectAllItems(int listId)
{
    withSettledList(listId, [](QListWidget &list) {
        const BulkChange change(list);
        list.clearSelection();
    });
}

void ZelGUIListSelectAllItems(int listId)
{
    withSettledList(listId, [](QListWidget &list) { selectAll(list); });
}

void ZelGUIListSetSelectedItem(int listId, int position)
{
    withWidget<ZelGUIList>(listId, [position](ZelGUIList &list) { selectAndShow(list, position); });
}

void ZelGUIListSetSelectedItems(int listId, const int *positions, int count)
{
    withSettledList(listId, [positions, count](ZelGUIList &list) { select(list, positions, count); });
}

void ZelGUIListSetTopItemNum(int listId, int position)
{
    withWidget<QListWidget>(listId, [position](QListWidget &list) {
        list.scrollTo(indexAt(list, position), QAbstractItemView::PositionAtTop);
    });
}

int ZelGUIListGetTopItemNum(int listId)
{
    return withWidget<QListWidget>(listId, -1,
                                   [](const QListWidget &list) { return list.indexAt(QPoint(0, 0)).row() + 1; });
}

int ZelGUIListGetCapacity(int listId)
{
    return withWidget<QListWidget>(listId, -1, [](QListWidget &list) { return capacity(list); });
}
