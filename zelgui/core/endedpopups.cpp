// SPDX-License-Identifier: MIT
#include "core/endedpopups.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace orvane::zelgui {

EndedPopups::EndedPopups() : m_outer(std::exchange(s_innermost, this))
{
    // Only those: what the add-on makes in its callback goes when it wants it to go.
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (window->windowType() == Qt::Popup)
            m_popups.emplace_back(window);
    }
    if (!m_popups.empty())
        qApp->installEventFilter(this);
}

EndedPopups::~EndedPopups()
{
    s_innermost = m_outer;
    if (m_ended.empty())
        return;
    const auto deleteAll = [popups = std::move(m_ended)] {
        for (const QPointer<QObject> &popup : popups)
            deleteUnlessKept(popup);
    };
    QMetaObject::invokeMethod(qApp, deleteAll, Qt::QueuedConnection);
}

bool EndedPopups::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::DeferredDelete || !isKept(object))
        return false;
    m_ended.emplace_back(object);
    return true;
}

bool EndedPopups::isKept(const QObject *popup) const
{
    return std::find(m_popups.begin(), m_popups.end(), popup) != m_popups.end();
}

/// By now, another callback may be running from inside the work with the same popup.
void EndedPopups::deleteUnlessKept(QObject *popup)
{
    if (popup && s_innermost && s_innermost->isKept(popup))
        s_innermost->m_ended.emplace_back(popup);
    else
        delete popup;
}

} // namespace orvane::zelgui
