// SPDX-License-Identifier: MIT
#include "core/endedpopups.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace orvane::zelgui {

EndedPopups::EndedPopups() : m_isOutermost(!std::exchange(s_areKept, true))
{
    if (!m_isOutermost)
        return;
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
    if (!m_isOutermost)
        return;
    s_areKept = false;
    if (m_ended.empty())
        return;
    const auto deleteAll = [popups = std::move(m_ended)] {
        for (const QPointer<QObject> &popup : popups)
            delete popup.data();
    };
    QMetaObject::invokeMethod(qApp, deleteAll, Qt::QueuedConnection);
}

bool EndedPopups::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::DeferredDelete ||
        std::find(m_popups.begin(), m_popups.end(), object) == m_popups.end())
        return false;
    m_ended.emplace_back(object);
    return true;
}

} // namespace orvane::zelgui
