// SPDX-License-Identifier: MIT
#include "player.h"

#include "../exitcodes.h"
#include "../messages.h"

#include <QAbstractButton>
#include <QApplication>
#include <QThread>
#include <QTimerEvent>

#include <algorithm>

namespace {

const int PollMilliseconds = 10;
/// A window has to be found ready so often before a step uses it.
const int NeededQuietPolls = 2;
/// After so many polls without activation, the player activates the window itself: some platforms don't, after a popup
/// or a modal dialog has closed.
const int PollsBeforeActivation = 5;
const int PollsWithoutActivation = 200;
const double UsualPatienceSeconds = 3.0;

int runningEventLoops()
{
    return QThread::currentThread()->loopLevel();
}

/// A key that stands for a button presses it for a moment before it counts.
bool isButtonDown(const QWidget &window)
{
    const auto buttons = window.findChildren<QAbstractButton *>();
    return std::any_of(buttons.begin(), buttons.end(), [](const QAbstractButton *button) { return button->isDown(); });
}

double secondsSince(const QElapsedTimer &start)
{
    return static_cast<double>(start.elapsed()) / 1000.0;
}

} // namespace

Player::Player(const QString &file, std::vector<Step> steps, Stage stage, double timeoutSeconds)
    : m_file(file),
      m_steps(std::move(steps)),
      m_stage(std::move(stage)),
      m_watchdog(timeoutSeconds),
      m_patienceSeconds(UsualPatienceSeconds)
{
    m_stage.windows->onChange([this] { windowsChanged(); });
}

int Player::run()
{
    // A script may go on after the last dialog is closed.
    QApplication::setQuitOnLastWindowClosed(false);
    watch();
    m_poll.start(PollMilliseconds, this);
    QCoreApplication::exec();
    m_poll.stop();
    if (!m_hasEnded) {
        const QString step = m_next < m_steps.size() ? m_steps[m_next].source : QStringLiteral("the end");
        complain(QStringLiteral("%1: the program was ended before the script has come to: %2").arg(m_file, step));
        m_exitCode = Failure;
    }
    m_watchdog.rest();
    return m_exitCode;
}

void Player::windowsChanged()
{
    QWidget *const top = m_stage.windows->top();
    if (m_stage.isLaunching && top && !isMessage(*top)) {
        m_stage.expect(top);
        m_stage.isLaunching = false;
    }
    remark();
}

void Player::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_poll.timerId() || m_hasEnded)
        return;
    if (isBusy())
        return;
    // Who has pressed a button that opened a message lets it go then.
    m_stage.hands.release();
    if (m_isQueued || !isSettled())
        return;
    m_isQueued = true;
    // Not from within the poll, which would rest until the step returns.
    QMetaObject::invokeMethod(this, &Player::goOn, Qt::QueuedConnection);
}

void Player::goOn()
{
    m_isQueued = false;
    if (isBusy() || m_hasEnded)
        return;
    if (m_next < m_steps.size())
        doNextStep();
    else
        finish();
}

bool Player::isBusy() const
{
    // Sending events processes others. Only where the step has started an event loop, such as that of a modal dialog,
    // is it over for the user.
    return m_isActing && runningEventLoops() <= m_actingLoops;
}

bool Player::isSettled()
{
    QWidget *const top = m_stage.windows->top();
    if (top != m_lastTop) {
        m_lastTop = top;
        m_quietPolls = 0;
    }
    ++m_quietPolls;
    const bool isActive = !top || top->isActiveWindow() || QApplication::activePopupWidget();
    const bool isReady = isActive && !(top && isButtonDown(*top));
    if (isReady)
        return m_quietPolls >= NeededQuietPolls;
    if (!isActive && m_quietPolls == PollsBeforeActivation)
        top->activateWindow();
    // Where windows are never activated, events reach them all the same.
    return m_quietPolls > PollsWithoutActivation;
}

void Player::doNextStep()
{
    m_quietPolls = 0;
    const Step &step = m_steps[m_next];
    if (!m_waiting.isValid())
        m_waiting.start();
    if (step.action != Action::Patience && step.action != Action::Wait) {
        attempt(step);
        return;
    }
    const double seconds = step.words[0].text.toDouble();
    if (step.action == Action::Patience)
        m_patienceSeconds = seconds;
    ++m_next;
    // Also while it lasts: a wait may be longer than a step may take.
    watch();
    if (step.action == Action::Wait && secondsSince(m_waiting) < seconds)
        --m_next;
    else
        m_waiting.invalidate();
}

void Player::attempt(const Step &step)
{
    const bool wasActing = m_isActing;
    const int actingLoopsBefore = m_actingLoops;
    const std::size_t index = m_next++;
    const QElapsedTimer waiting = m_waiting;
    m_waiting.invalidate();
    m_isActing = true;
    m_actingLoops = runningEventLoops();
    watch();
    const QString failure = perform(m_stage, step);
    m_isActing = wasActing;
    m_actingLoops = actingLoopsBefore;
    if (failure.isEmpty()) {
        watch();
        return;
    }
    m_next = index;
    m_waiting = waiting;
    if (secondsSince(m_waiting) >= m_patienceSeconds) {
        complain(QStringLiteral("%1:%2: %3: %4").arg(m_file, QString::number(step.line), step.source, failure));
        end(StepFailed);
    }
}

void Player::finish()
{
    for (const QWidget *const window : m_stage.windows->all()) {
        if (isMessage(*window) && !m_stage.isExpected(window)) {
            complain(QStringLiteral("%1: at the end, %2 is up, which no step has expected")
                         .arg(m_file, describeWindow(*window)));
            end(StepFailed);
            return;
        }
    }
    end(Success);
}

void Player::end(int exitCode)
{
    m_hasEnded = true;
    m_exitCode = exitCode;
    // An add-on may hold on to the event loops of its dialogs.
    m_watchdog.watch(m_file.toStdString(), exitCode == Success ? Failure : exitCode);
    // Not quit(), which would first ask the dialogs to close.
    QCoreApplication::exit();
}

void Player::watch()
{
    QString what = m_file;
    if (m_next > 0)
        what += QStringLiteral(":%1: %2").arg(QString::number(m_steps[m_next - 1].line), m_steps[m_next - 1].source);
    m_watchdog.watch(what.toStdString());
    remark();
}

void Player::remark()
{
    QStringList up;
    for (const QWidget *const window : m_stage.windows->all())
        up.append(describeWindow(*window));
    const QString text = up.isEmpty() ? QStringLiteral("; no dialog is up")
                                      : QStringLiteral("; there is ") + up.join(QLatin1String(" and "));
    m_watchdog.remark(text.toStdString());
}
