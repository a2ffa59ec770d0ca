// SPDX-License-Identifier: MIT
#include "strict/placing.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QStackedWidget>
#include <QWidget>

#include <tuple>

namespace orvane::trace {

namespace {

/// Where a container's widgets are seen, in its own coordinates.
QRect roomOf(const QWidget *container)
{
    // A page that is not shown gets its size only when it is.
    const auto *const stack = qobject_cast<const QStackedWidget *>(container->parentWidget());
    QRect room = stack ? stack->rect() : container->rect();
    const auto *const strip = container->findChild<QDialogButtonBox *>(QString(), Qt::FindDirectChildrenOnly);
    if (strip && !strip->buttons().isEmpty())
        room.setBottom(strip->y() - 1);
    return room;
}

/// Whether where it is says anything: pages and parts of menus are placed by the toolkit.
bool isPlaced(ObjectType type)
{
    switch (type) {
    case ObjectType::Dialog:
    case ObjectType::FormPage:
    case ObjectType::TabPage:
    case ObjectType::MenuBar:
    case ObjectType::Menu:
    case ObjectType::MenuItem:
    case ObjectType::MenuToggle:
        return false;
    default:
        return true;
    }
}

/// Where a widget is; one that has not been shown yet gets its size only then.
QRect placeOf(const QWidget *widget)
{
    if (widget->isVisible() || widget->testAttribute(Qt::WA_Resized))
        return widget->geometry();
    const QSize wanted = widget->sizeHint().expandedTo(widget->minimumSizeHint());
    return {widget->pos(), wanted.boundedTo(widget->maximumSize()).expandedTo(widget->minimumSize())};
}

/// By how many pixels a widget reaches beyond an edge, the worst one; empty if it is inside. What fills its parent may
/// be a little larger: positions and sizes are rounded one by one, and a push button is a tenth higher than asked for.
std::string excess(const QRect &room, const QRect &widget)
{
    const int across = widget.width() / 10 + 1;
    const int down = widget.height() / 10 + 1;
    const std::tuple<int, int, const char *> edges[] = {{widget.right() - room.right(), across, "right"},
                                                        {widget.bottom() - room.bottom(), down, "lower"},
                                                        {room.left() - widget.left(), across, "left"},
                                                        {room.top() - widget.top(), down, "upper"}};
    std::pair<int, const char *> worst = {0, ""};
    for (const auto &[pixels, tolerated, name] : edges) {
        if (pixels > tolerated && pixels > worst.first)
            worst = {pixels, name};
    }
    return worst.first == 0 ? "" : std::to_string(worst.first) + " pixels beyond the " + worst.second + " edge";
}

} // namespace

void Placing::returned(const Call &call)
{
    const Objects::Object *const created = m_objects.find(createdId(call));
    if (!created || !created->object)
        return;
    if (auto *const dialog = qobject_cast<QDialog *>(created->object.data()))
        dialog->installEventFilter(this);
    else
        check(*created);
}

bool Placing::eventFilter(QObject *watched, QEvent *event)
{
    const auto *const dialog = qobject_cast<QDialog *>(watched);
    if (!dialog || event->type() != QEvent::Show)
        return false;
    for (const auto &[id, object] : m_objects.all()) {
        const auto *const widget = qobject_cast<const QWidget *>(object.object);
        if (widget && widget->window() == dialog)
            check(object);
    }
    return false;
}

void Placing::check(const Objects::Object &object)
{
    const auto *const widget = qobject_cast<const QWidget *>(object.object);
    if (!isPlaced(object.type) || !widget || !widget->parentWidget() || !widget->window()->isVisible())
        return;
    const std::string beyond = excess(roomOf(widget->parentWidget()), placeOf(widget));
    if (!beyond.empty()) {
        m_faults.add(object.addOn, object.creator,
                     std::to_string(object.id) + " reaches " + beyond + " of " + std::to_string(object.parentId) +
                         ", which it is in",
                     "place it elsewhere, or make room for it");
    }
}

} // namespace orvane::trace
