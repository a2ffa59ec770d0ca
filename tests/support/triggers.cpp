// SPDX-License-Identifier: MIT
#include "triggers.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QElapsedTimer>
#include <QMenu>
#include <QMenuBar>
#include <QStyleOptionSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QWheelEvent>

using namespace Callback;

namespace {

using Adder = std::function<int(int parent)>;

using Place = QPair<QWidget *, QPoint>;

struct Gesture
{
    const char *name;
    std::function<void(QWidget *)> act;
};

Gesture key(const char *name, Qt::Key which)
{
    return {name, [which](QWidget *widget) { QTest::keyClick(widget, which); }};
}

// Where a box without a label is.
const Gesture kClick = {
    "clicked", [](QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(8, widget->height() / 2)); }};
const Gesture kSpace = key("Space", Qt::Key_Space);
const Gesture kReturn = key("Return", Qt::Key_Return);
const Gesture kUp = key("Up", Qt::Key_Up);
const Gesture kDown = key("Down", Qt::Key_Down);

Gesture wheel(const char *name, int delta)
{
    return {name, [delta](QWidget *widget) {
                const QPointF place = widget->rect().center();
                QWheelEvent event(place, widget->mapToGlobal(place.toPoint()), {}, {0, delta}, Qt::NoButton,
                                  Qt::NoModifier, Qt::NoScrollPhase, false);
                QApplication::sendEvent(widget, &event);
            }};
}

Gesture clickAt(const char *name, std::function<Place(QWidget *)> find)
{
    return {name, [find](QWidget *widget) {
                const auto target = find(widget);
                QTest::mouseClick(target.first, Qt::LeftButton, {}, target.second);
            }};
}

Gesture clickArrow(QStyle::SubControl arrow)
{
    return clickAt("clicked", [arrow](QWidget *spin) {
        QStyleOptionSpinBox option;
        option.initFrom(spin);
        option.subControls = QStyle::SC_All;
        const QRect place = spin->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, spin);
        return Place(spin, place.center());
    });
}

const Gesture kDrag = {"dragged", [](QWidget *scale) {
                           const QPoint handle(5, scale->height() / 2);
                           QTest::mousePress(scale, Qt::LeftButton, Qt::NoModifier, handle);
                           ZelTest::dragTo(scale, QPoint(scale->width() / 2, scale->height() / 2));
                       }};

/// The focus goes to another window: a dialog inside that of the field, or the main window.
Gesture otherWindow(bool isInside)
{
    return {isInside ? "dialog inside" : "main window", [isInside](QWidget *field) {
                QWidget *const window = isInside ? new QDialog(field->window()) : field->window()->parentWidget();
                window->show();
                window->activateWindow();
                const auto reports = log().size();
                QElapsedTimer sinceChange;
                for (sinceChange.start(); log().size() == reports && sinceChange.elapsed() < 1000;)
                    QCoreApplication::processEvents();
            }};
}

Gesture chooseInPopup(const char *name, const Gesture &choose)
{
    return {name, [choose](QWidget *menu) {
                static_cast<QComboBox *>(menu)->showPopup();
                QWidget *const list = static_cast<QComboBox *>(menu)->view();
                QTest::keyClick(list, Qt::Key_Down);
                choose.act(list);
            }};
}

/// Opens a menu of the dialog that a widget is in, which takes the focus from the widget.
Gesture menu(const char *name, const std::function<void(QMenuBar *, QWidget *)> &open)
{
    return {name, [open](QWidget *widget) {
                const int id = ZelGUIMenuBarAdd(widget->window()->objectName().toInt());
                ZelGUIMenuAddItem(ZelGUIMenuAdd(id, "&Menu"), "Item", nullptr, nullptr);
                auto *const bar = widget->window()->findChild<QMenuBar *>(QString::number(id));
                if (QTest::qWaitFor([bar] { return bar->isVisible(); }))
                    open(bar, widget);
            }};
}

void clickFirstMenu(QMenuBar *bar)
{
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(bar->actions().first()).center());
}

