// SPDX-License-Identifier: MIT
#include "dialogs/dialog.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <common_ui_qt/mainwindow.h>
#include <zvsdkdialogs_common_qt/qtdialogabstract.h>

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QPushButton>

#include <algorithm>

namespace orvane::zelgui {

namespace {

/// A title bar with the system menu and the close button, and no other.
constexpr Qt::WindowFlags kDialogWindowFlags =
    Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

/// Pixels around the button box and beside the content.
constexpr int kBoxMargin = 6;
constexpr int kFrameWidth = 8;

/// A longer one would make a request to an X server that ends the connection, and with it the host.
constexpr int kLongestTitle = 32767;

QString windowTitle(const char *title)
{
    const QString text = fromUtf8(title).left(kLongestTitle);
    const bool endsInsideCharacter = !text.isEmpty() && text.back().isHighSurrogate();
    return endsInsideCharacter ? text.chopped(1) : text;
}

} // namespace

/// Marks the time in which a drop has to wait. The request survives the scope, for its owner to read.
class ZelGUIDialog::CallbackScope
{
public:
    explicit CallbackScope(ZelGUIDialog *dialog) : m_dialog(dialog)
    {
        dialog->m_pendingRequest = PendingRequest::None;
        dialog->m_inCallback = true;
    }
    ~CallbackScope()
    {
        if (m_dialog)
            m_dialog->m_inCallback = false;
    }
    CallbackScope(const CallbackScope &) = delete;
    CallbackScope &operator=(const CallbackScope &) = delete;

private:
    QPointer<ZelGUIDialog> m_dialog;
};

ZelGUIDialog::ZelGUIDialog(QWidget *parent, int width, int height, const QString &title,
                           const DialogCallbacks &callbacks)
    : QDialog(parent, kDialogWindowFlags), m_callbacks(callbacks)
{
    outliveParentDuringCallbacks(this);
    setModal(!callbacks.close);
    setWindowTitle(title);
    placeWidget(this, 0, 0, width, height);
    m_width = geometry().width();
    m_height = geometry().height();
    addButtonBox();
    setFixedSize(m_width + kFrameWidth, m_height);
}

ZelGUIDialog::~ZelGUIDialog()
{
    depart(this);
}

void ZelGUIDialog::addButtonBox()
{
    m_buttonBox = new QDialogButtonBox(this);
    const std::pair<ZelGUIVoidCallback, QDialogButtonBox::StandardButton> buttons[] = {
        {m_callbacks.help, QDialogButtonBox::Help},   {m_callbacks.cancel, QDialogButtonBox::Cancel},
        {m_callbacks.close, QDialogButtonBox::Close}, {m_callbacks.ok, QDialogButtonBox::Ok},
        {m_callbacks.apply, QDialogButtonBox::Apply},
    };
    for (const auto &[callback, button] : buttons) {
        if (callback)
            m_buttonBox->addButton(button);
    }
    dialogs::common::QtDialogAbstract::setDefaultButton(m_buttonBox, nullptr);

    m_buttonBox->setFixedWidth(std::max(0, m_width - 2 * kBoxMargin));
    m_buttonBox->move(kBoxMargin, m_height + kBoxMargin);
    m_height += m_buttonBox->sizeHint().height() + 2 * kBoxMargin;

    connect(m_buttonBox, &QDialogButtonBox::clicked, this, &ZelGUIDialog::dialogButtonBoxClicked);
    connect(m_buttonBox, &QDialogButtonBox::accepted, this, &ZelGUIDialog::accept);
    connect(m_buttonBox, &QDialogButtonBox::rejected, this, &ZelGUIDialog::reject);
    connect(m_buttonBox, &QDialogButtonBox::helpRequested, this, &ZelGUIDialog::dialogButtonBoxHelpRequested);
    for (QAbstractButton *const button : m_buttonBox->buttons())
        button->setFocusPolicy(Qt::StrongFocus);
}

void ZelGUIDialog::addExtraButton(const QString &label, bool isDefault, ZelGUIVoidCallback callback)
{
    m_extraButton = new QPushButton(label);
    m_extraButton->setFocusPolicy(Qt::StrongFocus);
    m_extraButtonCallback = callback;
    m_buttonBox->addButton(m_extraButton, QDialogButtonBox::ResetRole);
    if (!isDefault)
        return;
    for (QAbstractButton *const other : m_buttonBox->buttons()) {
        if (auto *const button = qobject_cast<QPushButton *>(other)) {
            button->setAutoDefault(false);
            button->setDefault(false);
        }
    }
    m_extraButton->setAutoDefault(true);
    m_extraButton->setDefault(true);
}

void ZelGUIDialog::launch()
{
    if (m_inInit)
        return;
    const QPointer<ZelGUIDialog> guard(this);
    m_inInit = true;
    report(this, m_callbacks.init);
    if (!guard)
        return;
    m_inInit = false;
    if (isDeparting(this))
        return;
    if (m_inCallback) {
        m_pendingRequest = PendingRequest::Launch;
    } else if (windowModality() != Qt::NonModal) {
        runModal();
    } else {
        show();
        raise();
        activateWindow();
    }
}

void ZelGUIDialog::runModal()
{
    const QPointer<ZelGUIDialog> guard(this);
    if (!m_inExec) {
        m_inExec = true;
        exec();
        if (guard)
            m_inExec = false;
    } else if (!isVisible()) {
        // Dropped already, but exec() can't return before the loop of a dialog further in does, and the toolkit
        // refuses to start it twice.
        QEventLoop loop;
        m_relaunchLoop = &loop;
        show();
        loop.exec(QEventLoop::DialogExec);
        if (guard)
            m_relaunchLoop = nullptr;
    }
}

void ZelGUIDialog::setVisible(bool visible)
{
    QDialog::setVisible(visible);
    if (!visible && m_relaunchLoop)
        m_relaunchLoop->quit();
}

void ZelGUIDialog::drop()
{
    if (m_inCallback)
        m_pendingRequest = PendingRequest::Drop;
    else
        done(Accepted);
}

bool ZelGUIDialog::isDropRequestedBy(ZelGUIVoidCallback callback)
{
    const QPointer<ZelGUIDialog> guard(this);
    {
        const CallbackScope scope(this);
        report(this, callback);
    }
    return guard && !isDeparting(this) && m_pendingRequest == PendingRequest::Drop;
}

void ZelGUIDialog::accept()
{
    if (isDropRequestedBy(m_callbacks.ok))
        QDialog::accept();
}

void ZelGUIDialog::reject()
{
    if (isDropRequestedBy(leaveCallback()))
        QDialog::reject();
}

void ZelGUIDialog::closeEvent(QCloseEvent *event)
{
    event->setAccepted(isDropRequestedBy(leaveCallback()));
}

/// No menu: over a menu bar the toolkit would offer a "What's This?" that nobody has written. It runs a loop for that,
/// which never ends if the menu is hidden while it is being shown.
void ZelGUIDialog::contextMenuEvent(QContextMenuEvent *event)
{
    event->ignore();
}

void ZelGUIDialog::dialogButtonBoxClicked(QAbstractButton *button)
{
    if (m_buttonBox->standardButton(button) == QDialogButtonBox::Apply)
        report(this, m_callbacks.apply);
    else if (button == m_extraButton)
        report(this, m_extraButtonCallback);
}

void ZelGUIDialog::dialogButtonBoxHelpRequested()
{
    report(this, m_callbacks.help);
}

namespace {

int createDialog(int parentId, int width, int height, const char *title, const DialogCallbacks &callbacks)
{
    return withGui(kInvalidWidgetId, [&] {
        auto *const repository = ZelGUIWidgetRepository::instance();
        QWidget *const parent =
            parentId == kMainWindowParentId ? ui::findMainWindow(false) : repository->widgetAs<QWidget>(parentId);
        return parent ? repository->addWidget(new ZelGUIDialog(parent, width, height, windowTitle(title), callbacks))
                      : kInvalidWidgetId;
    });
}

} // namespace

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIDialogCreateModal(int parentDialogId, int width, int height, const char *title,
                            ZelGUIVoidCallback initCallback, ZelGUIVoidCallback okCallback,
                            ZelGUIVoidCallback applyCallback, ZelGUIVoidCallback cancelCallback,
                            ZelGUIVoidCallback helpCallback)
{
    return createDialog(parentDialogId, width, height, title,
                        {initCallback, okCallback, applyCallback, cancelCallback, nullptr, helpCallback});
}

int ZelGUIDialogCreateModeless(int parentDialogId, int width, int height, const char *title,
                               ZelGUIVoidCallback initCallback, ZelGUIVoidCallback closeCallback,
                               ZelGUIVoidCallback helpCallback)
{
    return createDialog(parentDialogId, width, height, title,
                        {initCallback, nullptr, nullptr, nullptr, closeCallback, helpCallback});
}

void ZelGUIDialogAddButtonToButtonBox(int dialogId, const char *label, ZelBoolean isDefault,
                                      ZelGUIVoidCallback callback)
{
    withWidget<ZelGUIDialog>(
        dialogId, [&](ZelGUIDialog &dialog) { dialog.addExtraButton(fromLatin1(label), isDefault == 1, callback); });
}

void ZelGUIDialogLaunch(int dialogId)
{
    withWidget<ZelGUIDialog>(dialogId, [](ZelGUIDialog &dialog) {
        // Asked for at each launch: the host may have gone into batch mode since the dialog was made.
        if (!ZelUtilMacroIsBatchModeActive())
            dialog.launch();
    });
}

void ZelGUIDialogDrop(int dialogId)
{
    withWidget<ZelGUIDialog>(dialogId, [](ZelGUIDialog &dialog) { dialog.drop(); });
}

ZelBoolean ZelGUIDialogIsUp(int dialogId)
{
    return behindWall(ZelBoolean{0}, [dialogId]() -> ZelBoolean {
        // Looked at before the repository, which would decide on the GUI for good if this were the first call.
        if (!QCoreApplication::instance() || ZelUtilMacroIsBatchModeActive() || !orvane::ui::findMainWindow(false))
            return 0;
        return withWidget<ZelGUIDialog>(dialogId, ZelBoolean{0},
                                        [](ZelGUIDialog &dialog) -> ZelBoolean { return dialog.isVisible(); });
    });
}

void ZelGUIDialogSetTitle(int dialogId, const char *title)
{
    withWidget<ZelGUIDialog>(dialogId, [&](ZelGUIDialog &dialog) { dialog.setWindowTitle(windowTitle(title)); });
}

void ZelGUIDialogSetPosition(int, int, int)
{
    behindWall(false, [] { return ZelGUIWidgetRepository::instance()->isGuiAvailable(); });
}
