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
    if (m_rows.empty())
        QMetaObject::invokeMethod(this, &PendingSelection::flushRows, Qt::QueuedConnection);
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
    connect(model, &QAbstractItemModel::rowsAboutToBeMoved, this, &PendingSelection::flushRows);
    connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, &PendingSelection::flushRows);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &PendingSelection::flushRows);
}

void PendingSelection::onRowsAboutToBeInserted(const QModelIndex &, int first)
{
    // What is appended leaves the numbers of the rows as they are.
    if (first < m_list.count())
        flush();
}

void PendingSelection::flushRows() noexcept
{
    const std::vector<int> rows = std::exchange(m_rows, {});
    if (!rows.empty())
        behindWall(false, [&] {
            selectNow(rows);
            return true;
        });
}

} // namespace orvane::zelgui