/// One trigger for each gesture: adds a widget, shows and focuses it, and does as the user would.
void addWidgetTriggers(QVector<Trigger> &all, const char *kind, Name callback, const Adder &add,
                       const QVector<Gesture> &gestures)
{
    for (const Gesture &gesture : gestures) {
        all.append({QByteArray(kind) + ", " + gesture.name, callback, [add, act = gesture.act](Scene &scene) {
                        scene.sender = add(scene.dialog);
                        const QString name = QString::number(scene.sender);
                        auto *const group = scene.widget->findChild<QButtonGroup *>(name);
                        for (QAbstractButton *const button : group ? group->buttons() : QList<QAbstractButton *>())
                            button->show();
                        QWidget *const widget =
                            group ? group->buttons().last() : scene.widget->findChild<QWidget *>(name);
                        widget->show();
                        ZelTest::waitUntilActive(scene.widget);
                        widget->setFocus();
                        act(widget);
                    }});
    }
}

/// Adds a menu bar with a menu and a sub-menu, puts an entry into the latter, and opens both by mouse and keyboard.
void addMenuTriggers(QVector<Trigger> &all, const char *kind, Name callback, const Adder &add,
                     const std::function<void(QMenu *, int)> &act)
{
    all.append({kind, callback, [add, act](Scene &scene) {
                    const int barId = ZelGUIMenuBarAdd(scene.dialog);
                    const int subMenuId = ZelGUIMenuAdd(ZelGUIMenuAdd(barId, "Menu"), "Sub-menu");
                    scene.sender = add(subMenuId);
                    auto *const bar = scene.widget->findChild<QMenuBar *>(QString::number(barId));
                    auto *const subMenu = scene.widget->findChild<QMenu *>(QString::number(subMenuId));
                    if (!QTest::qWaitFor([bar] { return bar->isVisible(); }) || !ZelTest::waitUntilActive(scene.widget))
                        return;
                    clickFirstMenu(bar);
                    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
                    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Right);
                    if (QTest::qWaitFor([subMenu] { return subMenu->isVisible(); }))
                        act(subMenu, scene.sender);
                }});
}

/// Buttons of the dialog's box, and other ways to leave it.
void addDialogTriggers(QVector<Trigger> &all)
{
    const auto add = [&all](const QByteArray &name, Name callback, const std::function<void(Scene &)> &act) {
        all.append({name, callback, [act](Scene &scene) {
                        scene.sender = scene.dialog;
                        act(scene);
                    }});
    };
    add("init", Init, [](Scene &scene) { ZelGUIDialogLaunch(scene.dialog); });
    const QPair<const char *, Name> buttons[] = {{"OK", Ok},       {"Apply", Apply}, {"Cancel", Cancel},
                                                 {"Close", Close}, {"Help", Help},   {"Extra", Extra}};
    for (const auto &[text, callback] : buttons) {
        for (const Gesture &gesture : {kClick, kSpace}) {
            add(QByteArray(text) + ", " + gesture.name, callback, [text = text, act = gesture.act](Scene &scene) {
                if (QByteArray(text) == "Extra")
                    ZelGUIDialogAddButtonToButtonBox(scene.dialog, "Extra", 0, report<Extra>);
                act(ZelTest::boxButton(scene.widget, QString::fromLatin1(text)));
            });
        }
    }
    for (const Name callback : {Cancel, Close}) {
        const QByteArray suffix = callback == Close ? ", modeless" : ", modal";
        add("Escape" + suffix, callback, [](Scene &scene) { QTest::keyClick(scene.widget, Qt::Key_Escape); });
        add("window closed" + suffix, callback, [](Scene &scene) { scene.widget->close(); });
    }
}

