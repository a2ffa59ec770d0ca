// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_HANDS_H
#define ZELHOST_SCRIPT_HANDS_H

#include "keys.h"

#include <QPoint>
#include <QPointer>
#include <QWindow>

class QWidget;

/// A user's hands: mouse and keyboard, as events of windows, so that popups, modal dialogs and grabs of the mouse work
/// as they do for users.
///
/// What is pressed may open a dialog and return only after that has closed. Who does several things in turn has to look
/// each time whether there still is what they are to be done to.
class Hands
{
public:
    /// `position` is in the widget's coordinates.
    void click(QWidget *widget, const QPoint &position, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void press(QWidget *widget, const QPoint &position, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void move(QWidget *widget, const QPoint &position);
    /// Where the mouse is. Does nothing if the button is up already.
    void release();
    bool isPressed() const { return m_isPressed; }

    /// To the popup if there is one, else to the window that has the widget.
    void key(QWidget *widget, const KeyPress &press);
    /// Types one letter after the other; line feeds are the Return key, tabulators the Tab key.
    void type(QWidget *widget, const QString &text);
    void wheel(QWidget *widget, const QPoint &position, int notches);

private:
    bool m_isPressed = false;
    QPointer<QWindow> m_window;
    QPoint m_position;
};

#endif
