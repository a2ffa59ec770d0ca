// SPDX-License-Identifier: MIT
#include "support/triggers.h"

#include <QAction>
#include <QApplication>
#include <QMetaEnum>
#include <QProcess>
#include <QRegularExpression>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace Callback;

namespace {

/// What is gone afterwards.
enum class End { None, OwnDialog, MainWindow };

/// A scene in which a callback is played.
struct Play : Scene
{
    /// A visible dialog beside, and one that can be launched inside the callback.
    int other = ZELGUI_INVALID_ID;
    int nested = ZELGUI_INVALID_ID;
    int nestedInOwn = ZELGUI_INVALID_ID;
    QPointer<QDialog> parentWidget;
    /// Runs while a callback is waiting in a dialog's loop.
    void whenLaunched(const std::function<void()> &step) const { QTimer::singleShot(0, qApp, step); }
    void launch(int id) const;
    bool isUp(int id) const { return ZelGUIDialogIsUp(id) == 1; }
};

/// Something that an add-on does inside a callback, and whether it had the outcome that it must have right away.
struct Deed
{
    const char *name;
    End end;
    std::function<bool(Play &)> act;
    /// Whether the dialog is in the main window itself, not in a parent dialog.
    bool isInMainWindow = false;
};

/// Launches a dialog that is closed as soon as it waits for the user.
void Play::launch(int id) const
{
    whenLaunched([id] { ZelGUIDialogDrop(id); });
    ZelGUIDialogLaunch(id);
}

bool changeOwnValue(Play &play)
{
    const int id = play.sender;
    const auto reports = log().size();
    ZelGUIToggleSet(id, ZelGUIToggleGet(id) == 0);
    ZelGUIRadioBoxSetToggle(id, ZelGUIRadioBoxGetToggle(id) == 1 ? 2 : 1);
    ZelGUIOptionMenuSet(id, ZelGUIOptionMenuGet(id) == 1 ? 2 : 1);
    ZelGUIListSelectAllItems(id);
    ZelGUIListDeselectAllItems(id);
    ZelGUITextFieldSetString(id, "new");
    ZelGUITextSetString(id, "new");
    ZelGUITextAppendString(id, "er");
    ZelGUIScaleSetLimits(id, 3, 30);
    ZelGUIScaleSetValue(id, 20);
    ZelGUITabSetCurrentPage(id, id + 1);
    ZelGUIButtonSetText(id, "new");
    ZelGUIMenuItemSetText(id, "new");
    ZelGUIDialogSetTitle(id, "new");
    const bool isSilent = log().size() == reports;
    // These take the focus away, which a field does report.
    for (const auto on : {ZelBoolean{0}, ZelBoolean{1}}) {
        ZelGUISetSensitivity(id, on);
        ZelGUISetVisibility(id, on);
    }
    return isSilent;
}

bool deleteItems(Play &play)
{
    // The list's last item is its current one.
    ZelGUIListDeleteItemAtPos(play.sender, ZelGUIListGetItemCount(play.sender));
    ZelGUIListDeleteAllItems(play.sender);
    ZelGUIOptionMenuDeleteAllItems(play.sender);
    ZelGUIMenuDeleteItem(play.sender);
    return ZelGUIListGetItemCount(play.sender) <= 0 && ZelGUIOptionMenuGetItemCount(play.sender) <= 0;
}

/// Nothing of the dialog is to be seen or found any more, what it consists of is still there, and so is the other one
/// unless all leaves.
bool hasLeft(const Play &play, End end, int inside)
{
    const bool isOut = !play.widget || !play.widget->isVisible();
    ZelGUIDialogLaunch(play.dialog);
    ZelGUIDialogDrop(play.dialog);
    return isOut && ZelGUIToggleGet(inside) == 0 && play.isUp(play.other) == (end == End::OwnDialog);
}

bool deleteMainWindow(Play &play)
{
    delete play.mainWindow;
    return play.widget && !play.widget->isVisible();
}

bool deleteMainWindowInNested(Play &play)
{
    play.whenLaunched([&play] { delete play.mainWindow; });
    ZelGUIDialogLaunch(play.nested);
    return play.widget && !play.widget->isVisible();
}

const QVector<Deed> kDeeds = {
    {"drop own", End::None,
     [](Play &play) {
         ZelGUIDialogDrop(play.dialog);
         return true;
     }},
    {"drop another", End::None,
     [](Play &play) {
         const bool wasUp = play.isUp(play.other);
         ZelGUIDialogDrop(play.other);
         return wasUp && !play.isUp(play.other);
     }},
    {"launch own", End::None,
     [](Play &play) {
         play.launch(play.dialog);
         return true;
     }},
    {"launch another", End::None,
     [](Play &play) {
         ZelGUIDialogDrop(play.other);
         ZelGUIDialogLaunch(play.other);
         return play.isUp(play.other);
     }},
    {"launch a modal one", End::None,
     [](Play &play) {
         bool wasUp = false;
         play.whenLaunched([&] { wasUp = play.isUp(play.nested); });
         play.launch(play.nested);
         return wasUp && !play.isUp(play.nested);
     }},
    {"change own value", End::None, changeOwnValue},
    {"delete items", End::None, deleteItems},
    {"throw", End::None, [](Play &) -> bool { throw std::runtime_error("of an add-on"); }},
    {"delete parent", End::OwnDialog,
     [](Play &play) {
         delete play.parentWidget;
         return !play.widget->isVisible();
     }},
    {"delete own", End::OwnDialog,
     [](Play &play) {
         delete play.widget;
         return true;
     }},
    {"delete own, in its nested one", End::OwnDialog,
     [](Play &play) {
         play.whenLaunched([&play] { delete play.widget; });
         ZelGUIDialogLaunch(play.nestedInOwn);
         return !play.widget;
     }},
    {"delete main window", End::MainWindow, deleteMainWindow},
    {"delete main window, in a nested one", End::MainWindow, deleteMainWindowInNested},
    {"delete main window, its parent", End::MainWindow, deleteMainWindow, true},
    {"delete main window, its parent, in a nested one", End::MainWindow, deleteMainWindowInNested, true},
};

#define REQUIRE(condition)                                                                                             \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: %s\nReported: %s\n", __FILE__, __LINE__, #condition,                          \
                         qPrintable(log().join(QStringLiteral(", "))));                                                \
            return false;                                                                                              \
        }                                                                                                              \
    } while (false)

