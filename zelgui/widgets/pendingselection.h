// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_PENDINGSELECTION_H
#define ZELGUI_WIDGETS_PENDINGSELECTION_H

#include <QObject>
#include <QPersistentModelIndex>

#include <vector>

class QListWidget;

namespace orvane::zelgui {

/// Rows of a list that the add-on has selected one call at a time, and that the toolkit is yet to be told of.
///
/// Each change of a selection costs the toolkit time by the ranges that are selected already, so one row after the
/// other would cost the square of their number. Where there are many ranges the rows are collected, and selected in one
/// go before add-on or user looks: before an event reaches the list, before a function reads or changes the selection,
/// before the model changes, and in any case in the next pass of the event loop. Only a host that looks into the list
/// itself, while the add-on's code is still running, finds them missing.
class PendingSelection : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the list.
    explicit PendingSelection(QListWidget &list);

    /// Adds a row, which exists, to the selection.
    void select(int row);
    void selectNow(const std::vector<int> &rows);
    void flush() noexcept
    {
        if (!m_rows.empty())
            flushRows();
    }

private Q_SLOTS:
    void onRowsAboutToBeInserted(const QModelIndex &parent, int first);
    void onOrderAboutToChange();
    void onOrderChanged();
    void onNextPass() noexcept;
    void flushRows() noexcept;

private:
    void watchModel();

    QListWidget &m_list;
    std::vector<int> m_rows;
    /// What m_rows was, while the items change places.
    std::vector<QPersistentModelIndex> m_moving;
    bool m_isWatching = false;
    bool m_isFlushPosted = false;
};

} // namespace orvane::zelgui

#endif
