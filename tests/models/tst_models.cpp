// SPDX-License-Identifier: MIT
#include "models/integermodel.h"
#include "models/setmodel.h"
#include "models/textgenerator.h"
#include "support/zeltest.h"

#include <zvsdkbase/hostcontrol.h>

#include <cstdlib>
#include <limits>

namespace {

// Ranges up to ten digits long are right and take minutes.
constexpr LgIndex kMostMentions = 20000;

QStringList &messages()
{
    static QStringList all;
    return all;
}

quint64 numberFromEnvironment(const char *name, quint64 otherwise)
{
    bool isNumber = false;
    const quint64 number = qEnvironmentVariable(name).toULongLong(&isNumber);
    return isNumber ? number : otherwise;
}

QByteArray textOf(int field)
{
    char *text = ZelGUITextFieldGetString(field);
    QByteArray copy(text);
    ZelUtilStringDealloc(&text);
    return copy;
}

IndexSet makeSet(const std::vector<LgIndex> &members)
{
    const IndexSet set = ZelUtilSetAlloc(0);
    for (const LgIndex member : members)
        ZelUtilSetAddMember(set, member, 0);
    return set;
}

std::vector<LgIndex> takeMembers(IndexSet set)
{
    std::vector<LgIndex> members;
    for (LgIndex member = ZelUtilSetGetNextMember(set, 0); member != 0; member = ZelUtilSetGetNextMember(set, member))
        members.push_back(member);
    ZelUtilSetDealloc(&set);
    return members;
}

} // namespace

// Called in place of the host's, which would wait for the user.
extern "C" void ZelUtilDialogErrMsg(const char *message)
{
    messages() << QString::fromUtf8(message);
}

/// What fields read and show, compared with models over generated texts.
///
/// ZELGUI_SEED chooses other texts and ZELGUI_CASES how many. A failure names the seed which has its case come first.
class tst_Models : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void setsAreReadAsTold() { forEachCase(&tst_Models::readSet); }
    void setsAreWrittenAsTold() { forEachCase(&tst_Models::writeSet); }
    void integersAreReadAsTold() { forEachCase(&tst_Models::readInteger); }
    void integersAreWrittenAsTold() { forEachCase(&tst_Models::writeInteger); }
    void integersAreValidatedAsTold() { forEachCase(&tst_Models::validateInteger); }
    void longRangesAndManyMembers();
    void cleanupTestCase() { QVERIFY(orvane::host::unreleased().empty()); }

private:
    using Case = bool (tst_Models::*)(TextGenerator &, QString &shown);
    void forEachCase(Case isAsTold);

    bool readSet(TextGenerator &generator, QString &shown);
    bool writeSet(TextGenerator &generator, QString &shown);
    bool readInteger(TextGenerator &generator, QString &shown);
    bool writeInteger(TextGenerator &generator, QString &shown);
    bool validateInteger(TextGenerator &generator, QString &shown);

    int m_fields[2] = {};
};

void tst_Models::initTestCase()
{
    ZelTest::initTestCase();
    const int dialog = createModal();
    m_fields[0] = ZelGUITextFieldAdd(dialog, 100, 100, 1000, 100, nullptr);
    m_fields[1] = ZelGUISpinTextFieldAdd(dialog, 100, 300, 1000, 100, nullptr, nullptr, nullptr);
}

void tst_Models::forEachCase(Case isAsTold)
{
    const quint64 first = numberFromEnvironment("ZELGUI_SEED", 1);
    const quint64 count = numberFromEnvironment("ZELGUI_CASES", 10000);
    for (quint64 seed = first; seed < first + count; ++seed) {
        TextGenerator generator(seed);
        QString shown;
        const bool isRight = (this->*isAsTold)(generator, shown);
        QVERIFY2(isRight, qPrintable(QStringLiteral("ZELGUI_SEED=%1: %2").arg(seed).arg(shown)));
    }
}

bool tst_Models::readSet(TextGenerator &generator, QString &shown)
{
    QString text = generator.setText();
    auto told = SetModel::read(text);
    while (SetModel::mentions(told.ranges) > kMostMentions) {
        text = generator.setText();
        told = SetModel::read(text);
    }
    ZelGUITextFieldSetString(m_fields[0], text.toUtf8().constData());
    auto set = reinterpret_cast<IndexSet>(this);
    const bool isRead = ZelGUITextFieldGetSet(m_fields[0], &set) == 1;
    const bool isReadForNobody = ZelGUITextFieldGetSet(m_fields[0], nullptr) == 1;
    const bool isHandedOut = set != nullptr;
    const auto members = takeMembers(set);
    shown = QStringLiteral("\"%1\" was %2read").arg(text, isRead ? QString() : QStringLiteral("not "));
    return isRead == told.isSet && isReadForNobody == isRead && isHandedOut == isRead &&
           members == (told.isSet ? SetModel::members(told.ranges) : std::vector<LgIndex>());
}

