// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

using namespace Callback;

/// When a field reports, and that a rejected text can't be left. Every case is played with a text field or, called with
/// "spin", with a spin text field, in a dialog that also has another field, an option menu, a menu bar and
/// its buttons.
class tst_TextFieldFocus : public ZelTest
{
    Q_OBJECT

public:
    explicit tst_TextFieldFocus(bool isSpin) : m_isSpin(isSpin) {}

private Q_SLOTS:
    void eachEndOfEditingOnce();
    void rejectedTextCannotBeLeft();
    void twoRejectingFields();
    void goneWithItsDialog();
    void callbackShowsAMessage();
    void messageInsteadOfAMenu_data();
    void messageInsteadOfAMenu();
    void rejectedAndMenuLeft_data();
    void rejectedAndMenuLeft();
    void menuClosedBeforeTheReport_data();
    void menuClosedBeforeTheReport();
    void outOfReachBehindAMenu_data();
    void outOfReachBehindAMenu();
    void reportBeforeAMenuItem_data();
    void reportBeforeAMenuItem();
    void hiddenOrDisabled();
    void popups();
    void otherWindow();
    void rejectedTextBeforeOtherWindow();

private:
    /// Opens the dialog with the field, which has the focus and the text "bad".
    void open();
    /// Has the field's callback show a message, which is closed at once.
    void showMessages();
    /// Without a window manager, nobody activates the dialog when a message is gone.
    bool isFocusBack();
    void openMenu(const QByteArray &opener);
    bool hasFocus() const { return QApplication::focusWidget() == m_widget; }
    bool isAllSelected() const { return m_edit->selectedText() == m_edit->text() && !m_edit->text().isEmpty(); }

    bool m_isSpin;
    int m_dialog = -2;
    int m_other = -2;
    int m_otherSpin = -2;
    QDialog *m_window = nullptr;
    /// What has the focus when the field has it, and where its text is.
    QPointer<QWidget> m_widget;
    QPointer<QLineEdit> m_edit;
    QComboBox *m_menu = nullptr;
    int m_shownMessages = 0;
};

void tst_TextFieldFocus::open()
{
    log().clear();
    m_dialog = ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 4000, 1000, "", nullptr, report<Close>, nullptr);
    ZelGUIDialogAddButtonToButtonBox(m_dialog, "Default", 1, report<Extra>);
    const int field = m_isSpin
                          ? ZelGUISpinTextFieldAdd(m_dialog, 100, 100, 1000, 130, reportText<Text>, nullptr, nullptr)
                          : ZelGUITextFieldAdd(m_dialog, 100, 100, 1000, 130, reportText<Text>);
    m_other = ZelGUITextFieldAdd(m_dialog, 100, 300, 1000, 130, reportText<OtherText>);
    m_otherSpin = ZelGUISpinTextFieldAdd(m_dialog, 1500, 300, 1000, 130, reportText<OtherText>, nullptr, nullptr);
    const int menu = ZelGUIOptionMenuAdd(m_dialog, 100, 500, 1000, 130, "A,B", reportInt<Option>);
    ZelGUIMenuAddItem(ZelGUIMenuAdd(ZelGUIMenuBarAdd(m_dialog), "&View"), "&Axes", nullptr, report<MenuItem>);
    m_window = object<QDialog>(m_dialog);
    m_widget = object<QWidget>(field);
    m_edit = m_isSpin ? m_widget->findChild<QLineEdit *>() : object<QLineEdit>(field);
    m_menu = object<QComboBox>(menu);
    ZelGUIDialogLaunch(m_dialog);
    QVERIFY(waitUntilActive(m_window));
    m_widget->setFocus();
    QVERIFY(hasFocus());
    QTest::keyClicks(m_widget, "bad");
    QCOMPARE(log(), QStringList());
}

void tst_TextFieldFocus::showMessages()
{
    m_shownMessages = 0;
    action(Text) = [this] {
        QTimer closer;
        connect(&closer, &QTimer::timeout, this, [this] {
            if (QWidget *const message = QApplication::activeModalWidget()) {
                ++m_shownMessages;
                message->close();
            }
        });
        closer.start(1);
        ZelUtilDialogErrMsg("no good");
    };
}

bool tst_TextFieldFocus::isFocusBack()
{
    return QTest::qWaitFor([this] {
        // The message's own end may only now leave no window active.
        if (!QApplication::activeWindow())
            m_window->activateWindow();
        return hasFocus();
    });
}

