// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_FOCUSLOSS_H
#define ZELGUI_WIDGETS_FOCUSLOSS_H

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <functional>

/// When an add-on hears that a field has lost the keyboard focus. Its callback may do anything: show a message, delete
/// the dialog, close a popup. The toolkit does not survive that everywhere, so it depends on what took the focus:
///
///     Tab, setFocus(), hiding   the field reports at once, in its focusOutEvent()
///     a press of the mouse      the same; InterruptedClick looks after the press that the toolkit delivers next
///     a popup that opens        LateReport: once the toolkit has opened the popup
///     another active window     LateReport: once the toolkit has made the other window active
///     a page that the add-on    LateReport: once the page is shown, before the add-on's call returns, since nothing is
///     turns                     reported while the library itself changes a widget
namespace orvane::zelgui {

/// Makes a report when the toolkit is done with what it is doing now: in the next pass of an event loop, or before the
/// next key or press of the mouse, if that comes first. The key or press is lost if it was for a popup that is gone
/// after the report, or if the mouse button was let go during it.
class LateReport : public QObject
{
public:
    /// `parent` is what the report is about: without it, there is none.
    LateReport(QObject *parent, std::function<void()> report);
    ~LateReport() override;

    /// Makes all reports that still wait. For a function that has just changed pages, when it is done with that.
    static void makeAll();

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    void make();

    std::function<void()> m_report;
    /// Until the next pass of an event loop.
    bool m_isInputLost = false;
};

/// Watches a press of the mouse that takes the focus from a field, for a callback that shows a message meanwhile. The
/// release then goes to the message. Whatever the toolkit gives the press to afterwards would stay pressed: a button,
/// an arrow that steps for ever, a list that opens. So that press is kept back. Cancel and Close are pressed in its
/// place: one click must reach them even if every message says that the field can't be left.
class InterruptedClick
{
public:
    explicit InterruptedClick(Qt::FocusReason reason);
    ~InterruptedClick();
    InterruptedClick(const InterruptedClick &) = delete;
    InterruptedClick &operator=(const InterruptedClick &) = delete;

private:
    QPointer<QWidget> m_pressedWidget;
    Qt::MouseButtons m_pressed;
};

} // namespace orvane::zelgui

#endif
