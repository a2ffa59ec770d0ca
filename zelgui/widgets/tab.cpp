// SPDX-License-Identifier: MIT
#include "widgets/tab.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"
#include "widgets/focusloss.h"

#include <QTabBar>

namespace orvane::zelgui {

ZelGUITab::ZelGUITab(QWidget *parent, int x, int y, int width, int height, ZelGUIIntCallback activated,
                     ZelGUIIntCallback deactivated)
    : QTabWidget(parent), m_activated(activated), m_deactivated(deactivated)
{
    placeWidget(this, x, y, width, height);
    // Room for the tabs, as high as a bar that has not been laid out yet; the page overlaps them by five pixels.
    const int roomForTabs = tabBar()->height() - 5;
    setFixedHeight(this->height() + roomForTabs);
    move(this->x(), this->y() - roomForTabs);
    connect(this, &QTabWidget::currentChanged, this, &ZelGUITab::onCurrentChanged);
}

void ZelGUITab::onCurrentChanged(int index)
{
    const auto *const repository = ZelGUIWidgetRepository::instance();
    if (index < 0 || count() <= 1 || repository->callbacksSuppressed())
        return;
    const int shown = repository->idOf(widget(index));
    if (shown == m_lastReportedPageId)
        return;
    const int left = m_lastReportedPageId == kInvalidWidgetId ? repository->idOf(widget(0)) : m_lastReportedPageId;
    const QPointer<ZelGUITab> guard(this);
    report<const int *>(this, m_deactivated, &left);
    if (!guard)
        return;
    m_lastReportedPageId = shown;
    report<const int *>(this, m_activated, &shown);
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUITabAdd(int parentId, int x, int y, int width, int height, ZelGUIIntCallback pageActivated,
                 ZelGUIIntCallback pageDeactivated)
{
    return addTo(parentId, [=](QWidget &parent) {
        const CallbackSuppressor suppressor;
        return new ZelGUITab(&parent, x, y, width, height, pageActivated, pageDeactivated);
    });
}

int ZelGUITabAddPage(int tabId, const char *label)
{
    return withWidget<QTabWidget>(tabId, kInvalidWidgetId, [label](QTabWidget &tab) {
        auto *const page = new QWidget;
        // It has its identifier before the tab widget may want to report it.
        const int id = ZelGUIWidgetRepository::instance()->addWidget(page);
        const CallbackSuppressor suppressor;
        tab.addTab(page, fromUtf8(label));
        return id;
    });
}

void ZelGUITabSetCurrentPage(int tabId, int pageId)
{
    withWidget<QTabWidget>(tabId, [pageId](QTabWidget &tab) {
        const int index = tab.indexOf(ZelGUIWidgetRepository::instance()->widgetAs<QWidget>(pageId));
        if (index < 0)
            return;
        {
            const CallbackSuppressor suppressor;
            tab.setCurrentIndex(index);
        }
        // Of a field on the page that was left.
        LateReport::makeAll();
    });
}
