// SPDX-License-Identifier: MIT
#include "user.h"

#include "host.h"

#include <zelgui/zelgui.h>

#include <QApplication>
#include <QDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace torture {

namespace {

/// What the user sees on top: a popup, else a modal window, else any window.
QWidget *windowInReach(Random &random)
{
    QWidget *const popup = QApplication::activePopupWidget();
    if (popup && !random.oneIn(4))
        return popup;
    if (QWidget *const modal = QApplication::activeModalWidget())
        return modal;
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.erase(
        std::remove_if(windows.begin(), windows.end(), [](const QWidget *window) { return !window->isVisible(); }),
        windows.end());
    return windows.isEmpty() ? nullptr : random.of(windows);
}

/// A place in a window, mostly on something that can be used.
QPoint anyPlace(const QWidget &window, Random &random)
{
    const auto pointIn = [&random](const QWidget &widget) {
        return QPoint(random.between(0, std::max(widget.width() - 1, 0)),
                      random.between(0, std::max(widget.height() - 1, 0)));
    };
    const auto widgets = window.findChildren<QWidget *>();
    for (int attempt = 0; attempt < 8 && !widgets.isEmpty(); ++attempt) {
        const QWidget *const widget = random.of(widgets);
        if (widget->isVisible() && widget->isEnabled() && widget->window() == &window)
            return widget->mapTo(&window, pointIn(*widget));
    }
    return pointIn(window);
}

Qt::KeyboardModifiers anyModifiers(Random &random)
{
    return random.of<Qt::KeyboardModifier>({Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                            Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier});
}

/// The window may be gone when its key is let go.
void clickKey(QWindow &window, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    const QPointer<QWindow> guard(&window);
    qt_handleKeyEvent(&window, QEvent::KeyPress, key, modifiers, text);
    if (guard)
        qt_handleKeyEvent(&window, QEvent::KeyRelease, key, modifiers, text);
}

} // namespace

void User::act(Random &random)
{
    QWidget *const window = windowInReach(random);
    if (!window || !window->windowHandle())
        return;
    const std::size_t choice = random.below(100);
    if (choice < 55)
        useMouse(*window, random);
    else if (choice < 60)
        turnWheel(*window, random);
    else if (choice < 96)
        typeKey(random);
    else if (choice < 98)
        window->activateWindow();
    else if (window != mainWindow())
        window->close();
}

void User::useMouse(QWidget &window, Random &random)
{
    if (!m_pressed || random.oneIn(2))
        m_place = anyPlace(window, random);
    const auto button = random.oneIn(12) ? Qt::RightButton : Qt::LeftButton;
    const QPointer<QWidget> guard(&window);
    if (m_pressed) {
        sendMouse(window, QEvent::MouseMove, Qt::NoButton);
        if (guard && !random.oneIn(4))
            sendMouse(window, QEvent::MouseButtonRelease, Qt::MouseButton(int(m_pressed)));
        return;
    }
    sendMouse(window, QEvent::MouseMove, Qt::NoButton);
    if (guard)
        sendMouse(window, QEvent::MouseButtonPress, button);
    if (guard && !random.oneIn(5))
        sendMouse(window, QEvent::MouseButtonRelease, button);
}

void User::sendMouse(QWidget &window, QEvent::Type type, Qt::MouseButton button)
{
    // Presses so near to each other that some make double clicks.
    m_time += 150;
    m_pressed = type == QEvent::MouseButtonPress     ? Qt::MouseButtons(button)
                : type == QEvent::MouseButtonRelease ? Qt::MouseButtons()
                                                     : m_pressed;
    QWindow *const handle = window.windowHandle();
    if (handle && window.isVisible())
        qt_handleMouseEvent(handle, m_place, window.mapToGlobal(m_place), m_pressed, button, type, Qt::NoModifier,
                            m_time);
}

void User::turnWheel(QWidget &window, Random &random)
{
    m_place = anyPlace(window, random);
    QWheelEvent event(m_place, window.mapToGlobal(m_place), QPoint(), QPoint(0, random.of({120, -120, 720})), m_pressed,
                      anyModifiers(random), Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window.windowHandle(), &event);
}

void User::typeKey(Random &random)
{
    QWindow *const window = QGuiApplication::focusWindow();
    if (!window)
        return;
    static const Qt::Key kKeys[] = {Qt::Key_Tab,       Qt::Key_Tab,    Qt::Key_Backtab,  Qt::Key_Return,
                                    Qt::Key_Enter,     Qt::Key_Space,  Qt::Key_Escape,   Qt::Key_Up,
                                    Qt::Key_Down,      Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Home,
                                    Qt::Key_End,       Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete,
                                    Qt::Key_Backspace, Qt::Key_F10,    Qt::Key_Menu,     Qt::Key_F4};
    int key = kKeys[random.below(std::size(kKeys))];
    QString text;
    if (random.oneIn(2)) {
        key = random.between(Qt::Key_Space, Qt::Key_Z);
        text = random.oneIn(8) ? QString(QChar(random.between(0xA0, 0x2100))) : QString(QChar(key)).toLower();
    }
    clickKey(*window, key, anyModifiers(random), text);
}

bool User::dismiss()
{
    QWidget *window = QApplication::activePopupWidget();
    if (!window)
        window = QApplication::activeModalWidget();
    for (QWidget *const other : QApplication::topLevelWidgets()) {
        if (!window && other->isVisible() && other != mainWindow())
            window = other;
    }
    if (m_pressed && mainWindow())
        sendMouse(window ? *window : *mainWindow(), QEvent::MouseButtonRelease, Qt::MouseButton(int(m_pressed)));
    else if (window && qobject_cast<QMenuBar *>(window->focusWidget()))
        // It keeps Escape to itself, and the focus when its window has not been the active one for a moment.
        window->close();
    else if (window)
        clickKey(*window->windowHandle(), Qt::Key_Escape, Qt::NoModifier, QString());
    return window;
}

void LoopEnder::timerEvent(QTimerEvent *)
{
    // Started anew, since a timer doesn't fire in a loop within its own event.
    m_timer.stop();
    m_timer.start(0, this);
    QWidget *const modal = QApplication::activeModalWidget();
    if (++m_ticks < 6) {
        m_meanwhile();
    } else if (m_ticks > 30 || qobject_cast<QMessageBox *>(modal)) {
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QPointer<QWidget> &window : QList<QPointer<QWidget>>(windows.begin(), windows.end())) {
            if (window && window != mainWindow())
                window->hide();
        }
    } else if (modal) {
        ZelGUIDialogDrop(modal->objectName().toInt());
    }
    if (QWindow *const window = QGuiApplication::focusWindow())
        qt_handleMouseEvent(window, {}, {}, Qt::NoButton, Qt::LeftButton, QEvent::MouseButtonRelease, {}, 0);
}

} // namespace torture
