// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QRadioButton>

#include <limits>

using namespace Callback;

/// Radio boxes: one identifier for a column of radio buttons.
class tst_RadioBox : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void labels_data();
    void labels();
    void column();
    void choice();
};

void tst_RadioBox::labels_data()
{
    const Rows<QVector<QByteArray>, QStringList> row("labels", "texts");
    using Labels = QVector<QByteArray>;
    row("two", Labels({"A", "B"}), {"A", "B"});
    row("a gap", Labels({"A", "B", {}, "D"}), {"A", "B", "D"});
    row("an empty one counts", Labels({"A", "B", ""}), {"A", "B", ""});
    row("the first two always count", Labels({{}, {}, "C"}), {"", "", "C"});
    row("blanks and Latin-1", Labels({" A ", "\xC4", "C", "D", "E"}), {" A ", QString(QChar(0xC4)), "C", "D", "E"});
}

void tst_RadioBox::labels()
{
    QFETCH(QVector<QByteArray>, labels);
    QFETCH(QStringList, texts);
    const auto label = [&](int i) {
        return i >= labels.size() || labels[i].isNull() ? nullptr : labels[i].constData();
    };
    const int id = ZelGUIRadioBoxAdd(createModal(), 100, 100, 1000, 500, label(0), label(1), label(2), label(3),
                                     label(4), nullptr);
    const auto buttons = object<QButtonGroup>(id)->buttons();
    QStringList found;
    for (const QAbstractButton *const button : buttons)
        found << button->text();
    QCOMPARE(found, texts);
    QCOMPARE(ZelGUIRadioBoxGetToggle(id), 1);
}

void tst_RadioBox::column()
{
    const int dialog = createModal();
    const int id = ZelGUIRadioBoxAdd(dialog, 100, 200, 1000, 100, "A", "B", "C", nullptr, nullptr, nullptr);
    const auto buttons = object<QButtonGroup>(id)->buttons();
    for (int i = 0; i < 3; ++i) {
        const int toggle = ZelGUIToggleAdd(dialog, 100, 200 + i * 33, 1000, 33, "", nullptr);
        QCOMPARE(buttons[i]->geometry(), object<QWidget>(toggle)->geometry());
    }
    const int huge = ZelGUIRadioBoxAdd(dialog, 1, std::numeric_limits<int>::max(), 1, std::numeric_limits<int>::max(),
                                       "A", "B", nullptr, nullptr, nullptr, nullptr);
    QCOMPARE(object<QButtonGroup>(huge)->buttons().last()->y(), 32767);
}

void tst_RadioBox::choice()
{
    const int dialog = launchModeless();
    const int id = ZelGUIRadioBoxAdd(dialog, 100, 100, 1000, 300, "A", "B", "C", nullptr, nullptr, reportInt<Radio>);
    const auto buttons = object<QButtonGroup>(id)->buttons();
    for (QAbstractButton *const button : buttons)
        button->show();
    const auto click = [&](int position) {
        QAbstractButton *const button = buttons[position - 1];
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
    };
    click(1);
    click(3);
    QTest::keyClick(buttons[2], Qt::Key_Up);
    QCOMPARE(log(), QStringList({"Radio 1", "Radio 3", "Radio 2"}));
    for (const int position : {0, 4, -1, std::numeric_limits<int>::min()}) {
        ZelGUIRadioBoxSetToggle(id, position);
        QCOMPARE(ZelGUIRadioBoxGetToggle(id), 2);
    }
    ZelGUIRadioBoxSetToggle(id, 3);
    QCOMPARE(ZelGUIRadioBoxGetToggle(id), 3);
    QCOMPARE(log().size(), 3);
    // By assistive technology.
    auto *const actions = QAccessible::queryAccessibleInterface(buttons[0])->actionInterface();
    actions->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(log().mid(3), QStringList("Radio 1"));
    // A switch without a click has no effect on what the next click reports.
    click(1);
    QCOMPARE(log().mid(4), QStringList("Radio 1"));
}

ZELTEST_MAIN(tst_RadioBox)
#include "tst_radiobox.moc"
