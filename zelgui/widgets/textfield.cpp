// SPDX-License-Identifier: MIT
#include "widgets/textfield.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"
#include "widgets/fieldvalue.h"
#include "widgets/focusloss.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMenuBar>
#include <QScopedValueRollback>

namespace orvane::zelgui {

namespace {

/// While one field takes the focus back, the one that was about to get it has nothing to report.
bool isFocusTakenBack = false;

} // namespace

ZelGUITextField::ZelGUITextField(QWidget *parent, int x, int y, int width, int height, ZelGUITextCallback callback)
    : QLineEdit(parent), m_callback(callback)
{
    placeWidget(this, x, y, width, height);
    watchEditing();
}

ZelGUITextField::ZelGUITextField(ZelGUITextCallback callback) : m_callback(callback)
{
    watchEditing();
}

void ZelGUITextField::watchEditing()
{
    connect(this, &QLineEdit::returnPressed, this, &ZelGUITextField::editingFinished);
}

void ZelGUITextField::watchCorrection()
{
    // Only now: most fields never see a text rejected, and are set far more often.
    m_correction = connect(this, &QLineEdit::textChanged, this, [this] {
        m_isRejected = false;
        disconnect(m_correction);
    });
}

void ZelGUITextField::editingFinished()
{
    // By Return, or late: another report of this field may be running by now.
    if (m_isReporting || isFocusTakenBack || ZelGUIWidgetRepository::instance()->callbacksSuppressed())
        return;
    const QPointer<ZelGUITextField> guard(this);
    m_isReporting = true;
    const bool isAccepted = askWhetherAccepted(this, m_callback, text());
    if (!guard)
        return;
    m_isReporting = false;
    m_isRejected = !isAccepted;
    if (m_isRejected && !m_correction)
        watchCorrection();
    // What is out of the user's reach can't be corrected.
    if (isAccepted || !canHaveFocus())
        return;
    const QScopedValueRollback<bool> takingBack(isFocusTakenBack, true);
    selectAll();
    setFocus(Qt::MouseFocusReason);
}

bool ZelGUITextField::canHaveFocus() const
{
    // A spin box is disabled before the field inside it.
    const QWidget *const focused = focusProxy() ? focusProxy() : this;
    return isVisible() && focused->isEnabled();
}

bool ZelGUITextField::isLossToReport(const QFocusEvent &event) const
{
    // The callback may show a message, which takes the focus from the very field that it is about.
    if (!m_hasFocusToLose || m_isReporting || isFocusTakenBack)
        return false;
    // With its dialog, the field is simply gone; with a page, what was typed is still to be looked at.
    if (window()->isHidden())
        return false;
    const bool isPopup = event.reason() == Qt::PopupFocusReason;
    // A rejected text needs no second report when the focus is only lent: it will be back.
    if (m_isRejected && (isPopup || event.reason() == Qt::ActiveWindowFocusReason))
        return false;
    const QWidget *const popup = QApplication::activePopupWidget();
    return !isPopup || !popup || popup->parentWidget() != this;
}

void ZelGUITextField::showEvent(QShowEvent *event)
{
    m_isRejected = false;
    QLineEdit::showEvent(event);
}

void ZelGUITextField::focusInEvent(QFocusEvent *event)
{
    m_hasFocusToLose = true;
    QLineEdit::focusInEvent(event);
}

void ZelGUITextField::focusOutEvent(QFocusEvent *event)
{
    const bool isToReport = isLossToReport(*event);
    m_hasFocusToLose = false;
    const Qt::FocusReason reason = event->reason();
    QLineEdit::focusOutEvent(event);
    if (!isToReport)
        return;
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
        ZelGUIWidgetRepository::instance()->callbacksSuppressed()) {
        new LateReport(this, [this] { reportLate(); });
        return;
    }
    const InterruptedClick click(reason);
    editingFinished();
}

void ZelGUITextField::reportLate()
{
    // With its dialog, the field is simply gone.
    if (window()->isHidden())
        return;
    const QPointer<ZelGUITextField> guard(this);
    editingFinished();
    if (!guard || !qobject_cast<QMenuBar *>(window()->focusWidget()))
        return;
    // A menu bar would keep the focus, and Escape, when its menu has been closed by a message, or when what it would
    // give the focus back to can't have it any more.
    if (!canHaveFocus())
        focusNextChild();
    else if (!QApplication::activePopupWidget())
        setFocus(Qt::MenuBarFocusReason);
}

void ZelGUITextField::keyPressEvent(QKeyEvent *event)
{
    const QPointer<ZelGUITextField> guard(this);
    QLineEdit::keyPressEvent(event);
    if (guard)
        keepReturnIfRejected(event);
}

void ZelGUITextField::dropEvent(QDropEvent *event)
{
    const QString before = text();
    QLineEdit::dropEvent(event);
    // With the focus, the field will report when it loses it.
    if (!hasFocus() && text() != before)
        new LateReport(this, [this] { reportLate(); });
}

void ZelGUITextField::keepReturnIfRejected(QKeyEvent *event)
{
    if (m_isRejected && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        event->accept();
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUITextFieldAdd(int parentId, int x, int y, int width, int height, ZelGUITextCallback callback)
{
    // The odd one out: 0 without a GUI, but no identifier for a parent that doesn't exist.
    return withGui(0, [=] { return addWidgetTo<ZelGUITextField>(parentId, x, y, width, height, callback); });
}

char *ZelGUITextFieldGetString(int fieldId)
{
    return withLineEdit(fieldId, static_cast<char *>(nullptr),
                        [](const QLineEdit &field) { return allocHostString(field.text()); });
}

void ZelGUITextFieldSetString(int fieldId, const char *text)
{
    withLineEdit(fieldId, false, [text](QLineEdit &field) { return writeText(field, fromUtf8(text)); });
}

ZelBoolean ZelGUITextFieldGetDouble(int fieldId, double *value)
{
    return withLineEdit(fieldId, ZelBoolean{0},
                        [value](const QLineEdit &field) -> ZelBoolean { return handOut(readDouble(field), value); });
}

void ZelGUITextFieldSetDouble(int fieldId, double value, const char *format)
{
    withLineEdit(fieldId, false, [=](QLineEdit &field) { return writeDouble(field, value, format); });
}

ZelBoolean ZelGUITextFieldGetLgIndex(int fieldId, LgIndex *value)
{
    return withLineEdit(fieldId, ZelBoolean{0},
                        [value](const QLineEdit &field) -> ZelBoolean { return handOut(readLgIndex(field), value); });
}

void ZelGUITextFieldSetLgIndex(int fieldId, LgIndex value, ZelBoolean displayAsMX)
{
    withLineEdit(fieldId, false, [=](QLineEdit &field) { return writeLgIndex(field, value, displayAsMX != 0); });
}
