// SPDX-License-Identifier: MIT
#include "accessiblenames.h"

#include "widgetnames.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QVariant>

#include <algorithm>
#include <utility>

namespace {

/// The name that this class has given a widget, by which it knows it again.
constexpr const char *GivenName = "zelhostAccessibleName";

/// The toolkit's combo boxes go by the item that is chosen, whatever their name; assistive technology asks for the
/// label instead. With an ampersand in its text, a label would look different afterwards.
void relateToLabel(QComboBox &box)
{
    QLabel *const label = labelFor(box);
    if (label && !label->buddy() && !label->text().contains(QLatin1Char('&')))
        label->setBuddy(&box);
}

void nameControl(QWidget &control)
{
    const bool isOthers = control.accessibleName() != control.property(GivenName).toString();
    // The toolkit knows the texts of buttons, also when they change later.
    if (isOthers || !isControl(control) || hasOwnText(control) || qobject_cast<QScrollBar *>(&control))
        return;
    if (auto *const box = qobject_cast<QComboBox *>(&control))
        relateToLabel(*box);
    const QString caption = captionOf(control);
    control.setAccessibleName(caption);
    control.setProperty(GivenName, caption);
}

void nameControls(const QWidget &window)
{
    const auto widgets = window.findChildren<QWidget *>();
    for (QWidget *const widget : widgets)
        nameControl(*widget);
}

} // namespace

AccessibleNames::AccessibleNames(QObject *parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool AccessibleNames::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show || !watched->isWidgetType())
        return false;
    auto *const widget = static_cast<QWidget *>(watched);
    if (widget->isWindow()) {
        nameControls(*widget);
        return false;
    }
    QWidget *const window = widget->window();
    // Children are shown before their window.
    if (!window->isVisible() || std::find(m_pending.begin(), m_pending.end(), window) != m_pending.end())
        return false;
    if (m_pending.empty())
        QMetaObject::invokeMethod(this, &AccessibleNames::namePending, Qt::QueuedConnection);
    m_pending.emplace_back(window);
    return false;
}

void AccessibleNames::namePending()
{
    for (const QPointer<QWidget> &window : std::exchange(m_pending, {})) {
        if (window)
            nameControls(*window);
    }
}