void tst_TextFieldFocus::eachEndOfEditingOnce()
{
    open();
    QTest::keyClick(m_widget, Qt::Key_Enter);
    QCOMPARE(log(), QStringList({"Text bad", "Extra"}));
    log().clear();
    QTest::keyClick(m_widget, Qt::Key_Tab);
    QVERIFY(!hasFocus());
    QCOMPARE(log(), QStringList({"Text bad"}));
    QTest::keyClick(object<QWidget>(m_other), Qt::Key_Backtab);
    QVERIFY(hasFocus());
    QTest::keyClicks(m_widget, "x");
    QTest::mouseClick(object<QWidget>(m_other), Qt::LeftButton);
    QCOMPARE(log(), QStringList({"Text bad", "OtherText ", "Text x"}));
}

void tst_TextFieldFocus::rejectedTextCannotBeLeft()
{
    open();
    answer(Text) = 0;
    QStringList expected;
    const auto rejected = [&](const char *text) {
        expected << QStringLiteral("Text ") + text;
        QCOMPARE(log(), expected);
        QVERIFY(hasFocus());
        QVERIFY(isAllSelected());
    };
    // Edited, not edited, by every way out, again and again.
    for (int i = 0; i < 2; ++i) {
        for (const auto key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backtab}) {
            QTest::keyClick(m_widget, key);
            rejected("bad");
        }
        QTest::mouseClick(object<QWidget>(m_other), Qt::LeftButton);
        rejected("bad");
    }
    QTest::keyClicks(m_widget, "worse");
    QTest::keyClick(m_widget, Qt::Key_Tab);
    rejected("worse");
    // As soon as it is accepted, Return presses the default button again, and the field can be left.
    answer(Text) = 5;
    QTest::keyClick(m_widget, Qt::Key_Return);
    QCOMPARE(log(), expected << "Text worse"
                             << "Extra");
    QTest::keyClick(m_widget, Qt::Key_Tab);
    QVERIFY(!hasFocus());
}

void tst_TextFieldFocus::twoRejectingFields()
{
    open();
    answer(Text) = 0;
    answer(OtherText) = 0;
    QTest::keyClick(m_widget, Qt::Key_Tab);
    QTest::mouseClick(object<QWidget>(m_other), Qt::LeftButton);
    QCOMPARE(log(), QStringList({"Text bad", "Text bad"}));
    QVERIFY(hasFocus());
    // The field that a callback leads to gives the focus back unasked.
    action(Text) = [this] { ZelGUISetInputFocus(m_other); };
    QTest::keyClick(m_widget, Qt::Key_Return);
    QCOMPARE(log(), QStringList({"Text bad", "Text bad", "Text bad"}));
    QVERIFY(hasFocus());
}

// Taking the focus back a moment later would let go of the button before the release of the mouse.
void tst_TextFieldFocus::goneWithItsDialog()
{
    answer(Text) = 0;
    action(Close) = [this] { ZelGUIDialogDrop(m_dialog); };
    for (const bool isByMouse : {true, false}) {
        open();
        if (isByMouse)
            QTest::mouseClick(boxButton(m_window, "Close"), Qt::LeftButton);
        else
            QTest::keyClick(m_widget, Qt::Key_Escape);
        QCOMPARE(ZelGUIDialogIsUp(m_dialog), 0);
        QTest::qWait(10);
        QCOMPARE(log(), isByMouse ? QStringList({"Text bad", "Close"}) : QStringList("Close"));
    }

    // Destroyed with the focus in it.
    open();
    delete m_window;
    QVERIFY(m_widget.isNull());
    QTest::qWait(10);
    QCOMPARE(log(), QStringList());
}

// The host's error dialog takes the focus from the field whose report is running, and gives it back to the next one.
void tst_TextFieldFocus::callbackShowsAMessage()
{
    open();
    answer(Text) = 0;
    answer(OtherText) = 0;
    showMessages();
    const auto isBack = [this] { return isFocusBack() && isAllSelected(); };
    QTest::keyClick(m_widget, Qt::Key_Return);
    QVERIFY(isBack());
    QTest::keyClick(m_widget, Qt::Key_Tab);
    QVERIFY(isBack());
    QTest::mouseClick(object<QWidget>(m_other), Qt::LeftButton);
    QVERIFY(isBack());
    QTest::qWait(10);
    QCOMPARE(m_shownMessages, 3);
    QCOMPARE(log(), QStringList({"Text bad", "Text bad", "Text bad"}));
}

void tst_TextFieldFocus::messageInsteadOfAMenu_data()
{
    const Rows<QByteArray, int> row("opener", "answer");
    for (const char *const opener : {"click", "key", "field's own menu", "spin field's own menu"}) {
        row(QByteArray(opener) + ", rejected", opener, 0);
        row(QByteArray(opener) + ", accepted", opener, 1);
    }
}

