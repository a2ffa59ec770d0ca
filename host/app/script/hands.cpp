// SPDX-License-Identifier: MIT
#include "hands.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

namespace {

QWindow *windowOf(const QWidget *widget)
{
    return widget->window()->windowHandle();
}

QPoint inWindow(const QWidget *widget, const QPoint &position)
{
    return widget->mapTo(widget->window(), position);
}

/// Qt Test takes the origin for "somewhere in the middle".
QPoint notTheOrigin(const QPoint &position)
{
    return position.isNull() ? QPoint(1, 1) : position;
}

Qt::Key keyOfLetter(const QString &letter)
{
    // Keys of letters have the code of the capital.
    const QChar capital = letter[0].toUpper();
    return letter.size() == 1 && capital.unicode() < 0x100 ? static_cast<Qt::Key>(capital.unicode()) : Qt::Key_unknown;
}

} // namespace

void Hands::press(QWidget *widget, const QPoint &position, Qt::KeyboardModifiers modifiers)
{
    m_window = windowOf(widget);
    if (!m_window)
        return;
    m_position = notTheOrigin(inWindow(widget, position));
    m_isPressed = true;
    QTest::mousePress(m_window.data(), Qt::LeftButton, modifiers, m_position);
}

void Hands::move(QWidget *widget, const QPoint &position)
{
    QWindow *const window = windowOf(widget);
    if (!window)
        return;
    m_position = notTheOrigin(inWindow(widget, position));
    QTest::mouseMove(window, m_position);
}

void Hands::release()
{
    if (!m_isPressed)
        return;
    m_isPressed = false;
    // The button has to come up somewhere, or everything that follows would seem to be done with it down.
    QWindow *const window = m_window ? m_window.data() : QGuiApplication::topLevelWindows().value(0);
    if (window)
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, m_position);
}

void Hands::click(QWidget *widget, const QPoint &position, Qt::KeyboardModifiers modifiers)
{
    press(widget, position, modifiers);
    release();
}

void Hands::key(QWidget *widget, const KeyPress &press)
{
    QWidget *const popup = QApplication::activePopupWidget();
    if (QWindow *const window = windowOf(popup ? popup : widget))
        QTest::keyClick(window, press.key, press.modifiers);
}

void Hands::type(QWidget *widget, const QString &text)
{
    const QPointer<QWidget> guard(widget);
    for (int i = 0; i < text.size() && guard; ++i) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size();
        const QString letter = text.mid(i, isPair ? 2 : 1);
        i += isPair ? 1 : 0;
        if (letter == QLatin1String("\n"))
            key(widget, {Qt::Key_Return, Qt::NoModifier});
        else if (letter == QLatin1String("\t"))
            key(widget, {Qt::Key_Tab, Qt::NoModifier});
        else if (QWindow *const window = windowOf(widget))
            QTest::sendKeyEvent(QTest::Click, window, keyOfLetter(letter), letter, Qt::NoModifier);
    }
}

void Hands::wheel(QWidget *widget, const QPoint &position, int notches)
{
    const QPoint angle(0, notches * QWheelEvent::DefaultDeltasPerStep);
    QWheelEvent event(position, widget->mapToGlobal(position), QPoint(), angle, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}
