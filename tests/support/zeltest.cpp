// SPDX-License-Identifier: MIT
#include "zeltest.h"

#include <zvsdkbase/hostcontrol.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QTimer>

#include <array>

namespace Callback {

QStringList &log()
{
    static QStringList entries;
    return entries;
}

static std::array<std::function<void()>, NameCount> actions;

std::function<void()> &action(Name name)
{
    return actions[name];
}

static std::array<int, NameCount> answers;

int &answer(Name name)
{
    return answers[name];
}

void note(Name name, const QString &value)
{
    const QString text = QString::fromLatin1(QMetaEnum::fromType<Name>().valueToKey(name));
    log() << (value.isNull() ? text : text + QLatin1Char(' ') + value);
    // A copy: the action may replace itself.
    if (const auto act = actions[name])
        act();
}

} // namespace Callback

namespace {

QStringList warnings;
QtMessageHandler previousHandler = nullptr;

void collectWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // What the offscreen platform can't do says nothing about us.
    const bool isOfPlatform = message.startsWith(QLatin1String("This plugin does not support"));
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        if (!isOfPlatform)
            warnings << message;
        return;
    }
    previousHandler(type, context, message);
}

} // namespace

ZelTest::ZelTest() : m_mainWindow(new QMainWindow)
{
    orvane::host::overrideDotsPerInch(96, 96);
    m_mainWindow->resize(400, 300);
}

ZelTest::~ZelTest()
{
    delete m_mainWindow;
}

void ZelTest::initTestCase()
{
    m_mainWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_mainWindow));
}

void ZelTest::init()
{
    previousHandler = qInstallMessageHandler(collectWarnings);
    warnings.clear();
    Callback::log().clear();
    Callback::answers.fill(1);
}

void ZelTest::cleanup()
{
    qInstallMessageHandler(previousHandler);
    for (int name = 0; name < Callback::NameCount; ++name)
        Callback::action(static_cast<Callback::Name>(name)) = nullptr;
    for (QWidget *const window : QApplication::topLevelWidgets()) {
        if (window != m_mainWindow)
            window->hide();
    }
    QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join(QLatin1Char('\n'))));
}

bool ZelTest::waitUntilActive(const QWidget *window)
{
    return QTest::qWaitFor([window] { return QApplication::activeWindow() == window; });
}

bool ZelTest::activate(QWidget *window)
{
    window->activateWindow();
    return waitUntilActive(window);
}

int ZelTest::createModal(int parent)
{
    using namespace Callback;
    return ZelGUIDialogCreateModal(parent, 3000, 1000, "Modal", report<Init>, report<Ok>, report<Apply>, report<Cancel>,
                                   report<Help>);
}

int ZelTest::createModeless(int parent)
{
    using namespace Callback;
    return ZelGUIDialogCreateModeless(parent, 3000, 1000, "Modeless", report<Init>, report<Close>, report<Help>);
}

int ZelTest::launchModeless()
{
    const int dialog = createModeless();
    ZelGUIDialogLaunch(dialog);
    if (!waitUntilActive(object<QWidget>(dialog)))
        QTest::qFail("The dialog has not become active", __FILE__, __LINE__);
    Callback::log().clear();
    return dialog;
}

void ZelTest::dragTo(QWidget *widget, const QPoint &position)
{
    QMouseEvent move(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

QAbstractButton *ZelTest::boxButton(QWidget *dialog, const QString &text)
{
    const auto buttons = dialog->findChild<QDialogButtonBox *>()->buttons();
    for (QAbstractButton *const button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == text)
            return button;
    }
    return nullptr;
}

void ZelTest::whenModal(int dialogId, std::function<void()> step)
{
    auto *const timer = new QTimer(qApp);
    connect(timer, &QTimer::timeout, qApp, [=] {
        QWidget *const modal = QApplication::activeModalWidget();
        if (!modal || modal->objectName() != QString::number(dialogId))
            return;
        timer->stop();
        timer->deleteLater();
        step();
    });
    timer->start(1);
}

QByteArray ZelTest::taken(char *text)
{
    const QByteArray result(text);
    ZelUtilStringDealloc(&text);
    return result;
}
