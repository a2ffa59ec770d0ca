// SPDX-License-Identifier: MIT
#include "dialogtour.h"

#include "messages.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace {

const int PollMilliseconds = 20;

/// The buttons that may end a dialog, the likeliest first.
QList<QAbstractButton *> endingButtons(const QDialog *dialog)
{
    QList<QAbstractButton *> result;
    const auto *box = dialog->findChild<QDialogButtonBox *>();
    if (!box)
        return result;
    for (const auto standard : {QDialogButtonBox::Ok, QDialogButtonBox::Close, QDialogButtonBox::Cancel}) {
        if (QPushButton *button = box->button(standard))
            result.append(button);
    }
    const QList<QAbstractButton *> buttons = box->buttons();
    if (!buttons.isEmpty() && !result.contains(buttons.constFirst()))
        result.append(buttons.constFirst());
    return result;
}

} // namespace

DialogTour::DialogTour(Visitor visitor, double timeoutSeconds)
    : m_visitor(std::move(visitor)), m_watchdog(timeoutSeconds)
{}

int DialogTour::run(const std::vector<orvane::host::AddOn> &entries)
{
    // Only the tour knows when the last dialog is closed.
    QApplication::setQuitOnLastWindowClosed(false);
    m_entries = entries;
    qApp->installEventFilter(this);
    m_poll.start(PollMilliseconds, this);
    QMetaObject::invokeMethod(this, &DialogTour::launchNext, Qt::QueuedConnection);
    QCoreApplication::exec();
    m_poll.stop();
    qApp->removeEventFilter(this);
    if (m_index < m_entries.size()) {
        complain(QStringLiteral("\"%1\" has ended the program").arg(QString::fromStdString(m_entries[m_index].name)));
        m_failed = true;
    }
    return m_failed ? 1 : 0;
}

bool DialogTour::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show && event->type() != QEvent::Paint)
        return false;
    auto *dialog = qobject_cast<QDialog *>(watched);
    if (!dialog || !dialog->isWindow())
        return false;
    Shown *shown = find(dialog);
    if (!shown) {
        m_shown.emplace_back();
        shown = &m_shown.back();
        shown->dialog = dialog;
    }
    if (event->type() == QEvent::Paint)
        shown->painted = true;
    return false;
}

void DialogTour::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_poll.timerId() || !m_entryActive)
        return;
    const auto gone = [](const Shown &shown) { return !shown.dialog || !shown.dialog->isVisible(); };
    m_shown.erase(std::remove_if(m_shown.begin(), m_shown.end(), gone), m_shown.end());
    if (m_shown.empty()) {
        // An add-on may show its dialog only after its function has returned, as soon as events are processed.
        m_quietPolls = m_launching ? 0 : m_quietPolls + 1;
        if (m_quietPolls > 1)
            finishEntry();
        return;
    }
    m_quietPolls = 0;

    // The entry's dialog is its first one; what lies on top of it is a message.
    if (!m_visited && m_shown.front().painted)
        visit(m_shown.front().dialog);
    const Shown &top = m_shown.back();
    if (!top.painted || top.closing)
        return;
    // Not from within the poll: closing may run an event loop of its own, in which the poll has to go on.
    const QPointer<QDialog> dialog = top.dialog;
    QMetaObject::invokeMethod(
        this,
        [this, dialog] {
            if (dialog)
                close(dialog);
        },
        Qt::QueuedConnection);
}

void DialogTour::launchNext()
{
    if (m_index == m_entries.size()) {
        QCoreApplication::quit();
        return;
    }
    const orvane::host::AddOn &entry = m_entries[m_index];
    m_watchdog.watch(entry.name);
    m_shown.clear();
    m_visited = false;
    m_quietPolls = 0;
    m_entryActive = true;
    m_launching = true;
    entry.launch();
    m_launching = false;
}

void DialogTour::finishEntry()
{
    m_watchdog.rest();
    m_entryActive = false;
    if (!m_visited) {
        complain(QStringLiteral("\"%1\" has not shown a dialog").arg(QString::fromStdString(m_entries[m_index].name)));
        m_failed = true;
    }
    ++m_index;
    QMetaObject::invokeMethod(this, &DialogTour::launchNext, Qt::QueuedConnection);
}

DialogTour::Shown *DialogTour::find(const QDialog *dialog)
{
    const auto found =
        std::find_if(m_shown.begin(), m_shown.end(), [dialog](const Shown &shown) { return shown.dialog == dialog; });
    return found == m_shown.end() ? nullptr : &*found;
}

void DialogTour::visit(QDialog *dialog)
{
    m_visited = true;
    if (!m_visitor(QString::fromStdString(m_entries[m_index].name), *dialog))
        m_failed = true;
}

void DialogTour::close(QDialog *dialog)
{
    Shown *shown = find(dialog);
    if (!shown || shown->closing)
        return;
    const QPointer<QDialog> watched = dialog;
    shown->closing = true;
    const QList<QAbstractButton *> buttons = endingButtons(dialog);
    const auto attempt = shown->attempts++ % (buttons.size() + 1);
    // The dialog may be gone after this, and so may what `shown` points to.
    if (attempt == 0)
        dialog->close();
    else
        buttons[attempt - 1]->click();
    shown = find(watched);
    if (watched && shown)
        shown->closing = false;
}
