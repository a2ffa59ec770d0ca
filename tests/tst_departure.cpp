// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QProcess>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include <cstdio>

using namespace Callback;

namespace {

/// What goes while the callback is running.
enum class Victim { MainWindow, ParentDialog, OwnDialog, NestedThenMainWindow, NestedThenOwnDialog };

struct Scene
{
    QPointer<QMainWindow> mainWindow;
    int parent = -2;
    int dialog = -2;
    QPointer<QDialog> widget;
};

/// One way to have a callback called, by what a user does.
struct Trigger
{
    const char *name;
    Name callback;
    std::function<void(Scene &)> act;
};

/// Adds a widget by `add`, shows and focuses it, and does as the user would.
template <typename Add, typename Act>
std::function<void(Scene &)> withWidget(Add add, Act act)
{
    return [=](Scene &scene) {
        const int id = add(scene.dialog);
        auto *const group = scene.widget->findChild<QButtonGroup *>(QString::number(id));
        QWidget *const widget =
            group ? group->buttons().last() : scene.widget->findChild<QWidget *>(QString::number(id));
        widget->show();
        ZelTest::waitUntilActive(scene.widget);
        widget->setFocus();
        act(widget);
    };
}

/// Adds a menu bar with a menu and a sub-menu to the visible dialog, puts an entry into the latter by `add`, opens the
/// menus by mouse and keyboard, and does as the user would.
template <typename Add, typename Act>
std::function<void(Scene &)> withMenu(Add add, Act act)
{
    return [=](Scene &scene) {
        const int barId = ZelGUIMenuBarAdd(scene.dialog);
        const int subMenuId = ZelGUIMenuAdd(ZelGUIMenuAdd(barId, "Menu"), "Sub-menu");
        const int entry = add(subMenuId);
        auto *const bar = scene.widget->findChild<QMenuBar *>(QString::number(barId));
        auto *const subMenu = scene.widget->findChild<QMenu *>(QString::number(subMenuId));
        if (!QTest::qWaitFor([bar] { return bar->isVisible(); }) || !ZelTest::waitUntilActive(scene.widget))
            return;
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().first()).center());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Right);
        if (QTest::qWaitFor([subMenu] { return subMenu->isVisible(); }))
            act(subMenu, entry);
    };
}

