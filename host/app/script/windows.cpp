// SPDX-License-Identifier: MIT
#include "windows.h"

#include "words.h"

#include <QApplication>
#include <QEvent>
#include <QMessageBox>

#include <algorithm>

namespace {

/// Popups, tool tips and the like come and go with what a dialog's widgets do.
bool isOrdinaryWindow(const QWidget &widget)
{
    const Qt::WindowType type = widget.windowType();
    return widget.isWindow() && (type == Qt::Window || type == Qt::Dialog || type == Qt::Sheet || type == Qt::Tool);
}

} // namespace

Windows::Windows(const QWidget &mainWindow) : m_mainWindow(mainWindow)
{
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        if (widget != &mainWindow && widget->isVisible() && isOrdinaryWindow(*widget))
            m_shown.emplace_back(widget);
    }
    qApp->installEventFilter(this);
}

Windows::~Windows()
{
    qApp->removeEventFilter(this);
}

std::vector<QWidget *> Windows::all() const
{
    std::vector<QWidget *> result;
    for (const QPointer<QWidget> &window : m_shown) {
        if (window && window->isVisible())
            result.push_back(window);
    }
    return result;
}

QWidget *Windows::top() const
{
    const std::vector<QWidget *> windows = all();
    const auto found =
        std::find_if(windows.rbegin(), windows.rend(), [](QWidget *window) { return !blockerOf(*window); });
    return found == windows.rend() ? nullptr : *found;
}

QWidget *Windows::titled(const QString &title) const
{
    const std::vector<QWidget *> windows = all();
    const auto found = std::find_if(windows.rbegin(), windows.rend(),
                                    [&title](QWidget *window) { return window->windowTitle() == title; });
    return found == windows.rend() ? nullptr : *found;
}

bool Windows::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::Show && type != QEvent::Hide && type != QEvent::WindowActivate)
        return false;
    auto *const widget = qobject_cast<QWidget *>(watched);
    if (!widget || widget == &m_mainWindow || !isOrdinaryWindow(*widget))
        return false;
    const auto isGone = [widget](const QPointer<QWidget> &window) { return !window || window == widget; };
    m_shown.erase(std::remove_if(m_shown.begin(), m_shown.end(), isGone), m_shown.end());
    if (type != QEvent::Hide)
        m_shown.emplace_back(widget);
    if (m_changed && type != QEvent::WindowActivate)
        m_changed();
    return false;
}

QWidget *blockerOf(const QWidget &window)
{
    QWidget *const modal = QApplication::activeModalWidget();
    if (!modal || modal == &window)
        return nullptr;
    for (const QWidget *parent = window.parentWidget(); parent; parent = parent->parentWidget()) {
        if (parent == modal)
            return nullptr;
    }
    return modal;
}

bool isMessage(const QWidget &window)
{
    return qobject_cast<const QMessageBox *>(&window);
}

QString textOfWindow(const QWidget &window)
{
    const auto *const message = qobject_cast<const QMessageBox *>(&window);
    return message ? message->text() : window.windowTitle();
}

QString describeWindow(const QWidget &window)
{
    return QStringLiteral("the %1 %2")
        .arg(isMessage(window) ? QStringLiteral("message") : QStringLiteral("dialog"), quoted(textOfWindow(window)));
}
