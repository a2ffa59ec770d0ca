// SPDX-License-Identifier: MIT
#include "fuzz/fuzzhost.h"

#include <zelgui/zelgui.h>
#include <zvsdkbase/hostcontrol.h>

#include <QApplication>
#include <QDialog>

#include <cstdio>
#include <cstdlib>

// Called in place of the host's, which would wait for the user.
extern "C" void ZelUtilDialogErrMsg(const char *message)
{
    FuzzHost::messages() << QString::fromUtf8(message);
}

namespace FuzzHost {

namespace {

// Leaves out what the toolkit says of odd arguments, but not why it gives up.
void showFatalMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

QMainWindow *makeMainWindow()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    // Both live as long as the process, whoever ends it: the toolkit doesn't survive the end of main().
    static auto *const application = new QApplication(argc, argv);
    Q_UNUSED(application)
    auto *const window = new QMainWindow;
    qInstallMessageHandler(showFatalMessages);
    orvane::host::overrideDotsPerInch(96, 96);
    window->resize(400, 300);
    window->show();
    return window;
}

} // namespace

QMainWindow &mainWindow()
{
    static QMainWindow *const window = makeMainWindow();
    return *window;
}

QStringList &messages()
{
    static QStringList all;
    return all;
}

void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}

void endInput()
{
    require(orvane::host::unreleased().empty(), "what was handed out was released");
    messages().clear();
}

QString fromUtf8(const char *text)
{
    // It is a mark only where nothing is before it.
    return QString::fromUtf8(QByteArray(".").append(text)).mid(1);
}

QString textOf(int field)
{
    char *text = ZelGUITextFieldGetString(field);
    const QString copy = fromUtf8(text);
    ZelUtilStringDealloc(&text);
    return copy;
}

} // namespace FuzzHost

FuzzDialog::FuzzDialog()
{
    FuzzHost::mainWindow();
    m_id = ZelGUIDialogCreateModeless(
        ZELGUI_MAIN_WINDOW, 3000, 1000, "Fuzz", nullptr, [] {}, nullptr);
    FuzzHost::require(FuzzHost::object<QDialog>(m_id), "a dialog can be made");
}

FuzzDialog::~FuzzDialog()
{
    while (QWidget *const popup = QApplication::activePopupWidget())
        popup->close();
    qDeleteAll(FuzzHost::mainWindow().findChildren<QDialog *>(QString(), Qt::FindDirectChildrenOnly));
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    FuzzHost::endInput();
}
