// SPDX-License-Identifier: MIT
#ifndef TESTS_TORTURE_USER_H
#define TESTS_TORTURE_USER_H

#include "random.h"

#include <QBasicTimer>
#include <QEvent>
#include <QObject>
#include <QPoint>

#include <functional>
#include <utility>

class QWidget;

namespace torture {

/// Somebody at the mouse and the keyboard who does anything to whatever window is in reach. What he does goes the way
/// of real events, by windows: what is behind a modal dialog doesn't get it.
class User
{
public:
    /// One press, release, movement, turn of the wheel, key or closed window.
    void act(Random &random);
    /// Puts away the window in front, as somebody does who wants to be done. False if there is none but the main one.
    bool dismiss();

private:
    void useMouse(QWidget &window, Random &random);
    void turnWheel(QWidget &window, Random &random);
    void sendMouse(QWidget &window, QEvent::Type type, Qt::MouseButton button);
    static void typeKey(Random &random);

    QPoint m_place;
    Qt::MouseButtons m_pressed = Qt::NoButton;
    int m_time = 0;
};

/// While one lives, event loops that are begun end by themselves: from inside them, after some rounds of `meanwhile`,
/// modal windows are put away.
class LoopEnder : public QObject
{
public:
    explicit LoopEnder(std::function<void()> meanwhile) : m_meanwhile(std::move(meanwhile)) { m_timer.start(0, this); }

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    const std::function<void()> m_meanwhile;
    QBasicTimer m_timer;
    int m_ticks = 0;
};

} // namespace torture

#endif