void addValueTriggers(QVector<Trigger> &all)
{
    const auto addMenu = [](int dialog) {
        return ZelGUIOptionMenuAdd(dialog, 1, 1, 1000, 100, "A,B", reportInt<Option>);
    };
    const auto addRadioBox = [](int dialog) {
        return ZelGUIRadioBoxAdd(dialog, 1, 1, 1000, 300, "A", "B", "C", nullptr, nullptr, reportInt<Radio>);
    };
    const auto addList = [](int dialog) {
        const int list = ZelGUIListAdd(dialog, 1, 1, 1000, 300, 1, reportList<List>);
        ZelGUIListAppendItem(list, "A");
        ZelGUIListAppendItem(list, "B");
        return list;
    };
    const auto addScale = [](int dialog, ZelGUIIntCallback changed, ZelGUIIntCallback dragged) {
        return ZelGUIScaleAdd(dialog, 100, 300, 1000, 100, 0, 9, 0, changed, dragged);
    };
    addWidgetTriggers(all, "push", Push,
                      [](int dialog) { return ZelGUIButtonAdd(dialog, 1, 1, 1000, 100, "", report<Push>); },
                      {kClick, kSpace});
    addWidgetTriggers(all, "bitmap button", Push,
                      [](int dialog) {
                          return ZelGUIBitmapButtonAdd(dialog, 1, 1, 1000, 100, 0, 0, nullptr, 0, 0, 0, 0,
                                                       report<Push>);
                      },
                      {kClick, kSpace});
    addWidgetTriggers(all, "toggle", Toggle,
                      [](int dialog) { return ZelGUIToggleAdd(dialog, 1, 1, 1000, 100, "", reportInt<Toggle>); },
                      {kClick, kSpace});
    addWidgetTriggers(all, "bitmap toggle", Toggle,
                      [](int dialog) {
                          return ZelGUIBitmapToggleAdd(dialog, 1, 1, 1000, 100, 0, 0, nullptr, 0, 0, 0, 0,
                                                       reportInt<Toggle>);
                      },
                      {kClick, kSpace});
    addWidgetTriggers(all, "radio box", Radio, addRadioBox, {kClick, kSpace});
    addWidgetTriggers(all, "option menu", Option, addMenu,
                      {kDown, wheel("wheel", -120), chooseInPopup("Return in its list", kReturn)});
    addWidgetTriggers(all, "list", List, addList,
                      {clickAt("clicked",
                               [](QWidget *list) {
                                   QWidget *const viewport = static_cast<QAbstractItemView *>(list)->viewport();
                                   return Place(viewport, QPoint(5, 5));
                               }),
                       kDown});
    addWidgetTriggers(all, "scale", Scale, [=](int dialog) { return addScale(dialog, reportInt<Scale>, nullptr); },
                      {key("Right", Qt::Key_Right),
                       clickAt("clicked", [](QWidget *scale) { return Place(scale, QPoint(50, scale->height() / 2)); }),
                       wheel("wheel", 120), kDrag});
    all.append({"scale, made", Drag, [=](Scene &scene) { addScale(scene.dialog, nullptr, reportInt<Drag>); }});
    addWidgetTriggers(all, "drag of a scale", Drag,
                      [=](int dialog) {
                          // Already reported once while it is made.
                          const auto act = std::exchange(action(Drag), nullptr);
                          const int scale = addScale(dialog, nullptr, reportInt<Drag>);
                          action(Drag) = act;
                          log().removeLast();
                          return scale;
                      },
                      {kDrag});
}