void setUp(Play &play, bool isModal, bool isInMainWindow)
{
    play.mainWindow = new QMainWindow;
    play.mainWindow->show();
    const auto find = [&play](int id) { return play.mainWindow->findChild<QDialog *>(QString::number(id)); };
    const auto createNested = [](int parent) {
        return ZelGUIDialogCreateModal(parent, 1000, 1000, "", report<OtherPush>, nullptr, nullptr, nullptr, nullptr);
    };
    play.parent = ZelTest::createModeless();
    play.parentWidget = find(play.parent);
    const int parent = isInMainWindow ? ZELGUI_MAIN_WINDOW : play.parent;
    play.dialog = isModal ? ZelTest::createModal(parent) : ZelTest::createModeless(parent);
    play.widget = find(play.dialog);
    play.nested = createNested(play.parent);
    play.nestedInOwn = createNested(play.dialog);
    play.other =
        ZelGUIDialogCreateModeless(ZELGUI_MAIN_WINDOW, 1000, 1000, "", report<OtherPush>, report<OtherPush>, nullptr);
    ZelGUIDialogLaunch(play.other);
    log().clear();
}

/// Launches the dialog, and lets the user act in it until it is closed.
void actInside(Play &play, const Trigger &trigger)
{
    const auto act = [&] {
        trigger.act(play);
        ZelGUIDialogDrop(play.dialog);
    };
    if (trigger.callback == Init) {
        trigger.act(play);
    } else if (trigger.callback == Close) {
        ZelGUIDialogLaunch(play.dialog);
        act();
    } else {
        play.whenLaunched(act);
        ZelGUIDialogLaunch(play.dialog);
    }
}

/// A dialog that is made now works, and reports all that the user does in it.
bool isUsable(QMainWindow *mainWindow)
{
    const int dialog = ZelTest::createModeless();
    const int toggle = ZelGUIToggleAdd(dialog, 100, 100, 1000, 100, "", reportInt<Toggle>);
    const int field = ZelGUITextFieldAdd(dialog, 100, 300, 1000, 100, reportText<OtherText>);
    const int spin = ZelGUISpinTextFieldAdd(dialog, 100, 500, 1000, 100, nullptr, report<Up>, nullptr);
    const int item = ZelGUIMenuAddItem(ZelGUIMenuAdd(ZelGUIMenuBarAdd(dialog), ""), "", nullptr, report<MenuItem>);
    const auto find = [&](int id) { return mainWindow->findChild<QWidget *>(QString::number(id)); };
    log().clear();
    ZelGUIDialogLaunch(dialog);
    REQUIRE(ZelTest::waitUntilActive(find(dialog)));
    QTest::mouseClick(find(toggle), Qt::LeftButton, {}, QPoint(5, find(toggle)->height() / 2));
    find(field)->setFocus();
    QTest::keyClick(find(field), Qt::Key_Return);
    QTest::keyClick(find(spin), Qt::Key_Up);
    mainWindow->findChild<QAction *>(QString::number(item))->trigger();
    QTest::mouseClick(ZelTest::boxButton(find(dialog), QStringLiteral("Close")), Qt::LeftButton);
    REQUIRE(log() == QStringList({"Init", "Toggle 1", "OtherText ", "Up", "MenuItem", "OtherText ", "Close"}));
    ZelGUIDialogDrop(dialog);
    REQUIRE(!ZelGUIDialogIsUp(dialog));
    return true;
}