QList<Trigger> triggers()
{
    const auto press = [](const char *text) {
        return [text](Scene &scene) {
            QTest::mouseClick(ZelTest::boxButton(scene.widget, QString::fromLatin1(text)), Qt::LeftButton);
        };
    };
    const auto click = [](QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton); };
    const auto key = [](Qt::Key which) { return [which](QWidget *widget) { QTest::keyClick(widget, which); }; };
    const auto addField = [](int dialog) { return ZelGUITextFieldAdd(dialog, 1, 1, 1000, 100, reportText<Text>); };
    const auto addSpin = [](int dialog) {
        return ZelGUISpinTextFieldAdd(dialog, 1, 1, 1000, 100, reportText<Text>, report<Up>, report<Down>);
    };
    const auto addScale = [](int dialog) {
        return ZelGUIScaleAdd(dialog, 100, 300, 1000, 100, 0, 9, 0, reportInt<Scale>, nullptr);
    };
    const auto addTabs = [](int dialog, ZelGUIIntCallback shown, ZelGUIIntCallback left) {
        const int id = ZelGUITabAdd(dialog, 100, 300, 2000, 500, shown, left);
        ZelGUITabAddPage(id, "One");
        ZelGUITabAddPage(id, "Two");
        return id;
    };
    const auto switchTab = [](QWidget *tab) {
        QTest::keyClick(static_cast<QTabWidget *>(tab)->tabBar(), Qt::Key_Right);
    };
    const auto addItem = [](int menu) { return ZelGUIMenuAddItem(menu, "Item", nullptr, report<MenuItem>); };
    const auto addMenuToggle = [](int menu) {
        return ZelGUIMenuAddToggle(menu, "Toggle", nullptr, reportInt<MenuToggle>);
    };
    const auto clickEntry = [](QMenu *menu, int) {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().first()).center());
    };
    const auto chooseEntry = [](QMenu *menu, int) { QTest::keyClick(menu, Qt::Key_Return); };
    const auto addList = [](int dialog) {
        const int list = ZelGUIListAdd(dialog, 1, 1, 1000, 300, 1, reportList<List>);
        ZelGUIListAppendItem(list, "A");
        ZelGUIListAppendItem(list, "B");
        return list;
    };
    // Rejecting, so that the field goes on with what is left of it.
    answer(Text) = 0;
    return {
        {"init", Init, [](Scene &scene) { ZelGUIDialogLaunch(scene.dialog); }},
        {"OK", Ok, press("OK")},
        {"Apply", Apply, press("Apply")},
        {"Cancel", Cancel, press("Cancel")},
        {"Help", Help, press("Help")},
        {"extra", Extra,
         [press](Scene &scene) {
             ZelGUIDialogAddButtonToButtonBox(scene.dialog, "Extra", 0, report<Extra>);
             press("Extra")(scene);
         }},
        {"Escape", Cancel, [](Scene &scene) { QTest::keyClick(scene.widget, Qt::Key_Escape); }},
        {"window closed", Cancel, [](Scene &scene) { scene.widget->close(); }},
        {"push", Push,
         withWidget([](int dialog) { return ZelGUIButtonAdd(dialog, 1, 1, 1000, 100, "", report<Push>); }, click)},
        {"bitmap button", Push,
         withWidget(
             [](int dialog) {
                 return ZelGUIBitmapButtonAdd(dialog, 1, 1, 1000, 100, 0, 0, nullptr, 0, 0, 0, 0, report<Push>);
             },
             click)},
        {"toggle", Toggle,
         withWidget([](int dialog) { return ZelGUIToggleAdd(dialog, 1, 1, 1000, 100, "", reportInt<Toggle>); },
                    key(Qt::Key_Space))},
        {"bitmap toggle", Toggle,
         withWidget(
             [](int dialog) {
                 return ZelGUIBitmapToggleAdd(dialog, 1, 1, 1000, 100, 0, 0, nullptr, 0, 0, 0, 0, reportInt<Toggle>);
             },
             click)},
        {"radio box", Radio,
         withWidget(
             [](int dialog) {
                 return ZelGUIRadioBoxAdd(dialog, 1, 1, 1000, 300, "A", "B", "C", nullptr, nullptr, reportInt<Radio>);
             },
             key(Qt::Key_Space))},
        {"option menu", Option,
         withWidget([](int dialog) { return ZelGUIOptionMenuAdd(dialog, 1, 1, 1000, 100, "A,B", reportInt<Option>); },
                    key(Qt::Key_Down))},
        {"option menu, by its list", Option,
         withWidget([](int dialog) { return ZelGUIOptionMenuAdd(dialog, 1, 1, 1000, 100, "A,B", reportInt<Option>); },
                    [](QWidget *menu) {
                        static_cast<QComboBox *>(menu)->showPopup();
                        QWidget *const list = static_cast<QComboBox *>(menu)->view();
                        QTest::keyClick(list, Qt::Key_Down);
                        QTest::keyClick(list, Qt::Key_Return);
                    })},
        {"list, clicked", List,
         withWidget(addList,
                    [](QWidget *list) {
                        QTest::mouseClick(static_cast<QAbstractItemView *>(list)->viewport(), Qt::LeftButton, {},
                                          QPoint(5, 5));
                    })},
        {"list, by key", List, withWidget(addList, key(Qt::Key_Down))},
        {"text field, Return", Text, withWidget(addField, key(Qt::Key_Return))},
        {"text field, Tab", Text, withWidget(addField, key(Qt::Key_Tab))},
        {"text field, other clicked", Text,
         [addField](Scene &scene) {
             withWidget(addField, [&scene](QWidget *) {
                 QTest::mouseClick(ZelTest::boxButton(scene.widget, "Help"), Qt::LeftButton);
             })(scene);
         }},
        {"spin text field, Return", Text, withWidget(addSpin, key(Qt::Key_Return))},
        {"spin text field, Tab", Text, withWidget(addSpin, key(Qt::Key_Tab))},
        {"spin up", Up, withWidget(addSpin, key(Qt::Key_Up))},
        {"scale", Scale, withWidget(addScale, key(Qt::Key_Right))},
        {"scale, dragged", Scale,
         withWidget(addScale,
                    [](QWidget *scale) {
                        const QPoint handle(5, scale->height() / 2);
                        const QPoint middle(scale->width() / 2, scale->height() / 2);
                        QTest::mousePress(scale, Qt::LeftButton, Qt::NoModifier, handle);
                        // The test library of Qt 5 moves the mouse without its buttons.
                        QMouseEvent move(QEvent::MouseMove, middle, scale->mapToGlobal(middle), Qt::NoButton,
                                         Qt::LeftButton, Qt::NoModifier);
                        QApplication::sendEvent(scale, &move);
                    })},
        {"scale, while it is made", Drag,
         [](Scene &scene) { ZelGUIScaleAdd(scene.dialog, 100, 300, 1000, 100, 0, 9, 0, nullptr, reportInt<Drag>); }},
        {"page left", PageLeft,
         withWidget([=](int dialog) { return addTabs(dialog, nullptr, reportInt<PageLeft>); }, switchTab)},
        {"page shown", PageShown,
         withWidget([=](int dialog) { return addTabs(dialog, reportInt<PageShown>, nullptr); }, switchTab)},
        {"spin down", Down, withWidget(addSpin, key(Qt::Key_Down))},
        {"multi-line text", Text,
         withWidget([](int dialog) { return ZelGUITextAdd(dialog, 1, 1, 1000, 300, 0, reportText<Text>); },
                    key(Qt::Key_A))},
        {"menu item, clicked", MenuItem, withMenu(addItem, clickEntry)},
        {"menu item, Return", MenuItem, withMenu(addItem, chooseEntry)},
        {"menu toggle, clicked", MenuToggle, withMenu(addMenuToggle, clickEntry)},
        {"menu toggle, Return", MenuToggle, withMenu(addMenuToggle, chooseEntry)},
        {"menu toggle, set by the add-on", MenuToggle,
         withMenu(addMenuToggle, [](QMenu *, int toggle) { ZelGUIMenuSetToggle(toggle, 1); })},
    };
}

