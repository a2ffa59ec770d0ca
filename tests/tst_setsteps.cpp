// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QApplication>
#include <QLineEdit>

#include <algorithm>
#include <cstdlib>
#include <set>

/// A host's own index sets, which know no ranges, and which fail where a test asks for it.
struct IndexSet_s
{
    std::set<LgIndex> members;
};

namespace {

int setsAlive = 0;
QVector<LgIndex> added;
LgIndex refusedMember = 0;
bool isSetRefused = false;
bool isStringRefused = false;

} // namespace

// All of these are called in place of the reference host's.
extern "C" {
IndexSet ZelUtilSetAlloc(ZelBoolean)
{
    if (isSetRefused)
        return nullptr;
    ++setsAlive;
    return new IndexSet_s;
}

ZelBoolean ZelUtilSetAddMember(IndexSet set, LgIndex member, ZelBoolean)
{
    added << member;
    if (member == refusedMember)
        return 0;
    set->members.insert(member);
    return 1;
}

// Without a function for the ends of runs, this one is of no use.
ZelBoolean ZelUtilSetAddRange(IndexSet, LgIndex first, LgIndex last, LgIndex step, ZelBoolean)
{
    added << first << last << step;
    return 0;
}

LgIndex ZelUtilSetGetNextMember(IndexSet set, LgIndex after)
{
    const auto next = set->members.upper_bound(after);
    return next == set->members.end() ? 0 : *next;
}

void ZelUtilSetDealloc(IndexSet *set)
{
    delete *set;
    *set = nullptr;
    --setsAlive;
}

char *ZelUtilStringAlloc(size_t size, const char *)
{
    return isStringRefused ? nullptr : static_cast<char *>(std::malloc(size));
}

void ZelUtilStringDealloc(char **string)
{
    std::free(*string);
    *string = nullptr;
}
}

/// What a host without ranges is asked for, member by member, and what becomes of it when it refuses.
class tst_SetSteps : public ZelTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init();

private Q_SLOTS:
    void read_data();
    void read();
    void refusedSet();
    void written();
    void refusedString();

private:
    int m_field = -2;
};

void tst_SetSteps::init()
{
    ZelTest::init();
    added.clear();
    refusedMember = 0;
    isSetRefused = false;
    isStringRefused = false;
    m_field = ZelGUITextFieldAdd(createModal(), 100, 100, 1000, 100, nullptr);
}

void tst_SetSteps::read_data()
{
    using Members = QVector<LgIndex>;
    const Rows<QByteArray, LgIndex, bool, Members> row("text", "refused", "isRead", "expected");
    row("one by one", "7-9, 2-9:3 5", 0, true, {7, 8, 9, 2, 5, 8, 5});
    // The rest of the range is still added; what follows it is not read any more.
    row("first refused", "1,3-5,8", 3, false, {1, 3, 4, 5});
    row("middle refused", "1,3-5,8", 4, false, {1, 3, 4, 5});
    row("last refused", "1,3-5,8", 5, false, {1, 3, 4, 5});
    // A step of 0 would never come to an end.
    for (const char *const text : {"0", "-2", "5-3", "1-9:0", "1-9:-1"})
        row(text, text, 0, false, {});
}

void tst_SetSteps::read()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isRead);
    QFETCH(LgIndex, refused);
    refusedMember = refused;
    ZelGUITextFieldSetString(m_field, text.constData());
    IndexSet set = nullptr;
    QCOMPARE(bool(ZelGUITextFieldGetSet(m_field, &set)), isRead);
    // Not by QCOMPARE: of empty ones, the toolkit compares what is at null.
    QFETCH(QVector<LgIndex>, expected);
    QVERIFY(std::equal(added.begin(), added.end(), expected.begin(), expected.end()));
    QCOMPARE(set != nullptr, isRead);
    QCOMPARE(setsAlive, isRead ? 1 : 0);
    if (set)
        ZelUtilSetDealloc(&set);
    QCOMPARE(bool(ZelGUITextFieldGetSet(m_field, nullptr)), isRead);
    QCOMPARE(setsAlive, 0);
}

void tst_SetSteps::refusedSet()
{
    isSetRefused = true;
    ZelGUITextFieldSetString(m_field, "1");
    IndexSet set = nullptr;
    QCOMPARE(ZelGUITextFieldGetSet(m_field, &set), 0);
    QCOMPARE(ZelGUITextFieldGetSet(m_field, nullptr), 0);
    QCOMPARE(setsAlive, 0);
}

void tst_SetSteps::written()
{
    IndexSet_s runsAndMembers{{1, 2, 3, 5, 7, 8}};
    ZelGUITextFieldSetSet(m_field, &runsAndMembers, 0);
    QCOMPARE(object<QLineEdit>(m_field)->text(), QString("1-3,5,7-8"));
    IndexSet_s endOfAllNumbers{{1, INT64_MAX - 1, INT64_MAX}};
    ZelGUITextFieldSetSet(m_field, &endOfAllNumbers, 0);
    QCOMPARE(object<QLineEdit>(m_field)->text(), QString("1,9223372036854775806-9223372036854775807"));

    // As long as a line can be, without brackets. Cut, it would be another set.
    IndexSet_s longest{{1001, 1003, 1005}};
    for (LgIndex member = 200000; longest.members.size() < 3 + 4679; member += 2)
        longest.members.insert(member);
    ZelGUITextFieldSetSet(m_field, &longest, 0);
    QCOMPARE(object<QLineEdit>(m_field)->text().size(), 32767);
    ZelGUITextFieldSetString(m_field, "before");
    ZelGUITextFieldSetSet(m_field, &longest, 1);
    QCOMPARE(object<QLineEdit>(m_field)->text(), QString("before"));
}

void tst_SetSteps::refusedString()
{
    IndexSet_s set{{1, 2, 3}};
    ZelGUITextFieldSetString(m_field, "before");
    isStringRefused = true;
    QVERIFY(!ZelGUITextFieldGetString(m_field));
    ZelGUITextFieldSetSet(m_field, &set, 1);
    QCOMPARE(object<QLineEdit>(m_field)->text(), QString());
}

// ZELTEST_MAIN would bring another set of the host's functions.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    tst_SetSteps test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_setsteps.moc"
