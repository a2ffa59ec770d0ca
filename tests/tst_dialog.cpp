// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <zvsdkbase/hostcontrol.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

using namespace Callback;

namespace {

/// Plain texts of the box's buttons, sorted: their order is the platform's.
QStringList boxTexts(const QDialog *dialog)
{
    QStringList texts;
    for (const QAbstractButton *const button : dialog->findChild<QDialogButtonBox *>()->buttons())
        texts << button->text().remove(QLatin1Char('&'));
    texts.sort();
    return texts;
}

/// Counts how often a window is brought to the front.
class RaiseCounter : public QObject
{
public:
    explicit RaiseCounter(QWidget *window) { window->installEventFilter(this); }
    int count() const { return m_count; }
    bool eventFilter(QObject *, QEvent *event) override
    {
        m_count += event->type() == QEvent::ZOrderChange;
        return false;
    }

private:
    int m_count = 0;
};

} // namespace

/// Dialogs: their buttons, how they are shown, and how they go.
class tst_Dialog : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void buttonsFollowCallbacks_data();
    void buttonsFollowCallbacks();
    void windowAndTitle();
    void dropInACallback_data();
    void dropInACallback();
    void extraButtons();
    void extraButtonAsDefault();
    void launchOfModelessReturnsAtOnce();
    void launchInInit();
    void launchInOwnCallback();
    void requestsInACallback();
    void dropAndRelaunchFromNestedModalDialog();
    void dropOfOuterWaitsForItsOwnCallback();
    void batchModeStopsLaunches();
};

void tst_Dialog::buttonsFollowCallbacks_data()
{
    const Rows<int, bool, QStringList> row("id", "modal", "buttons");
    const auto call = report<Ok>;
    const auto modal = [](ZelGUIVoidCallback ok, ZelGUIVoidCallback apply, ZelGUIVoidCallback cancel,
                          ZelGUIVoidCallback help) {
        return ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 3000, 300, "", nullptr, ok, apply, cancel, help);
    };
    const auto modeless = [](ZelGUIVoidCallback close, ZelGUIVoidCallback help) {
        return ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 3000, 300, "", nullptr, close, help);
    };
    row("none", modal(nullptr, nullptr, nullptr, nullptr), true, {});
    row("OK, Cancel", modal(call, nullptr, call, nullptr), true, {"Cancel", "OK"});
    row("all", modal(call, call, call, call), true, {"Apply", "Cancel", "Help", "OK"});
    row("modeless", modeless(call, call), false, {"Close", "Help"});
    row("modeless without Close is modal", modeless(nullptr, call), true, {"Help"});
}

void tst_Dialog::buttonsFollowCallbacks()
{
    QFETCH(int, id);
    const QDialog *const dialog = object<QDialog>(id);
    QTEST(dialog->isModal(), "modal");
    QTEST(boxTexts(dialog), "buttons");
    for (const QAbstractButton *const button : dialog->findChild<QDialogButtonBox *>()->buttons()) {
        QCOMPARE(button->focusPolicy(), Qt::StrongFocus);
        QVERIFY(!qobject_cast<const QPushButton *>(button)->autoDefault());
    }
}