const QList<QPair<const char *, Victim>> kVictims = {{"main window", Victim::MainWindow},
                                                     {"parent dialog", Victim::ParentDialog},
                                                     {"own dialog", Victim::OwnDialog},
                                                     {"main window, in a nested dialog", Victim::NestedThenMainWindow},
                                                     {"own dialog, in its nested one", Victim::NestedThenOwnDialog}};

#define REQUIRE(condition)                                                                                             \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition);                                       \
            return 1;                                                                                                  \
        }                                                                                                              \
    } while (false)

/// Destroys the victim inside the callback, while the dialog's exec() is running.
int play(const Trigger &trigger, Victim victim)
{
    Scene scene;
    scene.mainWindow = new QMainWindow;
    scene.mainWindow->show();
    scene.parent = ZelTest::createModeless();
    scene.dialog = ZelTest::createModal(scene.parent);
    scene.widget = scene.mainWindow->findChild<QDialog *>(QString::number(scene.dialog));
    QPointer<QDialog> parentWidget = scene.mainWindow->findChild<QDialog *>(QString::number(scene.parent));
    const bool isNested = victim == Victim::NestedThenMainWindow || victim == Victim::NestedThenOwnDialog;
    const int nestedParent = victim == Victim::NestedThenOwnDialog ? scene.dialog : scene.parent;
    const int nested =
        ZelGUIDialogCreateModal(nestedParent, 1000, 1000, "", report<OtherPush>, nullptr, nullptr, nullptr, nullptr);

    // Inside the dialog: an identifier to be forgotten, and a field whose end is nothing to report.
    const int inside = ZelGUIToggleAdd(scene.dialog, 100, 100, 1000, 100, "", nullptr);
    ZelGUIToggleSet(inside, 1);

    bool isDestroyed = false;
    const bool isOwn = victim == Victim::OwnDialog || victim == Victim::NestedThenOwnDialog;
    bool isKept = false;
    bool isForgotten = false;
    const auto destroy = [&] {
        if (victim == Victim::ParentDialog)
            delete parentWidget;
        else if (isOwn)
            delete scene.widget;
        else
            delete scene.mainWindow;
        isDestroyed = true;
        // What dies with something else is kept while callbacks run, out of sight.
        isKept = isOwn || (scene.widget && !scene.widget->isVisible());
        // All identifiers have to answer as destroyed from here on.
        isForgotten = ZelGUIToggleGet(inside) == 0;
        ZelGUIDialogLaunch(scene.dialog);
        ZelGUIDialogDrop(scene.dialog);
        ZelGUIDialogDrop(nested);
    };
    action(trigger.callback) = [&] {
        action(trigger.callback) = nullptr;
        if (!isNested) {
            destroy();
            return;
        }
        QTimer::singleShot(0, qApp, destroy);
        ZelGUIDialogLaunch(nested);
    };

    if (trigger.callback == Init) {
        // A dialog that is leaving is not shown any more, not even for a moment.
        bool hasProcessedEvents = false;
        QTimer::singleShot(0, qApp, [&] { hasProcessedEvents = true; });
        trigger.act(scene);
        REQUIRE(!hasProcessedEvents || isNested);
    } else {
        QTimer::singleShot(0, qApp, [&] { trigger.act(scene); });
        ZelGUIDialogLaunch(scene.dialog);
    }
    REQUIRE(isDestroyed);
    REQUIRE(isKept);
    REQUIRE(isForgotten);
    REQUIRE(ZelGUIDialogIsUp(scene.dialog) == 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    REQUIRE(scene.widget.isNull());
    const int launches = (trigger.callback == Init ? 0 : 1) + 1 + (isNested ? 1 : 0);
    REQUIRE(log().size() == launches);
    const int next = ZelTest::createModal();
    REQUIRE((next == -2) == !scene.mainWindow);
    delete scene.mainWindow;
    return 0;
}

} // namespace

/// Dialogs that are destroyed while one of their callbacks is running. The toolkit would crash on the way out, and the
/// end of the main window is the end of the GUI, so each case has a process of its own.
class tst_Departure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void destroyedInCallback_data();
    void destroyedInCallback();
};

void tst_Departure::destroyedInCallback_data()
{
    QTest::addColumn<int>("trigger");
    QTest::addColumn<int>("victim");
    const auto all = triggers();
    for (int trigger = 0; trigger < all.size(); ++trigger) {
        for (int victim = 0; victim < kVictims.size(); ++victim)
            QTest::addRow("%s, %s", all[trigger].name, kVictims[victim].first) << trigger << victim;
    }
}

void tst_Departure::destroyedInCallback()
{
    QFETCH(int, trigger);
    QFETCH(int, victim);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QString::number(trigger), QString::number(victim)});
    QVERIFY(process.waitForFinished(60000));
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             process.readAllStandardError().constData());
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    bool isCase = false;
    const int trigger = arguments.size() == 3 ? arguments[1].toInt(&isCase) : 0;
    if (isCase)
        return play(triggers().at(trigger), kVictims.at(arguments[2].toInt()).second);
    tst_Departure test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_departure.moc"
