// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

using namespace Callback;

/// Menus as a user works them, by mouse and by keyboard.
class tst_Menu : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void identifiers();
    void texts();
    void mouse();
    void keyboard_data();
    void keyboard();
    void deletedItem();
    void setToggle();
    void setToggleInCallback();
    void rightClickOffersNothing();

private:
    void clickTitle(int place);
    static void clickEntry(QMenu *menu, int place);

    int m_dialog = -2;
    int m_file = -2;
    int m_item = -2;
    int m_toggle = -2;
    int m_view = -2;
    int m_subMenu = -2;
    QMenuBar *m_bar = nullptr;
};

/// A visible dialog with the menus File (Open, a line, Lock) and View (Zoom, which is a sub-menu: In, Out).
void tst_Menu::init()
{
    ZelTest::init();
    m_dialog = launchModeless();
    const int bar = ZelGUIMenuBarAdd(m_dialog);
    m_file = ZelGUIMenuAdd(bar, "&File");
    m_item = ZelGUIMenuAddItem(m_file, "&Open", "not read", report<MenuItem>);
    ZelGUIMenuAddSeparator(m_file);
    m_toggle = ZelGUIMenuAddToggle(m_file, "&Lock", nullptr, reportInt<MenuToggle>);
    m_view = ZelGUIMenuAdd(bar, "&View");
    m_subMenu = ZelGUIMenuAdd(m_view, "&Zoom");
    ZelGUIMenuAddItem(m_subMenu, "&In", nullptr, report<Up>);
    ZelGUIMenuAddItem(m_subMenu, "&Out", nullptr, report<Down>);
    m_bar = object<QMenuBar>(bar);
    // The toolkit shows it when the event loop comes round.
    QVERIFY(QTest::qWaitFor([this] { return m_bar->isVisible(); }));
    QCOMPARE(log(), QStringList());
}

void tst_Menu::clickTitle(int place)
{
    QTest::mouseClick(m_bar, Qt::LeftButton, {}, m_bar->actionGeometry(m_bar->actions().at(place)).center());
}

void tst_Menu::clickEntry(QMenu *menu, int place)
{
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().at(place)).center());
}

void tst_Menu::identifiers()
{
    const int bar = m_bar->objectName().toInt();
    QCOMPARE(QVector<int>({m_file, m_item, m_toggle, m_view, m_subMenu}),
             QVector<int>({bar + 1, bar + 2, bar + 3, bar + 4, bar + 5}));
    QCOMPARE(m_bar->actions(),
             QList<QAction *>({object<QMenu>(m_file)->menuAction(), object<QMenu>(m_view)->menuAction()}));
    QCOMPARE(object<QMenu>(m_view)->actions(), QList<QAction *>({object<QMenu>(m_subMenu)->menuAction()}));
    const auto entries = object<QMenu>(m_file)->actions();
    QCOMPARE(entries.size(), 3);
    QVERIFY(entries[1]->isSeparator());
}

void tst_Menu::texts()
{
    QCOMPARE(object<QMenu>(ZelGUIMenuAdd(m_view, " Fl\xFCsse "))->title(), QString::fromUtf8(" Flüsse "));
    QCOMPARE(object<QAction>(ZelGUIMenuAddToggle(m_file, "\xC4 ", nullptr, nullptr))->text(), QString::fromUtf8("Ä "));
    ZelGUIMenuItemSetText(m_item, "L\xF6schen");
    QCOMPARE(object<QAction>(m_item)->text(), QString::fromUtf8("Löschen"));
}

void tst_Menu::mouse()
{
    clickTitle(0);
    clickEntry(object<QMenu>(m_file), 0);
    QCOMPARE(log(), QStringList({"MenuItem"}));
    QVERIFY(!QApplication::activePopupWidget());

    clickTitle(1);
    clickEntry(object<QMenu>(m_view), 0);
    QTRY_VERIFY(object<QMenu>(m_subMenu)->isVisible());
    clickEntry(object<QMenu>(m_subMenu), 1);
    QCOMPARE(log(), QStringList({"MenuItem", "Down"}));
}

void tst_Menu::keyboard_data()
{
    const Rows<QStringList, QStringList> row("keys", "reports");
    row("mnemonics", {"Alt+F", "O"}, {"MenuItem"});
    row("arrows skip the line", {"Alt+F", "Down", "Return"}, {"MenuToggle 1"});
    row("toggled twice", {"Alt+F", "L", "Alt+F", "Up", "Return"}, {"MenuToggle 1", "MenuToggle 0"});
    row("sub-menu, mnemonics", {"Alt+V", "Z", "O"}, {"Down"});
    row("sub-menu, arrows", {"Alt+F", "Right", "Right", "Return"}, {"Up"});
    // They close the menu and leave the bar; the dialog stays.
    row("Escape", {"Alt+F", "Esc", "Esc"}, QStringList());
}

void tst_Menu::keyboard()
{
    QFETCH(QStringList, keys);
    QFETCH(QStringList, reports);
    for (const QString &key : keys) {
        QWidget *const popup = QApplication::activePopupWidget();
        QWidget *const focus = QApplication::focusWidget();
        QTest::keySequence(popup ? popup : focus ? focus : object<QWidget>(m_dialog), QKeySequence(key));
    }
    QCOMPARE(log(), reports);
    QCOMPARE(ZelGUIDialogIsUp(m_dialog), ZelBoolean{1});
}

void tst_Menu::deletedItem()
{
    ZelGUIMenuDeleteItem(m_item);
    ZelGUIMenuDeleteItem(m_item);
    ZelGUIMenuDeleteItem(m_toggle);
    QCOMPARE(object<QMenu>(m_file)->actions().size(), 1);
    QCOMPARE(m_bar->actions().size(), 2);
    // Both can still be reached.
    ZelGUIMenuItemSetText(m_item, "Unseen");
    QCOMPARE(object<QAction>(m_item)->text(), QStringLiteral("Unseen"));
    ZelGUIMenuSetToggle(m_toggle, 1);
    QCOMPARE(log(), QStringList({"MenuToggle 1"}));
}

void tst_Menu::setToggle()
{
    ZelGUIMenuSetToggle(m_toggle, 1);
    ZelGUIMenuSetToggle(m_toggle, 1);
    QCOMPARE(log(), QStringList({"MenuToggle 1"}));
    // Only 1 is on.
    ZelGUIMenuSetToggle(m_toggle, 2);
    QCOMPARE(log(), QStringList({"MenuToggle 1", "MenuToggle 0"}));
}

void tst_Menu::setToggleInCallback()
{
    action(MenuToggle) = [this] { ZelGUIMenuSetToggle(m_toggle, 0); };
    for (int i = 0; i < 2; ++i) {
        clickTitle(0);
        clickEntry(object<QMenu>(m_file), 2);
    }
    QCOMPARE(log(), QStringList({"MenuToggle 1", "MenuToggle 1"}));
}

void tst_Menu::rightClickOffersNothing()
{
    bool isOffered = false;
    QTimer::singleShot(0, m_bar, [&] {
        if (QWidget *const popup = QApplication::activePopupWidget()) {
            isOffered = true;
            popup->close();
        }
    });
    QWidget *const window = m_bar->window();
    const QPoint nothing = m_bar->mapTo(window, m_bar->rect().bottomRight() - QPoint(4, 4));
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, nothing);
    QCoreApplication::processEvents();
    QVERIFY(!isOffered);
}

ZELTEST_MAIN(tst_Menu)
#include "tst_menu.moc"