void addTextTriggers(QVector<Trigger> &all)
{
    const auto addField = [](int dialog) { return ZelGUITextFieldAdd(dialog, 1, 1, 1000, 100, reportText<Text>); };
    const auto addSpin = [](int dialog) {
        return ZelGUISpinTextFieldAdd(dialog, 1, 1, 1000, 100, reportText<Text>, report<Up>, report<Down>);
    };
    const Gesture otherClicked = clickAt("other clicked", [](QWidget *field) {
        return Place(ZelTest::boxButton(field->window(), QStringLiteral("Help")), QPoint(5, 5));
    });
    const Gesture tabKey = key("Tab", Qt::Key_Tab);
    const Gesture menuClicked = menu("menu clicked", [](QMenuBar *bar, QWidget *) { clickFirstMenu(bar); });
    const Gesture menuKey =
        menu("menu's key", [](QMenuBar *, QWidget *field) { QTest::keyClick(field, Qt::Key_M, Qt::AltModifier); });
    const Gesture toggleKey = {"toggle's key", [](QWidget *field) {
                                   const int dialog = field->window()->objectName().toInt();
                                   const int id = ZelGUIToggleAdd(dialog, 1, 300, 1000, 100, "&Toggle", nullptr);
                                   field->window()->findChild<QWidget *>(QString::number(id))->show();
                                   QTest::keyClick(field, Qt::Key_T, Qt::AltModifier);
                               }};
    const QVector<Gesture> ends = {kReturn, tabKey,    otherClicked,       menuClicked,
                                   menuKey, toggleKey, otherWindow(false), otherWindow(true)};
    addWidgetTriggers(all, "text field", Text, addField, ends);
    addWidgetTriggers(all, "text field on a page", Text,
                      [=](int dialog) {
                          const int tab = ZelGUITabAdd(dialog, 100, 300, 2000, 500, nullptr, nullptr);
                          const int field = addField(ZelGUITabAddPage(tab, "One"));
                          ZelGUITabAddPage(tab, "Two");
                          return field;
                      },
                      {{"page left", [](QWidget *field) {
                            auto *const tab = field->window()->findChild<QTabWidget *>();
                            tab->show();
                            field->setFocus();
                            QTest::mouseClick(tab->tabBar(), Qt::LeftButton, {}, tab->tabBar()->tabRect(1).center());
                        }}});
    addWidgetTriggers(all, "spin text field", Text, addSpin, ends);
    addWidgetTriggers(all, "spin up", Up, addSpin, {kUp, clickArrow(QStyle::SC_SpinBoxUp), wheel("wheel", 120)});
    addWidgetTriggers(all, "spin down", Down, addSpin,
                      {kDown, clickArrow(QStyle::SC_SpinBoxDown), wheel("wheel", -120)});
    addWidgetTriggers(all, "multi-line text", Text,
                      [](int dialog) { return ZelGUITextAdd(dialog, 1, 1, 1000, 300, 0, reportText<Text>); },
                      {key("A", Qt::Key_A), kReturn});
}

void addTabAndMenuTriggers(QVector<Trigger> &all)
{
    const auto addTabs = [](int dialog, ZelGUIIntCallback shown, ZelGUIIntCallback left) {
        const int id = ZelGUITabAdd(dialog, 100, 300, 2000, 500, shown, left);
        ZelGUITabAddPage(id, "One");
        ZelGUITabAddPage(id, "Two");
        return id;
    };
    const QVector<Gesture> switches = {
        {"Right", [](QWidget *tab) { QTest::keyClick(static_cast<QTabWidget *>(tab)->tabBar(), Qt::Key_Right); }},
        clickAt("clicked", [](QWidget *tab) {
            QTabBar *const bar = static_cast<QTabWidget *>(tab)->tabBar();
            return Place(bar, bar->tabRect(1).center());
        })};
    addWidgetTriggers(
        all, "page left", PageLeft, [=](int dialog) { return addTabs(dialog, nullptr, reportInt<PageLeft>); },
        switches);
    addWidgetTriggers(
        all, "page shown", PageShown, [=](int dialog) { return addTabs(dialog, reportInt<PageShown>, nullptr); },
        switches);

    const auto addItem = [](int menu) { return ZelGUIMenuAddItem(menu, "Item", nullptr, report<MenuItem>); };
    const auto addToggle = [](int menu) { return ZelGUIMenuAddToggle(menu, "Toggle", nullptr, reportInt<MenuToggle>); };
    const auto click = [](QMenu *menu, int) {
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().first()).center());
    };
    const auto choose = [](QMenu *menu, int) { QTest::keyClick(menu, Qt::Key_Return); };
    addMenuTriggers(all, "menu item, clicked", MenuItem, addItem, click);
    addMenuTriggers(all, "menu item, Return", MenuItem, addItem, choose);
    addMenuTriggers(all, "menu toggle, clicked", MenuToggle, addToggle, click);
    addMenuTriggers(all, "menu toggle, Return", MenuToggle, addToggle, choose);
    addMenuTriggers(all, "menu toggle, set by the add-on", MenuToggle, addToggle,
                    [](QMenu *, int toggle) { ZelGUIMenuSetToggle(toggle, 1); });
}

} // namespace

QVector<Trigger> triggers()
{
    QVector<Trigger> all;
    addDialogTriggers(all);
    addValueTriggers(all);
    addTextTriggers(all);
    addTabAndMenuTriggers(all);
    return all;
}
