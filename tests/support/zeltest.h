// SPDX-License-Identifier: MIT
#ifndef TESTS_SUPPORT_ZELTEST_H
#define TESTS_SUPPORT_ZELTEST_H

#include "scarcehost.h"

#include <zelgui/zelgui.h>

#include <QAbstractButton>
#include <QMainWindow>
#include <QPointer>
#include <QTest>

#include <functional>
#include <memory>

/// What add-on callbacks can be told apart by. They have no user data, so each is a function of its own.
namespace Callback {
Q_NAMESPACE
enum Name {
    Init,
    Ok,
    Apply,
    Cancel,
    Close,
    Help,
    Extra,
    Push,
    OtherPush,
    Toggle,
    Radio,
    Option,
    List,
    Text,
    OtherText,
    Up,
    Down,
    Scale,
    Drag,
    PageShown,
    PageLeft,
    MenuItem,
    MenuToggle,
    NameCount
};
Q_ENUM_NS(Name)

/// What the library has reported since the test function began: "Ok", "Toggle 1".
QStringList &log();

/// What an add-on does inside a callback; cleared after each test function.
std::function<void()> &action(Name name);

/// What a text callback answers: 1, unless set otherwise within a test function.
int &answer(Name name);

void note(Name name, const QString &value = QString());

template <Name name>
void report()
{
    note(name);
}

template <Name name>
void reportInt(const int *value)
{
    note(name, QString::number(*value));
}

/// For what a list reports: positions with a 0 behind the last. "List 1 3", or "List none".
template <Name name>
void reportList(const int *positions)
{
    QStringList texts;
    for (; *positions != 0; ++positions)
        texts << QString::number(*positions);
    note(name, texts.isEmpty() ? QStringLiteral("none") : texts.join(QLatin1Char(' ')));
}

template <Name name>
int reportText(const char *text)
{
    note(name, QString::fromUtf8(text));
    return answer(name);
}
} // namespace Callback

/// A test with a main window around it. Fails if the toolkit warns of anything, and hides what a test left visible.
class ZelTest : public QObject
{
    Q_OBJECT

public:
    ZelTest();
    ~ZelTest() override;

    QMainWindow *mainWindow() const { return m_mainWindow; }

    /// The object behind an identifier, found by its object name as any host can.
    template <typename T>
    T *object(int id) const
    {
        return m_mainWindow->findChild<T *>(QString::number(id));
    }

    /// A dialog with all callbacks of its kind.
    static int createModal(int parent = ZELGUI_MAIN_WINDOW);
    static int createModeless(int parent = ZELGUI_MAIN_WINDOW);
    /// Waits until a window is the active one; a window is not, for the toolkit's tests, if only its parent is.
    static bool waitUntilActive(const QWidget *window);
    static bool activate(QWidget *window);

    /// A visible and active modeless dialog. What is added to it has to be shown.
    int launchModeless();
    /// Shows what was added to a visible dialog.
    template <typename T>
    T *shown(int id) const
    {
        T *const widget = object<T>(id);
        widget->show();
        return widget;
    }
    /// Moves the mouse with the left button down; the test library of Qt 5 moves it without its buttons.
    static void dragTo(QWidget *widget, const QPoint &position);
    /// The button box's button with that text, mnemonics aside.
    static QAbstractButton *boxButton(QWidget *dialog, const QString &text);

    /// A text that the library has handed out, which is released.
    static QByteArray taken(char *text);

    /// Runs `step` when the dialog is the active modal one, inside the loop of its launch.
    void whenModal(int dialogId, std::function<void()> step);

protected Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

private:
    QPointer<QMainWindow> m_mainWindow;
};

/// Runs a test with the toolkit's application object, on no display unless the environment names a platform.
#define ZELTEST_MAIN(Test)                                                                                             \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        QApplication application(argc, argv);                                                                          \
        Test test;                                                                                                     \
        return ScarceHost::runTest(test, QCoreApplication::arguments());                                               \
    }

/// The same for a test of what text fields and spin text fields have in common: called with "spin", it is about those.
#define ZELTEST_SPIN_MAIN(Test)                                                                                        \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        QApplication application(argc, argv);                                                                          \
        QStringList arguments = QCoreApplication::arguments();                                                         \
        Test test(arguments.removeOne(QStringLiteral("spin")));                                                        \
        return ScarceHost::runTest(test, arguments);                                                                   \
    }

#endif
