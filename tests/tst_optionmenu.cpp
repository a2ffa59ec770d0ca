// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QComboBox>

#include <limits>

using namespace Callback;

namespace {

QString itemText(int id, int position)
{
    return QString::fromUtf8(ZelTest::taken(ZelGUIOptionMenuGetString(id, position)));
}

} // namespace

/// Drop-down lists.
class tst_OptionMenu : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void items_data();
    void items();
    void positions_data();
    void positions();
    void byString();
    void editing();
    void userChoice();
};

void tst_OptionMenu::items_data()
{
    const Rows<QByteArray, QStringList> row("list", "items");
    row("trimmed", "Linear, Log ,\tCustom,Last\n, ", {"Linear", "Log", "Custom", "Last", ""});
    row("empty ones", ",A,,B,", {"", "A", "", "B", ""});
    row("nothing", "", {""});
    row("null", QByteArray(), {""});
    row("Latin-1", "\xC4,\xA0x", {QString(QChar(0xC4)), QString(QChar(0xA0)) + "x"});
}

void tst_OptionMenu::items()
{
    QFETCH(QByteArray, list);
    QFETCH(QStringList, items);
    const int id = ZelGUIOptionMenuAdd(createModal(), 100, 100, 1000, 100, list.isNull() ? nullptr : list.constData(),
                                       reportInt<Option>);
    QCOMPARE(ZelGUIOptionMenuGetItemCount(id), int(items.size()));
    for (int position = 1; position <= items.size(); ++position)
        QCOMPARE(itemText(id, position), items[position - 1]);
    QCOMPARE(ZelGUIOptionMenuGet(id), 1);
    QVERIFY(!object<QComboBox>(id)->isEditable());
}

void tst_OptionMenu::positions_data()
{
    const Rows<int, QString, int, int> row("position", "text", "chosen", "countAfterDelete");
    row("first", 1, "A", 1, 2);
    row("last", 3, "C", 3, 2);
    row("before the first", 0, "", 0, 3);
    row("behind the last", 4, "", 0, 3);
    row("negative", -1, "", 0, 3);
    row("least", std::numeric_limits<int>::min(), "", 0, 3);
    row("greatest", std::numeric_limits<int>::max(), "", 0, 3);
}

void tst_OptionMenu::positions()
{
    QFETCH(int, position);
    const int id = ZelGUIOptionMenuAdd(createModal(), 100, 100, 1000, 100, "A,B,C", reportInt<Option>);
    QTEST(itemText(id, position), "text");
    ZelGUIOptionMenuSet(id, 2);
    ZelGUIOptionMenuSet(id, position);
    QTEST(ZelGUIOptionMenuGet(id), "chosen");
    ZelGUIOptionMenuDeleteItemAtPos(id, position);
    QTEST(ZelGUIOptionMenuGetItemCount(id), "countAfterDelete");
    QCOMPARE(log(), QStringList());
}

void tst_OptionMenu::byString()
{
    const int id = ZelGUIOptionMenuAdd(createModal(), 100, 100, 1000, 100, "Linear,Log,\xC4,Log", reportInt<Option>);
    QCOMPARE(ZelGUIOptionMenuSetByString(id, "Log"), 2);
    QCOMPARE(ZelGUIOptionMenuSetByString(id, "log"), -1);
    QCOMPARE(ZelGUIOptionMenuSetByString(id, "Lo"), -1);
    QCOMPARE(ZelGUIOptionMenuGet(id), 2);
    QCOMPARE(ZelGUIOptionMenuSetByString(id, "\xC3\x84"), 3);
    QCOMPARE(ZelGUIOptionMenuGet(id), 3);
    QCOMPARE(log(), QStringList());
}

void tst_OptionMenu::editing()
{
    const int id = ZelGUIOptionMenuAdd(createModal(), 100, 100, 1000, 100, "A,B", reportInt<Option>);
    ZelGUIOptionMenuAppendItem(id, " C, D\xC3\xA9 ");
    QCOMPARE(itemText(id, 3), QString::fromUtf8(" C, D\xC3\xA9 "));
    ZelGUIOptionMenuSet(id, 3);
    ZelGUIOptionMenuDeleteItemAtPos(id, 3);
    QCOMPARE(ZelGUIOptionMenuGet(id), 2);
    ZelGUIOptionMenuDeleteAllItems(id);
    QCOMPARE(ZelGUIOptionMenuGet(id), 0);
    QCOMPARE(ZelGUIOptionMenuGetItemCount(id), 0);
    ZelGUIOptionMenuAppendItem(id, "new");
    QCOMPARE(ZelGUIOptionMenuGet(id), 1);
    QCOMPARE(log(), QStringList());
}

void tst_OptionMenu::userChoice()
{
    const int id = ZelGUIOptionMenuAdd(launchModeless(), 100, 100, 1000, 120, "A,B,C", reportInt<Option>);
    auto *const menu = shown<QComboBox>(id);
    QTest::keyClick(menu, Qt::Key_End);
    QTest::keyClick(menu, Qt::Key_End);
    QTest::keyClick(menu, Qt::Key_Up);
    ZelGUIOptionMenuSet(id, 0);
    QTest::keyClick(menu, Qt::Key_Home);
    // A host that takes the choice away leaves no position to report.
    menu->setCurrentIndex(-1);
    QCOMPARE(log(), QStringList({"Option 3", "Option 2", "Option 1"}));
}

ZELTEST_MAIN(tst_OptionMenu)
#include "tst_optionmenu.moc"