bool tst_Models::writeSet(TextGenerator &generator, QString &shown)
{
    const auto members = generator.members();
    const ZelBoolean includeBrackets = generator.boolean();
    IndexSet set = makeSet(members);
    ZelGUITextFieldSetSet(m_fields[0], set, includeBrackets);
    ZelUtilSetDealloc(&set);
    const QString told = SetModel::write(members, includeBrackets != 0);
    shown = QString::fromUtf8(textOf(m_fields[0])) + QStringLiteral(" instead of ") + told;
    return told == QString::fromUtf8(textOf(m_fields[0]));
}

bool tst_Models::readInteger(TextGenerator &generator, QString &shown)
{
    const QString text = generator.integerText();
    const int field = m_fields[generator.oneIn(2) ? 1 : 0];
    ZelGUITextFieldSetString(field, text.toUtf8().constData());
    LgIndex value = 77;
    const bool isInteger = ZelGUITextFieldGetLgIndex(field, &value) == 1;
    const bool isIntegerForNobody = ZelGUITextFieldGetLgIndex(field, nullptr) == 1;
    const auto told = IntegerModel::read(text);
    shown = QStringLiteral("\"%1\" was read as %2 (%3)").arg(text).arg(value).arg(isInteger);
    return isInteger == told.isInteger && isIntegerForNobody == isInteger && value == told.value;
}

bool tst_Models::writeInteger(TextGenerator &generator, QString &shown)
{
    const LgIndex value = generator.integer();
    const ZelBoolean displayAsMX = generator.boolean();
    const int field = m_fields[generator.oneIn(2) ? 1 : 0];
    ZelGUITextFieldSetLgIndex(field, value, displayAsMX);
    const QString told = IntegerModel::write(value, displayAsMX != 0);
    shown = QString::fromUtf8(textOf(field)) + QStringLiteral(" instead of ") + told;
    return told == QString::fromUtf8(textOf(field));
}

bool tst_Models::validateInteger(TextGenerator &generator, QString &shown)
{
    const QString text = generator.integerText();
    const LgIndex max = generator.integer();
    // Often just what an MX expression comes to.
    const bool isAtMinimum = generator.oneIn(2) && std::abs(max / 2) < std::numeric_limits<int>::max();
    const LgIndex min = isAtMinimum ? max + IntegerModel::read(text).value : generator.integer();
    const ZelBoolean allowMX = generator.boolean();
    const IntegerModel::Limits limits = {min, max, allowMX != 0};
    const bool isNamed = !generator.oneIn(4);
    const QString name = QStringLiteral("%1 of é");
    const int field = m_fields[generator.oneIn(2) ? 1 : 0];
    ZelGUITextFieldSetString(field, text.toUtf8().constData());
    messages().clear();
    const bool isValid = ZelGUITextFieldValidateLgIndex(field, isNamed ? name.toLatin1().constData() : nullptr,
                                                        limits.min, limits.max, allowMX) == 1;
    const auto told = IntegerModel::validate(text, name, limits);
    const bool isTold = isNamed && !told.isValid;
    shown = QStringLiteral("\"%1\" from %2 to %3: %4 \"%5\"")
                .arg(text, QString::number(limits.min), QString::number(limits.max), QString::number(isValid),
                     messages().join(QLatin1Char('|')));
    return isValid == told.isValid && messages() == (isTold ? QStringList(told.message) : QStringList());
}

// Member by member, the first of these would take minutes to read and to write.
void tst_Models::longRangesAndManyMembers()
{
    IndexSet set = nullptr;
    ZelGUITextFieldSetString(m_fields[0], "1-9999999999");
    QCOMPARE(ZelGUITextFieldGetSet(m_fields[0], &set), 1);
    QCOMPARE(ZelUtilSetGetNextMember(set, 9999999998), LgIndex(9999999999));
    ZelGUITextFieldSetSet(m_fields[0], set, 0);
    QCOMPARE(textOf(m_fields[0]), QByteArray("1-9999999999"));
    ZelUtilSetDealloc(&set);

    ZelGUITextFieldSetString(m_fields[0], "1-9999999999:4 3-9999999999:4 5000000000 8888888888-9999999999");
    QCOMPARE(ZelGUITextFieldGetSet(m_fields[0], &set), 1);
    QCOMPARE(ZelUtilSetGetNextMember(set, 4999999998), LgIndex(4999999999));
    QCOMPARE(ZelUtilSetGetNextMember(set, 5000000001), LgIndex(5000000003));
    QCOMPARE(ZelUtilSetGetNextMember(set, 9999999997), LgIndex(9999999998));
    const QByteArray before = textOf(m_fields[0]);
    ZelGUITextFieldSetSet(m_fields[0], set, 0);
    QCOMPARE(textOf(m_fields[0]), before);
    ZelUtilSetDealloc(&set);

    ZelGUITextFieldSetString(m_fields[0], "2-400000:4");
    QCOMPARE(ZelGUITextFieldGetSet(m_fields[0], &set), 1);
    QCOMPARE(takeMembers(set).size(), std::size_t(100000));
}

ZELTEST_MAIN(tst_Models)
#include "tst_models.moc"
