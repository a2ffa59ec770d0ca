// SPDX-License-Identifier: MIT
#include <common_ui_qt/mainwindow.h>
#include <zvsdkbase/boundary.h>
#include <zvsdkbase/zelutil.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QThread>

#include <cstdio>

namespace {

/// Where a message to the user belongs, or null where no user would see it.
QWidget *messageParent()
{
    const auto *application = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (!application || ZelUtilMacroIsBatchModeActive() || QThread::currentThread() != application->thread())
        return nullptr;
    QWidget *mainWindow = orvane::ui::findMainWindow(true);
    // An add-on's modal dialog would not let the user reach a message box of the main window.
    QWidget *modal = QApplication::activeModalWidget();
    return mainWindow && modal ? modal : mainWindow;
}

void showMessage(const QString &message, QWidget *parent)
{
    // On the heap and watched: the parent, and with it the box, may be destroyed while the box is open.
    const QPointer<QMessageBox> box = new QMessageBox(parent);
    box->setIcon(QMessageBox::Critical);
    box->setWindowTitle(QGuiApplication::applicationDisplayName());
    box->setTextFormat(Qt::PlainText);
    box->setText(message);
    box->setStandardButtons(QMessageBox::Ok);
    box->exec();
    delete box.data();
}

} // namespace

void ZelUtilDialogErrMsg(const char *message)
{
    if (!message || !*message)
        return;
    const bool shown = orvane::host::guarded(false, 0, [message] {
        QWidget *parent = messageParent();
        if (parent)
            showMessage(QString::fromUtf8(message), parent);
        return parent != nullptr;
    });
    if (!shown)
        std::fprintf(stderr, "%s\n", message);
}
