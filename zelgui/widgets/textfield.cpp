// SPDX-License-Identifier: MIT
#include "widgets/textfield.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"
#include "util/setstring.h"
#include "widgets/fieldvalue.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QScopedValueRollback>

namespace orvane::zelgui {

namespace {

/// While one field takes the focus back, the one that was about to get it has nothing to report.
bool isFocusTakenBack = false;

bool leavesDialogAsIs(QAbstractButton *button)
{
    auto *const box = qobject_cast<QDialogButtonBox *>(button->parentWidget());
    return box && box->buttonRole(button) == QDialogButtonBox::RejectRole;
}

/// Watches a press of the mouse that takes the focus from a field, for a callback that shows a message meanwhile: the
/// release then goes to the message, and a button that gets the press only now would stay down. Cancel and Close must
/// be reachable with one click even if every message says that the field can't be left, so their click is completed.
class InterruptedClick
{
public:
    explicit InterruptedClick(Qt::FocusReason reason)
        : m_button(reason == Qt::MouseFocusReason ? qobject_cast<QAbstractButton *>(QApplication::focusWidget())
                                                  : nullptr),
          m_pressed(QGuiApplication::mouseButtons())
    {}

    ~InterruptedClick()
    {
        if (!m_button || (QGuiApplication::mouseButtons() & m_pressed) == m_pressed)
            return;
        // When the press has arrived.
        QMetaObject::invokeMethod(
            m_button,
            [button = m_button.data()] {
                if (leavesDialogAsIs(button))
                    button->click();
                else
                    button->setDown(false);
            },
            Qt::QueuedConnection);
    }
    InterruptedClick(const InterruptedClick &) = delete;
    InterruptedClick &operator=(const InterruptedClick &) = delete;

private:
    QPointer<QAbstractButton> m_button;
    Qt::MouseButtons m_pressed;
};

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
    connect(this, &QLineEdit::textChanged, this, [this] { m_isRejected = false; });
}

void ZelGUITextField::editingFinished()
{
    // The callback may show a message, which takes the focus from the very field that it is about.
    if (m_isReporting || isFocusTakenBack || ZelGUIWidgetRepository::instance()->callbacksSuppressed())
        return;
    const QPointer<ZelGUITextField> guard(this);
    m_isReporting = true;
    const bool isAccepted = askWhetherAccepted(this, m_callback, text());
    if (!guard)
        return;
    m_isReporting = false;
    m_isRejected = !isAccepted;
    if (isAccepted || !isVisible())
        return;
    const QScopedValueRollback<bool> takingBack(isFocusTakenBack, true);
    selectAll();
    setFocus(Qt::MouseFocusReason);
}

bool ZelGUITextField::isLossToReport(const QFocusEvent &event) const
{
    // With its dialog, the field goes from the user's sight; the window is hidden before what it contains.
    if (!m_hasFocusToLose || !isVisible() || window()->isHidden())
        return false;
    const bool isPopup = event.reason() == Qt::PopupFocusReason;
    // A rejected text needs no second report when the focus is only lent: it will be back.
    if (m_isRejected && (isPopup || event.reason() == Qt::ActiveWindowFocusReason))
        return false;
    const QWidget *const popup = QApplication::activePopupWidget();
    return !isPopup || !popup || popup->parentWidget() != this;
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
    const InterruptedClick click(reason);
    editingFinished();
}

void ZelGUITextField::keyPressEvent(QKeyEvent *event)
{
    const QPointer<ZelGUITextField> guard(this);
    QLineEdit::keyPressEvent(event);
    if (guard)
        keepReturnIfRejected(event);
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

ZelBoolean ZelGUITextFieldGetSet(int fieldId, IndexSet *set)
{
    return withWidget<QLineEdit>(fieldId, ZelBoolean{0}, [set](const QLineEdit &field) -> ZelBoolean {
        const QString text = field.text();
        IndexSet members = nullptr;
        const bool isSet = stringToSet(text.toUtf8().constData(), &members, text.contains(QLatin1Char('[')));
        if (set)
            *set = members;
        else
            ZelUtilSetDealloc(&members);
        return isSet;
    });
}

void ZelGUITextFieldSetSet(int fieldId, IndexSet set, ZelBoolean includeBrackets)
{
    withWidget<QLineEdit>(fieldId, [=](QLineEdit &field) {
        char *text = nullptr;
        setToString(set, includeBrackets != 0, &text);
        field.setText(fromLatin1(text));
        ZelUtilStringDealloc(&text);
    });
}
