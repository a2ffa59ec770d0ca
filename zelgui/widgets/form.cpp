// SPDX-License-Identifier: MIT
#include "core/entrypoint.h"
#include "core/placement.h"

#include <zelgui/zelgui.h>

#include <QStackedWidget>

namespace orvane::zelgui {

namespace {

/// A stack of pages, one of which is shown.
class Form : public QStackedWidget
{
public:
    Form(QWidget *parent, int x, int y, int width, int height) : QStackedWidget(parent)
    {
        placeWidget(this, x, y, width, height);
    }
};

void showPage(QWidget &page)
{
    auto *const form = qobject_cast<QStackedWidget *>(page.parentWidget());
    // A tab widget keeps its pages in a stack too, of its own.
    if (!form || !ZelGUIWidgetRepository::instance()->isRegistered(form) || form->indexOf(&page) < 0)
        return;
    const CallbackSuppressor suppressor;
    form->setCurrentWidget(&page);
}

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIFormAdd(int parentId, int x, int y, int width, int height)
{
    return addWidgetTo<Form>(parentId, x, y, width, height);
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
