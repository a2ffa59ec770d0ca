// SPDX-License-Identifier: MIT
#include "core/entrypoint.h"
#include "dialogs/dialog.h"

#include <QCoreApplication>
#include <QLayout>
#include <QMenuBar>
#include <QResizeEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace orvane::zelgui {

namespace {

/// Pixels beyond which window systems misbehave; only a great many menu bars get a dialog there.
constexpr int kLargestHeight = 32767;

/// Keeps the menu bar at the upper edge, and has no other items: everything else is placed by numbers.
class MenuBarLayout : public QVBoxLayout
{
public:
    explicit MenuBarLayout(QDialog *dialog) : QVBoxLayout(dialog) { setSizeConstraint(SetNoConstraint); }

    /// When a widget is shown whose size nobody has set, the toolkit sets it, but not for the children of a parent with
    /// a layout. Labels would be higher in dialogs with a menu bar, and their text lower.
    void setGeometry(const QRect &rect) override
    {
        QVBoxLayout::setGeometry(rect);
        const QObjectList &children = parentWidget()->children();
        const int count = int(children.size());
        // A dialog that appears shows all its children. Later on they are shown one at a time, mostly in their order:
        // to look for that one from the start each time would cost the square of their number.
        const bool isDialogVisible = parentWidget()->isVisible();
        for (int i = 0; i < count; ++i) {
            const int place = isDialogVisible ? (m_lastShown + i) % count : i;
            auto *const widget = qobject_cast<QWidget *>(children[place]);
            if (!widget || !isAboutToShow(*widget))
                continue;
            giveOwnSize(*widget);
            if (isDialogVisible) {
                m_lastShown = place;
                break;
            }
        }
    }

private:
    bool isAboutToShow(const QWidget &widget) const
    {
        return !widget.isHidden() && !widget.isVisible() && !widget.isWindow() && &widget != menuBar();
    }

    static void giveOwnSize(QWidget &widget)
    {
        if (widget.testAttribute(Qt::WA_Resized))
            return;
        widget.adjustSize();
        widget.setAttribute(Qt::WA_Resized, false);
    }

    int m_lastShown = 0;
};

QLayout *layoutOf(QDialog &dialog)
{
    return dialog.layout() ? dialog.layout() : new MenuBarLayout(&dialog);
}

/// Lets a widget put its inner parts where it wants them. Widgets do that when they are resized; those that leave it to
/// a layout do it only if the layout believes that something has changed.
void layOutAnew(QWidget *widget)
{
    if (QLayout *const layout = widget->layout())
        layout->invalidate();
    QResizeEvent event(widget->size(), widget->size());
    QCoreApplication::sendEvent(widget, &event);
}

/// Moves everything inside a dialog down, each widget within its own parent: what stands in a frame ends lower by the
/// frame's step and by its own. Parts that the toolkit has made for itself (viewports, tab bars, the buttons of a box)
/// can't be told from an add-on's widgets, so they are moved too, and then taken back by the widgets they belong to.
void moveContentDown(QDialog &dialog, int pixels)
{
    const auto widgets = dialog.findChildren<QWidget *>();
    for (QWidget *const widget : widgets)
        widget->move(widget->x(), widget->y() + pixels);
    for (QWidget *const widget : widgets)
        layOutAnew(widget);
}

QMenuBar *addMenuBar(QDialog &dialog)
{
    auto *const bar = new QMenuBar(&dialog);
    // Not the height that the bar will have, but that of any widget not laid out yet, 30 pixels. Add-ons count on it.
    const int height = bar->height();
    // Some desktops would take the menus out of the dialog, and leave a gap.
    bar->setNativeMenuBar(false);
    layoutOf(dialog)->setMenuBar(bar);
    dialog.setFixedHeight(std::min(dialog.height() + height, kLargestHeight));
    moveContentDown(dialog, height);
    return bar;
}

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIMenuBarAdd(int dialogId)
{
    return withWidget<ZelGUIDialog>(dialogId, kInvalidWidgetId, [](ZelGUIDialog &dialog) {
        return ZelGUIWidgetRepository::instance()->addWidget(addMenuBar(dialog));
    });
}
