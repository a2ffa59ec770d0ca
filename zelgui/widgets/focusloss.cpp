// SPDX-License-Identifier: MIT
#include "widgets/focusloss.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QEvent>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace orvane::zelgui {

namespace {

std::vector<QPointer<LateReport>> &waitingReports()
{
    // Never deleted: reports may be destroyed while the process ends.
    static auto *const reports = new std::vector<QPointer<LateReport>>;
    return *reports;
}

bool isPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
}

bool isInput(QEvent::Type type)
{
    // Not QEvent::Close: a popup that is being closed can't be closed again, which a message would wait for.
    static constexpr QEvent::Type kTypes[] = {
        QEvent::ShortcutOverride,   QEvent::KeyPress, QEvent::KeyRelease,  QEvent::MouseButtonPress,
        QEvent::MouseButtonRelease, QEvent::Wheel,    QEvent::ContextMenu, QEvent::MouseButtonDblClick,
    };
    return std::find(std::begin(kTypes), std::end(kTypes), type) != std::end(kTypes);
}

bool areReleased(Qt::MouseButtons buttons)
{
    return (QGuiApplication::mouseButtons() & buttons) != buttons;
}

/// Deletes an object in the next pass of any event loop. deleteLater() would wait for the end of a loop that begins
/// before that, such as a dialog's.
void deleteInNextPass(QObject *object)
{
    const auto act = [guard = QPointer<QObject>(object)] { delete guard; };
    QMetaObject::invokeMethod(qApp, act, Qt::QueuedConnection);
}

bool leavesDialogAsIs(QAbstractButton &button)
{
    auto *const box = qobject_cast<QDialogButtonBox *>(button.parentWidget());
    return box && box->buttonRole(&button) == QDialogButtonBox::RejectRole;
}

/// Keeps back the one press that the toolkit is about to deliver in a window.
class StalePress : public QObject
{
public:
    explicit StalePress(QWidget *window) : QObject(window), m_window(window)
    {
        qApp->installEventFilter(this);
        // If the press never comes.
        deleteLater();
    }
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        const auto *const widget = isPress(event->type()) ? qobject_cast<QWidget *>(receiver) : nullptr;
        if (!widget || widget->window() != m_window)
            return false;
        qApp->removeEventFilter(this);
        return true;
    }

private:
    QWidget *const m_window;
};

} // namespace

LateReport::LateReport(QObject *parent, std::function<void()> report) : QObject(parent), m_report(std::move(report))
{
    waitingReports().emplace_back(this);
    qApp->installEventFilter(this);
    QMetaObject::invokeMethod(this, &LateReport::make, Qt::QueuedConnection);
}

LateReport::~LateReport()
{
    auto &reports = waitingReports();
    reports.erase(std::remove(reports.begin(), reports.end(), this), reports.end());
}

void LateReport::makeAll()
{
    const auto reports = waitingReports();
    for (const QPointer<LateReport> &report : reports) {
        if (report)
            report->make();
    }
}

bool LateReport::eventFilter(QObject *receiver, QEvent *event)
{
    if (!isInput(event->type()))
        return false;
    if (m_isInputLost)
        return true;
    const QPointer<LateReport> guard(this);
    const QPointer<QObject> receiverGuard(receiver);
    const QPointer<QWidget> popup = QApplication::activePopupWidget();
    const bool isForPopup = popup;
    const Qt::MouseButtons pressed = QGuiApplication::mouseButtons();
    make();
    const bool isLost = isForPopup && (!popup || popup != QApplication::activePopupWidget());
    if (guard)
        m_isInputLost = isLost;
    return isLost || !receiverGuard || (isPress(event->type()) && areReleased(pressed));
}

void LateReport::make()
{
    if (!m_report)
        return;
    const QPointer<LateReport> guard(this);
    // Anything may happen in the callback, even to this object.
    std::exchange(m_report, nullptr)();
    if (guard)
        deleteInNextPass(this);
}

InterruptedClick::InterruptedClick(Qt::FocusReason reason)
    : m_pressedWidget(reason == Qt::MouseFocusReason ? QApplication::focusWidget() : nullptr),
      m_pressed(reason == Qt::MouseFocusReason ? QGuiApplication::mouseButtons() : Qt::NoButton)
{}

InterruptedClick::~InterruptedClick()
{
    if (!areReleased(m_pressed) || !m_pressedWidget)
        return;
    new StalePress(m_pressedWidget->window());
    auto *const button = qobject_cast<QAbstractButton *>(m_pressedWidget);
    if (!button || !leavesDialogAsIs(*button))
        return;
    const auto click = [button] {
        if (button->isVisible())
            button->click();
    };
    QMetaObject::invokeMethod(button, click, Qt::QueuedConnection);
}

} // namespace orvane::zelgui