void tst_TextFieldFocus::openMenu(const QByteArray &opener)
{
    const auto askForMenuOf = [](QWidget *widget) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2), widget->mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(widget, &event);
    };
    auto *const bar = m_window->findChild<QMenuBar *>();
    if (opener == "click")
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().first()).center());
    else if (opener == "key")
        QTest::keyClick(m_widget, Qt::Key_V, Qt::AltModifier);
    else
        askForMenuOf(object<QWidget>(opener.startsWith("spin") ? m_otherSpin : m_other));
}

// A menu takes the focus. The toolkit does not survive that a message closes it while it opens, or waits for ever.
void tst_TextFieldFocus::messageInsteadOfAMenu()
{
    QFETCH(QByteArray, opener);
    QFETCH(int, answer);
    open();
    Callback::answer(Text) = answer;
    showMessages();
    openMenu(opener);
    QTRY_COMPARE(m_shownMessages, 1);
    QTRY_COMPARE(log(), QStringList("Text bad"));
    QVERIFY(!QApplication::activePopupWidget());
    QVERIFY(isFocusBack());
}

void tst_TextFieldFocus::rejectedAndMenuLeft_data()
{
    const Rows<QByteArray> row("opener");
    row("click", "click");
    row("key", "key");
}

// Opening a menu and leaving it is no way around a rejection.
void tst_TextFieldFocus::rejectedAndMenuLeft()
{
    QFETCH(QByteArray, opener);
    open();
    answer(Text) = 0;
    openMenu(opener);
    QTRY_COMPARE(log(), QStringList("Text bad"));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTRY_VERIFY(!QApplication::activePopupWidget());
    QVERIFY(activate(m_window));
    log().clear();
    QTest::mouseClick(object<QWidget>(m_other), Qt::LeftButton);
    QCOMPARE(log(), QStringList("Text bad"));
    QVERIFY(hasFocus());
}

void tst_TextFieldFocus::menuClosedBeforeTheReport_data()
{
    const Rows<QByteArray, QStringList> row("by", "expected");
    row("host", "host", {"Text bad"});
    row("host's own message", "message", {"Text bad"});
    row("drop of the dialog", "drop", {});
}

// The toolkit waits for ever for a popup that is being closed and has to be closed for a message.
void tst_TextFieldFocus::menuClosedBeforeTheReport()
{
    QFETCH(QByteArray, by);
    QFETCH(QStringList, expected);
    open();
    showMessages();
    QTest::keyPress(m_widget, Qt::Key_V, Qt::AltModifier);
    QVERIFY(QApplication::activePopupWidget());
    if (by == "host") {
        QApplication::activePopupWidget()->close();
    } else if (by == "message") {
        QTimer::singleShot(50, qApp, [] { QApplication::activeModalWidget()->close(); });
        ZelUtilDialogErrMsg("the host's");
    } else {
        ZelGUIDialogDrop(m_dialog);
        QApplication::activePopupWidget()->close();
    }
    QTest::qWait(20);
    QCOMPARE(log(), expected);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(m_shownMessages, expected.size());
}

void tst_TextFieldFocus::outOfReachBehindAMenu_data()
{
    const Rows<bool, bool> row("isHidden", "hasMessage");
    row("disabled", false, false);
    row("hidden", true, false);
    row("disabled, with a message", false, true);
}

// A menu bar that can't give the focus back to the field would keep it, and Escape.
void tst_TextFieldFocus::outOfReachBehindAMenu()
{
    QFETCH(bool, isHidden);
    QFETCH(bool, hasMessage);
    open();
    if (hasMessage)
        showMessages();
    const auto show = action(Text);
    action(Text) = [this, isHidden, show] {
        m_widget->setEnabled(isHidden);
        m_widget->setVisible(!isHidden);
        if (show)
            show();
    };
    openMenu("key");
    QTRY_COMPARE(log(), QStringList("Text bad"));
    if (QWidget *const menu = QApplication::activePopupWidget())
        QTest::keyClick(menu, Qt::Key_A);
    QTRY_VERIFY(!QApplication::activePopupWidget());
    QVERIFY(activate(m_window));
    QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
    QCOMPARE(log().last(), QStringLiteral("Close"));
}

void tst_TextFieldFocus::reportBeforeAMenuItem_data()
{
    const Rows<bool, QStringList> row("hasMessage", "expected");
    row("menu still open", false, {"Text bad", "MenuItem"});
    row("menu closed by a message", true, {"Text bad"});
}

