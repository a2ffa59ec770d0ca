// SPDX-License-Identifier: MIT
#include "core/entrypoint.h"
#include "core/placement.h"
#include "widgets/focusloss.h"

#include <zelgui/zelgui.h>

#include <QStackedWidget>

namespace orvane::zelgui {

namespace {

void showPage(QWidget &page)
{
    auto *const form = qobject_cast<QStackedWidget *>(page.parentWidget());
    // A tab widget keeps its pages in a stack too, of its own.
    if (!form || !ZelGUIWidgetRepository::instance()->isRegistered(form) || form->indexOf(&page) < 0)
        return;
    {
        const CallbackSuppressor suppressor;
        form->setCurrentWidget(&page);
    }
    // Of a field on the page that was left.
    LateReport::makeAll();
}

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIFormAdd(int parentId, int x, int y, int width, int height)
{
    return addTo(parentId, [=](QWidget &parent) {
        auto *const form = new QStackedWidget(&parent);
        placeWidget(form, x, y, width, height);
        return form;
    });
}

int ZelGUIFormAddPage(int formId)
{
    return withWidget<QStackedWidget>(formId, kInvalidWidgetId, [](QStackedWidget &form) {
        auto *const page = new QWidget;
        form.addWidget(page);
        return ZelGUIWidgetRepository::instance()->addWidget(page);
    });
}

void ZelGUIFormSetCurrentPage(int pageId)
{
    withWidget<QWidget>(pageId, showPage);
}