/// A dialog that is left can be launched again, and what is in it still answers.
bool isRelaunchable(const Play &play, int inside)
{
    QCoreApplication::processEvents();
    REQUIRE(!play.isUp(play.dialog) && ZelGUIToggleGet(inside) == 1);
    log().clear();
    bool wasUp = false;
    play.whenLaunched([&] { wasUp = play.isUp(play.dialog); });
    play.launch(play.dialog);
    QCoreApplication::processEvents();
    REQUIRE(wasUp && !play.isUp(play.dialog) && log() == QStringList("Init"));
    return true;
}

bool playCell(const Trigger &trigger, const Deed &deed)
{
    Play play;
    setUp(play, trigger.callback != Close, deed.isInMainWindow);
    const int inside = ZelGUIToggleAdd(play.dialog, 100, 100, 1000, 100, "", nullptr);
    ZelGUIToggleSet(inside, 1);

    bool isDone = false;
    bool hasWorked = true;
    action(trigger.callback) = [&] {
        action(trigger.callback) = nullptr;
        isDone = true;
        hasWorked = deed.act(play);
        hasWorked = hasWorked && (deed.end == End::None || hasLeft(play, deed.end, inside));
    };
    // Rejecting, so that a field goes on with what is left of it.
    answer(Text) = 0;
    // A dialog that is leaving is not shown any more, not even for a moment.
    bool hasWaited = false;
    play.whenLaunched([&] { hasWaited = true; });
    if (trigger.callback == Init && deed.end == End::None)
        play.whenLaunched([&] { QTimer::singleShot(0, qApp, [&] { ZelGUIDialogDrop(play.dialog); }); });
    actInside(play, trigger);
    REQUIRE(isDone && hasWorked);

    // Nothing is said about what is leaving.
    const QString reported = QString::fromLatin1(QMetaEnum::fromType<Name>().valueToKey(trigger.callback));
    REQUIRE(deed.end == End::None || log().filter(QRegularExpression('^' + reported + "\\b")).size() == 1);
    REQUIRE(trigger.callback != Init || deed.end == End::None || !hasWaited ||
            QByteArray(deed.name).contains("nested"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    REQUIRE(play.widget.isNull() == (deed.end != End::None));
    REQUIRE(play.mainWindow.isNull() == (deed.end == End::MainWindow));
    answer(OtherText) = 1;
    if (deed.end == End::MainWindow) {
        REQUIRE(ZelTest::createModal() == ZELGUI_INVALID_ID);
        return true;
    }
    REQUIRE(deed.end == End::OwnDialog ? !play.isUp(play.dialog) : isRelaunchable(play, inside));
    REQUIRE(isUsable(play.mainWindow));
    delete play.mainWindow;
    return true;
}

} // namespace

/// Whatever add-ons do inside callbacks. The toolkit wouldn't survive much of it, and the end of the main window is the
/// end of the GUI, so each case has a process of its own.
class tst_Departure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doneInCallback_data();
    void doneInCallback();
};

void tst_Departure::doneInCallback_data()
{
    QTest::addColumn<int>("trigger");
    const auto all = triggers();
    for (int trigger = 0; trigger < all.size(); ++trigger)
        QTest::newRow(all[trigger].name) << trigger;
}

// All deeds at the same time: mostly, they wait for windows.
void tst_Departure::doneInCallback()
{
    QFETCH(int, trigger);
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int deed = 0; deed < kDeeds.size(); ++deed) {
        processes.push_back(std::make_unique<QProcess>());
        const QStringList arguments = {QString::number(trigger), QString::number(deed)};
        processes.back()->start(QCoreApplication::applicationFilePath(), arguments);
    }
    QByteArray failures;
    for (int deed = 0; deed < kDeeds.size(); ++deed) {
        QProcess &process = *processes[static_cast<std::size_t>(deed)];
        const bool isOver = process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit;
        if (!isOver || process.exitCode() != 0)
            failures += QByteArray("\n") + kDeeds[deed].name + ": " + process.readAllStandardError();
    }
    QVERIFY2(failures.isEmpty(), failures.constData());
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    bool isCase = false;
    const int trigger = arguments.size() == 3 ? arguments[1].toInt(&isCase) : 0;
    if (isCase)
        return playCell(triggers().at(trigger), kDeeds.at(arguments[2].toInt())) ? 0 : 1;
    tst_Departure test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_departure.moc"
