// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QLineEdit>

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
    void membersAreAddedOneByOne();
    void notARange();
    void refusedMember_data();
    void refusedMember();
    void refusedSet();
    void written_data();
    void written();
    void refusedString();

private:
    int m_field = -2;
};

void tst_SetSteps::init()
{
    ZelTest::init();
    added.clear();
    ::refusedMember = 0;
    isSetRefused = false;
    isStringRefused = false;
    m_field = ZelGUITextFieldAdd(createModal(), 100, 100, 1000, 100, nullptr);
}

void tst_SetSteps::membersAreAddedOneByOne()
{
    ZelGUITextFieldSetString(m_field, "7-9, 2-9:3 5");
    IndexSet set = nullptr;
    QCOMPARE(ZelGUITextFieldGetSet(m_field, &set), 1);
    QCOMPARE(added, QVector<LgIndex>({7, 8, 9, 2, 5, 8, 5}));
    QCOMPARE(setsAlive, 1);
    ZelUtilSetDealloc(&set);
    QCOMPARE(ZelGUITextFieldGetSet(m_field, nullptr), 1);
    QCOMPARE(setsAlive, 0);
}

// A step of 0 would never come to an end.
void tst_SetSteps::notARange()
{
    for (const char *const text : {"0", "-2", "5-3", "1-9:0", "1-9:-1"}) {
        ZelGUITextFieldSetString(m_field, text);
        QCOMPARE(ZelGUITextFieldGetSet(m_field, nullptr), 0);
    }
    QCOMPARE(added, QVector<LgIndex>());
}

void tst_SetSteps::refusedMember_data()
{
    QTest::addColumn<qint64>("member");
    QTest::newRow("first") << qint64(3);
    QTest::newRow("middle") << qint64(4);
    QTest::newRow("last") << qint64(5);
}

// The rest of the range is still added; what follows it is not read any more.
void tst_SetSteps::refusedMember()
{
    QFETCH(qint64, member);
    ::refusedMember = member;
    ZelGUITextFieldSetString(m_field, "1,3-5,8");
    IndexSet set = nullptr;
    QCOMPARE(ZelGUITextFieldGetSet(m_field, &set), 0);
    QCOMPARE(added, QVector<LgIndex>({1, 3, 4, 5}));
    QVERIFY(!set);
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

void tst_SetSteps::written_data()
{
    QTest::addColumn<QVector<LgIndex>>("members");
    QTest::addColumn<QString>("text");
    using Members = QVector<LgIndex>;
    QTest::newRow("runs and members") << Members({1, 2, 3, 5, 7, 8}) << "1-3,5,7-8";
    QTest::newRow("a run at the end of all numbers")
        << Members({1, INT64_MAX - 1, INT64_MAX}) << "1,9223372036854775806-9223372036854775807";
}

void tst_SetSteps::written()
{
    QFETCH(QVector<LgIndex>, members);
    IndexSet_s set{{members.begin(), members.end()}};
    ZelGUITextFieldSetSet(m_field, &set, 0);
    QTEST(object<QLineEdit>(m_field)->text(), "text");
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

ZELTEST_MAIN(tst_SetSteps)
#include "tst_setsteps.moc"