void tst_Dialog::windowAndTitle()
{
    const int child = createModeless(createModal());
    const QDialog *const dialog = object<QDialog>(child);
    QVERIFY(qobject_cast<QDialog *>(dialog->parent()));
    QCOMPARE(dialog->windowFlags(),
             Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    QCOMPARE(dialog->windowTitle(), QString("Modeless"));
    // A larger request would end the connection to an X server; no character is cut in two.
    ZelGUIDialogSetTitle(child, ("x" + QByteArray("\xF0\x9F\x98\x80").repeated(17000)).constData());
    QCOMPARE(object<QDialog>(child)->windowTitle().size(), 32767);
    ZelGUIDialogSetTitle(child, ("xy" + QByteArray("\xF0\x9F\x98\x80").repeated(17000)).constData());
    QCOMPARE(object<QDialog>(child)->windowTitle().size(), 32766);
    ZelGUIDialogSetTitle(child, "\xEF\xBB\xBF\xC3\x84rger % 5 \xF0\x9F\x98\x80");
    QCOMPARE(dialog->windowTitle().toUtf8(), QByteArray("\xEF\xBB\xBF\xC3\x84rger % 5 \xF0\x9F\x98\x80"));
}

void tst_Dialog::dropInACallback_data()
{
    const Rows<bool, QString, int, bool, int> row("modal", "action", "callback", "isDeferred", "result");
    row("OK", true, "OK", Ok, true, QDialog::Accepted);
    row("Return", true, "return", Ok, true, QDialog::Accepted);
    row("Cancel", true, "Cancel", Cancel, true, QDialog::Rejected);
    row("Escape", true, "escape", Cancel, true, QDialog::Rejected);
    row("window closed", true, "window", Cancel, true, QDialog::Rejected);
    row("modeless, Close", false, "Close", Close, true, QDialog::Rejected);
    row("modeless, Escape", false, "escape", Close, true, QDialog::Rejected);
    row("modeless, window closed", false, "window", Close, true, QDialog::Rejected);
    row("Apply", true, "Apply", Apply, false, QDialog::Accepted);
    row("Help", true, "Help", Help, false, QDialog::Accepted);
}

// Without a drop, no user leaves. With one, the dialog goes behind the callbacks that are about leaving, else at once.
void tst_Dialog::dropInACallback()
{
    QFETCH(bool, modal);
    QFETCH(QString, action);
    QFETCH(int, callback);
    const int id = modal ? createModal() : createModeless();
    QDialog *const dialog = object<QDialog>(id);
    const QString reported = QString::fromLatin1(QMetaEnum::fromType<Name>().valueToKey(callback));
    const auto act = [=] {
        if (action == QLatin1String("escape") || action == QLatin1String("return"))
            QTest::keyClick(dialog, action == QLatin1String("escape") ? Qt::Key_Escape : Qt::Key_Return);
        else if (action == QLatin1String("window"))
            dialog->close();
        else
            QTest::mouseClick(boxButton(dialog, action), Qt::LeftButton);
    };
    bool stayedUp = false;
    bool wasUpInCallback = false;
    const auto useDialog = [&] {
        act();
        stayedUp = ZelGUIDialogIsUp(id);
        Callback::action(static_cast<Name>(callback)) = [&] {
            ZelGUIDialogDrop(id);
            wasUpInCallback = ZelGUIDialogIsUp(id);
        };
        act();
    };
    if (modal)
        whenModal(id, useDialog);
    ZelGUIDialogLaunch(id);
    if (!modal) {
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        useDialog();
    }

    QCOMPARE(log(), QStringList({"Init", reported, reported}));
    QVERIFY(stayedUp);
    QTEST(wasUpInCallback, "isDeferred");
    QCOMPARE(ZelGUIDialogIsUp(id), 0);
    QTEST(dialog->result(), "result");
}

void tst_Dialog::extraButtons()
{
    const int id = launchModeless();
    QDialog *const dialog = object<QDialog>(id);
    const QSize size = dialog->size();
    ZelGUIDialogAddButtonToButtonBox(id, "First", 0, report<Apply>);
    ZelGUIDialogAddButtonToButtonBox(id, "R\xE9glage", 2, report<Extra>);
    ZelGUIDialogAddButtonToButtonBox(createModeless(), "Other", 0, nullptr);
    QCOMPARE(boxTexts(dialog), QStringList({"Close", "First", "Help", QString::fromUtf8("R\xC3\xA9glage")}));
    QCOMPARE(dialog->size(), size);
    auto *const last = qobject_cast<QPushButton *>(boxButton(dialog, QString::fromUtf8("R\xC3\xA9glage")));
    QVERIFY(!last->isDefault());

    QTest::mouseClick(boxButton(dialog, "First"), Qt::LeftButton);
    QTest::mouseClick(last, Qt::LeftButton);
    QCOMPARE(log(), QStringList({"Extra"}));

    ZelGUIDialogAddButtonToButtonBox(id, "Silent", 0, nullptr);
    QTest::mouseClick(boxButton(dialog, "Silent"), Qt::LeftButton);
    QCOMPARE(log().size(), 1);
}

void tst_Dialog::extraButtonAsDefault()
{
    const int id = createModal();
    ZelGUIDialogAddButtonToButtonBox(id, "Former", 1, report<Apply>);
    ZelGUIDialogAddButtonToButtonBox(id, "Preset", 1, report<Extra>);
    const auto *const box = object<QDialog>(id)->findChild<QDialogButtonBox *>();
    for (QAbstractButton *const button : box->buttons()) {
        const bool isPreset = button->text() == "Preset";
        QCOMPARE(qobject_cast<QPushButton *>(button)->isDefault(), isPreset);
        QCOMPARE(qobject_cast<QPushButton *>(button)->autoDefault(), isPreset);
        QCOMPARE(button->focusPolicy(), Qt::StrongFocus);
        if (isPreset)
            QCOMPARE(box->buttonRole(button), QDialogButtonBox::ResetRole);
    }
    whenModal(id, [&] {
        QTest::keyClick(object<QDialog>(id), Qt::Key_Enter);
        ZelGUIDialogDrop(id);
    });
    ZelGUIDialogLaunch(id);
    QCOMPARE(log(), QStringList({"Init", "Extra"}));
}

void tst_Dialog::launchOfModelessReturnsAtOnce()
{
    const int id = createModeless();
    // The dialog isn't up yet, so this drops nothing.
    action(Init) = [id] {
        QVERIFY(!ZelGUIDialogIsUp(id));
        ZelGUIDialogDrop(id);
    };
    ZelGUIDialogLaunch(id);
    QVERIFY(ZelGUIDialogIsUp(id));
    action(Init) = nullptr;
    ZelGUIDialogLaunch(id);
    QCOMPARE(log(), QStringList({"Init", "Init"}));
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(object<QDialog>(id)));
    // Wherever the user has gone since, a launch leads back.
    QVERIFY(activate(mainWindow()));
    RaiseCounter raises(object<QDialog>(id));
    ZelGUIDialogLaunch(id);
    QCOMPARE(raises.count(), 1);
    QVERIFY(waitUntilActive(object<QDialog>(id)));
    ZelGUIDialogDrop(id);
    ZelGUIDialogDrop(id);
    QCOMPARE(ZelGUIDialogIsUp(id), 0);
}

