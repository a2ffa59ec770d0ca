// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_TEXTFIELD_H
#define ZELGUI_WIDGETS_TEXTFIELD_H

#include <zelgui/zelgui.h>

#include <QLineEdit>

namespace orvane::zelgui {

/// A line of text whose add-on may reject what the user has typed.
///
/// Every Return or Enter and every loss of the keyboard focus is reported, exactly once each. Where the toolkit would
/// say so, it keeps silent about a text that was not changed since, even if the add-on has rejected it, and about
/// Return in a spin box; so the field watches its own focus, and reports by returnPressed().
///
/// What is dropped into a field without the focus is reported as well.
///
/// A rejected text is selected and gets the focus back. It still is what the field holds: only the user changes it.
class ZelGUITextField : public QLineEdit
{
    Q_OBJECT

public:
    /// Position and size are in font units.
    ZelGUITextField(QWidget *parent, int x, int y, int width, int height, ZelGUITextCallback callback);
    /// To become the inner field of a spin box, which will own it.
    explicit ZelGUITextField(ZelGUITextCallback callback);

    /// For a key that has been handled: a rejected text can't be left by way of the dialog's default button either.
    void keepReturnIfRejected(QKeyEvent *event);

protected:
    void showEvent(QShowEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private Q_SLOTS:
    void editingFinished();

private:
    void watchEditing();
    void watchCorrection();
    bool canHaveFocus() const;
    bool isLossToReport(const QFocusEvent &event) const;
    void reportLate();

    ZelGUITextCallback m_callback;
    /// Whether the focus came since the last loss: opening a combo box takes it from the field twice.
    bool m_hasFocusToLose = false;
    bool m_isReporting = false;
    /// Whether the add-on has rejected the text as it is now, since the field was shown.
    bool m_isRejected = false;
    QMetaObject::Connection m_correction;
};

} // namespace orvane::zelgui

#endif