// Keys as fast as can be, before any pass of the event loop.
void tst_TextFieldFocus::reportBeforeAMenuItem()
{
    QFETCH(bool, hasMessage);
    open();
    if (hasMessage)
        showMessages();
    auto *const menu = m_window->findChild<QMenuBar *>()->actions().first()->menu();
    QTest::keyPress(m_widget, Qt::Key_V, Qt::AltModifier);
    QCOMPARE(QApplication::activePopupWidget(), static_cast<QWidget *>(menu));
    QTest::keyPress(menu, Qt::Key_A);
    QTEST(log(), "expected");
    QTRY_VERIFY(!QApplication::activePopupWidget());
    QVERIFY(isFocusBack());
}

// A hidden page takes the field along, though not what the user typed; a disabled field can't be corrected.
void tst_TextFieldFocus::hiddenOrDisabled()
{
    open();
    answer(Text) = 0;
    m_widget->setEnabled(false);
    QCOMPARE(log(), QStringList({"Text bad"}));
    QVERIFY(!hasFocus());
    m_widget->setEnabled(true);
    m_widget->setFocus();
    m_widget->hide();
    QVERIFY(!hasFocus());
    QCOMPARE(log(), QStringList({"Text bad", "OtherText ", "Text bad"}));
    m_widget->show();
    m_window->activateWindow();
    QCOMPARE(m_window->focusWidget(), object<QWidget>(m_other));
}

void tst_TextFieldFocus::popups()
{
    open();
    // The platform of these tests leaves no window active when a popup has closed; on a desktop, the dialog is.
    const auto closePopup = [this] {
        const QStringList before = log();
        QApplication::activePopupWidget()->close();
        QVERIFY(QTest::qWaitFor([] { return !QApplication::activePopupWidget(); }));
        QVERIFY(activate(m_window));
        m_widget->setFocus();
        // What the platform still has to say about its windows is nothing to do with what comes next.
        QTest::qWait(20);
        log() = before;
    };

    // Its own menu is no loss. That of a spin box has an event loop of its own.
    bool hasMenuOpened = false;
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&] {
        if (!QApplication::activePopupWidget())
            return;
        closer.stop();
        hasMenuOpened = true;
        QCOMPARE(log(), QStringList());
        closePopup();
    });
    closer.start(1);
    QContextMenuEvent contextMenu(QContextMenuEvent::Keyboard, QPoint(2, 2), m_edit->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(m_edit, &contextMenu);
    QTRY_VERIFY(hasMenuOpened);

    // A list that opens without having had the focus before takes it twice.
    m_menu->showPopup();
    QTRY_VERIFY(QApplication::activePopupWidget());
    QTRY_COMPARE(log(), QStringList({"Text bad"}));
    closePopup();

    // One click on a list takes it once for the list itself and once for what opens; that is one rejection.
    answer(Text) = 0;
    log().clear();
    QTest::mouseClick(m_menu, Qt::LeftButton);
    QTRY_VERIFY(QApplication::activePopupWidget());
    QCOMPARE(log(), QStringList({"Text bad"}));
    closePopup();
    QTest::keyClick(m_widget, Qt::Key_Tab);
    QCOMPARE(log(), QStringList({"Text bad", "Text bad"}));
    QVERIFY(hasFocus());
}

void tst_TextFieldFocus::otherWindow()
{
    open();
    QVERIFY(activate(mainWindow()));
    QTRY_COMPARE(log(), QStringList({"Text bad"}));
    QVERIFY(activate(m_window));
    QVERIFY(hasFocus());
    QTest::keyClick(m_widget, Qt::Key_Tab);
    QCOMPARE(log(), QStringList({"Text bad", "Text bad"}));
}

// A rejected text that keeps the field is not reported again, unless it is another or its dialog has been away.
void tst_TextFieldFocus::rejectedTextBeforeOtherWindow()
{
    open();
    answer(Text) = 0;
    QTest::keyClick(m_widget, Qt::Key_Return);
    const auto leave = [this] {
        log().clear();
        QVERIFY(activate(mainWindow()));
        QCoreApplication::processEvents();
    };
    leave();
    QCOMPARE(log(), QStringList());
    QVERIFY(activate(m_window));
    QTest::keyClicks(m_widget, "x");
    leave();
    QTRY_COMPARE(log(), QStringList({"Text x"}));

    open();
    QTest::keyClick(m_widget, Qt::Key_Return);
    ZelGUIDialogDrop(m_dialog);
    leave();
    ZelGUIDialogLaunch(m_dialog);
    QVERIFY(waitUntilActive(m_window));
    leave();
    QTRY_COMPARE(log(), QStringList({"Text bad"}));
}

ZELTEST_SPIN_MAIN(tst_TextFieldFocus)
#include "tst_textfieldfocus.moc"
