// SPDX-License-Identifier: MIT
#ifndef ZELGUI_DIALOGS_DIALOG_H
#define ZELGUI_DIALOGS_DIALOG_H

#include <zelgui/zelgui.h>

#include <QDialog>

class QAbstractButton;
class QDialogButtonBox;
class QEventLoop;
class QPushButton;

namespace orvane::zelgui {

/// What an add-on wants to hear of; null for what it doesn't. Each but the first brings its button.
struct DialogCallbacks
{
    ZelGUIVoidCallback init;
    ZelGUIVoidCallback ok;
    ZelGUIVoidCallback apply;
    ZelGUIVoidCallback cancel;
    ZelGUIVoidCallback close;
    ZelGUIVoidCallback help;
};

/// A dialog of an add-on: content of fixed size, and below it a strip with a button box.
///
/// It closes only when the add-on asks for it. A drop asked for inside the dialog's own OK, Cancel or Close callback
/// waits until that callback has returned; the dialog's result then tells which of them it was.
class ZelGUIDialog : public QDialog
{
    Q_OBJECT

public:
    /// Width and height are those of the content, in font units. The dialog is modal unless it has a Close callback.
    ZelGUIDialog(QWidget *parent, int width, int height, const QString &title, const DialogCallbacks &callbacks);
    ~ZelGUIDialog() override;

    /// Adds a button to the box. Only the one added last reports.
    void addExtraButton(const QString &label, bool isDefault, ZelGUIVoidCallback callback);

    /// Calls the init callback and shows the dialog; if it is modal, returns when it is hidden again. By then, it may
    /// not exist any more. Inside the init callback a launch of the same dialog does nothing: it is under way.
    void launch();
    /// Hides the dialog, now or after the callback that is to be waited for.
    void drop();

    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private Q_SLOTS:
    void dialogButtonBoxClicked(QAbstractButton *button);
    void dialogButtonBoxHelpRequested();
    void accept() override;
    void reject() override;

private:
    enum class PendingRequest { None, Launch, Drop };
    class CallbackScope;

    void addButtonBox();
    void runModal();
    bool isDropRequestedBy(ZelGUIVoidCallback callback);
    ZelGUIVoidCallback leaveCallback() const { return m_callbacks.cancel ? m_callbacks.cancel : m_callbacks.close; }

    DialogCallbacks m_callbacks;
    ZelGUIVoidCallback m_extraButtonCallback = nullptr;
    QDialogButtonBox *m_buttonBox = nullptr;
    QPushButton *m_extraButton = nullptr;
    /// In pixels: of the content, then with the button strip.
    int m_width = 0;
    int m_height = 0;
    /// Whether a launch has come as far as the init callback.
    bool m_inInit = false;
    bool m_inCallback = false;
    PendingRequest m_pendingRequest = PendingRequest::None;
    bool m_inExec = false;
    QEventLoop *m_relaunchLoop = nullptr;
};

} // namespace orvane::zelgui

#endif