// A second exec() of the same dialog makes the toolkit warn. OK defers what is asked for, Apply doesn't.
/// The launch that has led to the init callback is under way already.
void tst_Dialog::launchInInit()
{
    const int modal = createModal();
    const int modeless = createModeless();
    action(Init) = [=] {
        ZelGUIDialogLaunch(modeless);
        ZelGUIDialogLaunch(modal);
    };
    bool wasUp = false;
    whenModal(modal, [&] {
        wasUp = ZelGUIDialogIsUp(modal) && ZelGUIDialogIsUp(modeless);
        ZelGUIDialogDrop(modal);
    });
    ZelGUIDialogLaunch(modal);
    QVERIFY(wasUp);
    QCOMPARE(log(), QStringList({"Init", "Init"}));
}

void tst_Dialog::launchInOwnCallback()
{
    const int id = createModal();
    action(Ok) = action(Apply) = [id] { ZelGUIDialogLaunch(id); };
    bool isUp = true;
    whenModal(id, [&] {
        for (const char *const button : {"OK", "Apply"}) {
            QTest::mouseClick(boxButton(object<QDialog>(id), button), Qt::LeftButton);
            isUp = isUp && ZelGUIDialogIsUp(id);
        }
        ZelGUIDialogDrop(id);
    });
    ZelGUIDialogLaunch(id);
    QVERIFY(isUp);
    QCOMPARE(log(), QStringList({"Init", "Ok", "Init", "Apply", "Init"}));
}

