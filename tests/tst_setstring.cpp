// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <zvsdkbase/hostcontrol.h>

#include <QLineEdit>

using namespace Callback;

namespace {

/// A set of these members, the caller's.
IndexSet makeSet(const QVector<LgIndex> &members)
{
    const IndexSet set = ZelUtilSetAlloc(0);
    for (const LgIndex member : members)
        ZelUtilSetAddMember(set, member, 0);
    return set;
}

QVector<LgIndex> membersOf(IndexSet set)
{
    QVector<LgIndex> members;
    for (LgIndex member = ZelUtilSetGetNextMember(set, 0); member != 0; member = ZelUtilSetGetNextMember(set, member))
        members << member;
    return members;
}

} // namespace

/// Index sets as the text of a field.
class tst_SetString : public ZelTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

private Q_SLOTS:
    void reading_data();
    void reading();
    void notASet_data();
    void notASet();
    void writing_data();
    void writing();
    void longRangesAndManyMembers();

private:
    int m_field = -2;
};

void tst_SetString::init()
{
    ZelTest::init();
    m_field = ZelGUITextFieldAdd(createModal(), 100, 100, 1000, 100, reportText<Text>);
}

void tst_SetString::cleanup()
{
    QVERIFY(orvane::host::unreleased().empty());
    ZelTest::cleanup();
}

void tst_SetString::reading_data()
{
    QTest::addColumn<QVector<LgIndex>>("members");
    using Members = QVector<LgIndex>;
    const auto row = [](const char *text, const Members &members) { QTest::newRow(*text ? text : "empty") << members; };
    row("", {});
    row(" \t", {});
    row("[]", {});
    row("[", {});
    row("1-3,5,7-9", {1, 2, 3, 5, 7, 8, 9});
    row("[1-3, 5 ,7-9]", {1, 2, 3, 5, 7, 8, 9});
    row("1 2 3", {1, 2, 3});
    row("9 , 2,2-3", {2, 3, 9});
    row("1-10:3", {1, 4, 7, 10});
    row("1 - 9 : 3", {1, 4, 7});
    row("3 - 5", {3, 4, 5});
    row("\t1,\t", {1});
    row("[1,2", {1, 2});
    row("[4]xyz", {4});
    row(" [ 4 ] ]", {4});
    row("9999999999", {9999999999});
}

void tst_SetString::reading()
{
    QFETCH(QVector<LgIndex>, members);
    const QByteArray text = QTest::currentDataTag();
    ZelGUITextFieldSetString(m_field, text == "empty" ? "" : text.constData());
    IndexSet set = nullptr;
    QCOMPARE(ZelGUITextFieldGetSet(m_field, &set), 1);
    QCOMPARE(membersOf(set), members);
    ZelUtilSetDealloc(&set);
    QCOMPARE(ZelGUITextFieldGetSet(m_field, nullptr), 1);
}

void tst_SetString::notASet_data()
{
    QTest::addColumn<int>("unused");
    for (const char *const text : {"0",
                                   "-2",
                                   "5-3",
                                   "1-9:0",
                                   "1-9:-1",
                                   "1,,2",
                                   ",1",
                                   "1;2",
                                   "abc",
                                   "1-",
                                   "1-9:",
                                   "12345678901",
                                   "1]",
                                   "]",
                                   "1[2]",
                                   "[ ",
                                   "[[1]",
                                   "1-2-3",
                                   "1:2",
                                   "\xC2\xA0"
                                   "1",
                                   "\xD9\xA3",
                                   "1.5"})
        QTest::newRow(text) << 0;
}

void tst_SetString::notASet()
{
    ZelGUITextFieldSetString(m_field, QTest::currentDataTag());
    const IndexSet before = makeSet({1});
    IndexSet set = before;
    QCOMPARE(ZelGUITextFieldGetSet(m_field, &set), 0);
    QVERIFY(!set);
    set = before;
    ZelUtilSetDealloc(&set);
}

void tst_SetString::writing_data()
{
    QTest::addColumn<QVector<LgIndex>>("members");
    QTest::addColumn<QString>("text");
    using Members = QVector<LgIndex>;
    QTest::newRow("empty") << Members() << "";
    QTest::newRow("one") << Members({4}) << "4";
    QTest::newRow("a run of two") << Members({1, 2}) << "1-2";
    QTest::newRow("two") << Members({1, 3}) << "1,3";
    QTest::newRow("runs and members") << Members({9, 8, 7, 5, 3, 2, 1}) << "1-3,5,7-9";
    QTest::newRow("the greatest") << Members({INT64_MAX, INT64_MAX - 1}) << "9223372036854775806-9223372036854775807";
}

void tst_SetString::writing()
{
    QFETCH(QVector<LgIndex>, members);
    QFETCH(QString, text);
    IndexSet set = makeSet(members);
    ZelGUITextFieldSetSet(m_field, set, 0);
    QCOMPARE(object<QLineEdit>(m_field)->text(), text);
    ZelGUITextFieldSetSet(m_field, set, 2);
    QCOMPARE(object<QLineEdit>(m_field)->text(), "[" + text + "]");
    ZelUtilSetDealloc(&set);
    ZelGUITextFieldSetSet(m_field, nullptr, 1);
    QCOMPARE(object<QLineEdit>(m_field)->text(), QString("[]"));
    ZelGUITextFieldSetSet(m_field, nullptr, 0);
    QCOMPARE(object<QLineEdit>(m_field)->text(), QString());
    QCOMPARE(log(), QStringList());
}

// Member by member, the first of these would take minutes to read and to write.
void tst_SetString::longRangesAndManyMembers()
{
    IndexSet set = nullptr;
    ZelGUITextFieldSetString(m_field, "1-9999999999");
    QCOMPARE(ZelGUITextFieldGetSet(m_field, &set), 1);
    QCOMPARE(ZelUtilSetGetNextMember(set, 9999999998), LgIndex(9999999999));
    ZelGUITextFieldSetSet(m_field, set, 0);
    QCOMPARE(object<QLineEdit>(m_field)->text(), QString("1-9999999999"));
    ZelUtilSetDealloc(&set);

    ZelGUITextFieldSetString(m_field, "2-400000:4");
    QCOMPARE(ZelGUITextFieldGetSet(m_field, &set), 1);
    QCOMPARE(membersOf(set).size(), 100000);
    ZelUtilSetDealloc(&set);
}

ZELTEST_MAIN(tst_SetString)
#include "tst_setstring.moc"
