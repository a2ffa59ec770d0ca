// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_BULKCHANGE_H
#define ZELGUI_WIDGETS_BULKCHANGE_H

#include "core/repository.h"

#include <QWidget>

namespace orvane::zelgui {

/// Lives while the add-on changes many rows: nothing is reported, and a visible list repaints once, instead of looking
/// up where each of the rows is.
class BulkChange
{
public:
    explicit BulkChange(QWidget &list) : m_list(list), m_hadUpdates(list.updatesEnabled())
    {
        if (m_hadUpdates)
            m_list.setUpdatesEnabled(false);
    }
    ~BulkChange()
    {
        if (m_hadUpdates)
            m_list.setUpdatesEnabled(true);
    }
    BulkChange(const BulkChange &) = delete;
    BulkChange &operator=(const BulkChange &) = delete;

private:
    CallbackSuppressor m_suppressor;
    QWidget &m_list;
    bool m_hadUpdates;
};

} // namespace orvane::zelgui

#endif