// The last request made inside a callback counts, and only for that callback.
void tst_Dialog::requestsInACallback()
{
    const int id = createModal();
    QDialog *const dialog = object<QDialog>(id);
    QList<bool> stayedUp;
    const auto pressOk = [&](const std::function<void()> &inCallback) {
        action(Ok) = inCallback;
        QTest::mouseClick(boxButton(dialog, "OK"), Qt::LeftButton);
        stayedUp << ZelGUIDialogIsUp(id);
    };
    whenModal(id, [&] {
        pressOk([id] {
            ZelGUIDialogDrop(id);
            ZelGUIDialogLaunch(id);
        });
        pressOk([id] { ZelGUIDialogDrop(id); });
    });
    ZelGUIDialogLaunch(id);
    whenModal(id, [&] {
        pressOk([] {});
        ZelGUIDialogDrop(id);
    });
    ZelGUIDialogLaunch(id);
    QCOMPARE(stayedUp, QList<bool>({true, false, true}));
}

// The outer dialog's exec() has been told to end but can't while the inner one's is running.
void tst_Dialog::dropAndRelaunchFromNestedModalDialog()
{
    const int outer = createModal();
    const int inner = createModal();
    QStringList steps;
    action(Apply) = [&] { ZelGUIDialogLaunch(inner); };
    whenModal(outer, [&] {
        whenModal(inner, [&] {
            ZelGUIDialogDrop(outer);
            whenModal(outer, [&] {
                steps << "outer is up again";
                ZelGUIDialogDrop(outer);
            });
            ZelGUIDialogLaunch(outer);
            steps << "second launch returned";
            ZelGUIDialogDrop(inner);
        });
        QTest::mouseClick(boxButton(object<QDialog>(outer), "Apply"), Qt::LeftButton);
    });
    ZelGUIDialogLaunch(outer);
    steps << "first launch returned";
    QCOMPARE(steps, QStringList({"outer is up again", "second launch returned", "first launch returned"}));
}

void tst_Dialog::dropOfOuterWaitsForItsOwnCallback()
{
    const int outer = createModal();
    const int inner = createModal();
    bool outerWasUp = false;
    action(Ok) = [&] {
        action(Ok) = nullptr;
        ZelGUIDialogLaunch(inner);
        outerWasUp = ZelGUIDialogIsUp(outer);
    };
    whenModal(outer, [&] {
        whenModal(inner, [&] {
            ZelGUIDialogDrop(outer);
            ZelGUIDialogDrop(inner);
        });
        QTest::mouseClick(boxButton(object<QDialog>(outer), "OK"), Qt::LeftButton);
    });
    ZelGUIDialogLaunch(outer);
    QVERIFY(outerWasUp);
    QCOMPARE(ZelGUIDialogIsUp(outer), 0);
}

void tst_Dialog::batchModeStopsLaunches()
{
    const int id = createModeless();
    orvane::host::setBatchModeActive(true);
    ZelGUIDialogLaunch(id);
    const bool wasVisible = object<QDialog>(id)->isVisible();
    object<QDialog>(id)->show();
    const ZelBoolean isUpInBatchMode = ZelGUIDialogIsUp(id);
    orvane::host::setBatchModeActive(false);
    QVERIFY(!wasVisible);
    QCOMPARE(isUpInBatchMode, 0);
    QCOMPARE(log(), QStringList());
    QCOMPARE(ZelGUIDialogIsUp(id), 1);
}

ZELTEST_MAIN(tst_Dialog)
#include "tst_dialog.moc"
