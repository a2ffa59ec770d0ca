// SPDX-License-Identifier: MIT
#include "widgets/pendingselection.h"

#include "core/entrypoint.h"
#include "util/selectionorder.h"
#include "widgets/bulkchange.h"

#include <QListWidget>

#include <utility>

namespace orvane::zelgui {

namespace {

/// Up to as many ranges a row is selected at once, in some microseconds.
constexpr int kFewRanges = 256;

} // namespace

PendingSelection::PendingSelection(QListWidget &list) : QObject(&list), m_list(list) {}

void PendingSelection::select(int row)
{
    if (m_rows.empty() && m_list.selectionModel()->selection().size() <= kFewRanges) {
        selectNow({row});
        return;
    }
    watchModel();
    if (!std::exchange(m_isFlushPosted, true))
        QMetaObject::invokeMethod(this, &PendingSelection::onNextPass, Qt::QueuedConnection);
    m_rows.push_back(row);
    // The same rows again and again must not fill the memory.
    if (m_rows.size() > static_cast<std::size_t>(m_list.count()))
        flush();
}

void PendingSelection::selectNow(const std::vector<int> &rows)
{
    const BulkChange change(m_list);
    selectInTurn(*m_list.selectionModel(), rows);
}

void PendingSelection::watchModel()
{
    if (m_isWatching)
        return;
    m_isWatching = true;
    const auto *const model = m_list.model();
    connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, &PendingSelection::onRowsAboutToBeInserted);
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, &PendingSelection::flushRows);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &PendingSelection::flushRows);
    connect(model, &QAbstractItemModel::rowsAboutToBeMoved, this, &PendingSelection::onOrderAboutToChange);
    connect(model, &QAbstractItemModel::rowsMoved, this, &PendingSelection::onOrderChanged);
    connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, &PendingSelection::onOrderAboutToChange);
    connect(model, &QAbstractItemModel::layoutChanged, this, &PendingSelection::onOrderChanged);
}

void PendingSelection::onRowsAboutToBeInserted(const QModelIndex &, int first)
{
    // What is appended leaves the numbers of the rows as they are.
    if (first < m_list.count())
        flush();
}

void PendingSelection::onOrderAboutToChange()
{
    // By now the selection model has saved the selection that it will restore: these rows have to follow their items.
    for (const int row : std::exchange(m_rows, {}))
        m_moving.emplace_back(m_list.model()->index(row, 0));
}

void PendingSelection::onOrderChanged()
{
    for (const QPersistentModelIndex &index : std::exchange(m_moving, {})) {
        if (index.isValid())
            m_rows.push_back(index.row());
    }
    flush();
}

void PendingSelection::onNextPass() noexcept
{
    m_isFlushPosted = false;
    flush();
}

void PendingSelection::flushRows() noexcept
{
    const std::vector<int> rows = std::exchange(m_rows, {});
    if (rows.empty())
        return;
    // An event may lead here while a suppressor of somebody else's lives, whose silence ours would end.
    auto *const repository = ZelGUIWidgetRepository::instance();
    const bool wasSuppressed = repository->callbacksSuppressed();
    behindWall(false, [&] {
        selectNow(rows);
        return true;
    });
    repository->setCallbacksSuppressed(wasSuppressed);
}

} // namespace orvane::zelgui
