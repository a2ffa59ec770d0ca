// SPDX-License-Identifier: MIT
#include "support/rows.h"

#include <zvsdkbase/hostcontrol.h>
#include <zvsdkbase/zelutil.h>

#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <set>
#include <thread>

using namespace orvane::host;

namespace {

using Members = std::vector<LgIndex>;

Unreleased unreleasedOf(const std::string &label)
{
    for (const Unreleased &entry : unreleased()) {
        if (entry.label == label)
            return entry;
    }
    return {label, 0, 0};
}

Members shuffled(LgIndex count, LgIndex step)
{
    Members members;
    for (LgIndex i = 0; i < count; ++i)
        members.push_back(1 + i * step);
    std::shuffle(members.begin(), members.end(), std::mt19937(20));
    return members;
}

Members membersOf(IndexSet set)
{
    Members members;
    for (LgIndex member = ZelUtilSetGetNextMember(set, 0); member != 0; member = ZelUtilSetGetNextMember(set, member))
        members.push_back(member);
    return members;
}

/// A set of the host's has to say what the standard library's says, also from where a probe is on.
void compareWithSorted(const Members &added, const Members &probes)
{
    IndexSet set = ZelUtilSetAlloc(1);
    for (const LgIndex member : added)
        QCOMPARE(ZelUtilSetAddMember(set, member, 1), ZelBoolean(member > 0));
    std::set<LgIndex> sorted(added.begin(), added.end());
    sorted.erase(sorted.begin(), sorted.upper_bound(0));
    QCOMPARE(membersOf(set), Members(sorted.begin(), sorted.end()));
    for (const LgIndex probe : probes) {
        const auto next = sorted.upper_bound(probe);
        QCOMPARE(ZelUtilSetGetNextMember(set, probe), next == sorted.end() ? LgIndex(0) : *next);
    }
    ZelUtilSetDealloc(&set);
    QVERIFY(!set);
}

/// Calls `act` with the message box that opens during this object's life, and closes it.
class BoxVisitor
{
public:
    explicit BoxVisitor(std::function<void(QMessageBox *)> act)
    {
        m_timer.setInterval(1);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, act] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || m_visited)
                return;
            m_visited = true;
            const QPointer<QMessageBox> watched = box;
            act(box);
            // A comparison that fails in `act` must not leave the box open.
            if (watched)
                watched->close();
        });
        m_timer.start();
    }
    bool visited() const { return m_visited; }

private:
    QTimer m_timer;
    bool m_visited = false;
};

} // namespace

Q_DECLARE_METATYPE(Members)

class TestZvsdkbase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void strangePointersAreLeftAlone();
    void memoryIsZeroed();
    void unreleasedIsCountedByLabel();
    void ledgerServesManyThreads();

    void setHoldsWhatWasAdded_data();
    void setHoldsWhatWasAdded();
    void setHoldsAnyFewMembers();
    void setMergesRuns();
    void setTakesAHundredMillionMembers();
    void setMayBeStrange();

    void stringListKeepsCopies();
    void stringListMayBeStrange();

    void basicColor_data();
    void basicColor();

    void dotsPerInch();
    void addOnsAreRegisteredInOrder();

    void errorMessageIsPlainText();
    void errorMessageSurvivesItsParent_data();
    void errorMessageSurvivesItsParent();
    void errorMessageOpensNoDialog_data();
    void errorMessageOpensNoDialog();
};

void TestZvsdkbase::cleanup()
{
    setBatchModeActive(false);
    QVERIFY(unreleased().empty());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void TestZvsdkbase::strangePointersAreLeftAlone()
{
    ZelUtilStringDealloc(nullptr);
    char *null = nullptr;
    ZelUtilStringDealloc(&null);

    char own[] = "mine";
    char *foreign = own;
    ZelUtilStringDealloc(&foreign);
    QCOMPARE(foreign, own);

    char *string = ZelUtilStringAlloc(4, nullptr);
    char *again = string;
    char *inner = string + 1;
    ZelUtilStringDealloc(&inner);
    QCOMPARE(unreleased().size(), std::size_t(1));
    ZelUtilStringDealloc(&string);
    QVERIFY(!string);
    ZelUtilStringDealloc(&again);

    IndexSet set = ZelUtilSetAlloc(0);
    char *notAString = reinterpret_cast<char *>(set);
    ZelUtilStringDealloc(&notAString);
    QCOMPARE(ZelUtilSetAddMember(set, 1, 0), ZelBoolean(1));
    ZelUtilSetDealloc(&set);
}

void TestZvsdkbase::memoryIsZeroed()
{
    char *array = ZelUtilStringAlloc(1000, "array");
    QVERIFY(std::all_of(array, array + 1000, [](char c) { return c == 0; }));
    ZelUtilStringDealloc(&array);
    QVERIFY(!ZelUtilStringAlloc(std::numeric_limits<std::size_t>::max(), "too much"));
    char *nothing = ZelUtilStringAlloc(0, "nothing");
    QVERIFY(nothing);
    ZelUtilStringDealloc(&nothing);
}

void TestZvsdkbase::unreleasedIsCountedByLabel()
{
    char *b1 = ZelUtilStringAlloc(10, "b");
    char *a = ZelUtilStringAlloc(7, "a");
    char *b2 = ZelUtilStringAlloc(5, "b");
    StringList_s *list = ZelUtilStringListAlloc();
    ZelUtilStringListAppendString(list, "123456789");
    IndexSet set = ZelUtilSetAlloc(0);

    QStringList all;
    for (const Unreleased &entry : unreleased())
        all << QStringLiteral("%1: %2").arg(QString::fromStdString(entry.label)).arg(entry.count);
    QCOMPARE(all.join(QLatin1Char(' ')), QStringLiteral("a: 1 b: 2 index set: 1 string list: 1"));
    QCOMPARE(unreleasedOf("a").bytes, std::size_t(7));
    QCOMPARE(unreleasedOf("b").bytes, std::size_t(15));
    QVERIFY(unreleasedOf("string list").bytes >= 10);

    ZelUtilStringDealloc(&b1);
    QCOMPARE(unreleasedOf("b").count, std::size_t(1));
    QCOMPARE(unreleasedOf("b").bytes, std::size_t(5));
    ZelUtilStringDealloc(&a);
    ZelUtilStringDealloc(&b2);
    ZelUtilStringListDealloc(&list);
    ZelUtilSetDealloc(&set);
}

void TestZvsdkbase::ledgerServesManyThreads()
{
    const auto work = [] {
        for (int i = 0; i < 2000; ++i) {
            char *string = ZelUtilStringAlloc(8, i % 2 ? "odd" : "even");
            IndexSet set = ZelUtilSetAlloc(0);
            for (LgIndex member = 1; member < 10; member += 2)
                ZelUtilSetAddMember(set, member, 0);
            ZelUtilSetDealloc(&set);
            ZelUtilStringDealloc(&string);
        }
    };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(work);
    for (std::thread &thread : threads)
        thread.join();
    QVERIFY(unreleased().empty());
}

void TestZvsdkbase::setHoldsWhatWasAdded_data()
{
    const Rows<Members> row("added");
    row("random, dense", shuffled(20000, 1));
    row("random, every second", shuffled(20000, 2));
    using Limits = std::numeric_limits<LgIndex>;
    row("largest index", {Limits::max(), 1, Limits::max() - 1, Limits::max()});
    row("no index", {0, 1, -1, Limits::min()});
    Members mixed = shuffled(30000, 1);
    mixed.resize(10000);
    row("random, some", mixed);
}

void TestZvsdkbase::setHoldsWhatWasAdded()
{
    QFETCH(const Members, added);
    compareWithSorted(added, added);
}

/// All orders, with repetitions, in which runs begin, grow and join.
void TestZvsdkbase::setHoldsAnyFewMembers()
{
    constexpr int kLength = 6;
    using Limits = std::numeric_limits<LgIndex>;
    Members probes = {Limits::min(), -1, Limits::max()};
    for (LgIndex probe = 0; probe <= kLength + 1; ++probe)
        probes.push_back(probe);
    for (int i = 0; i < 46656; ++i) {
        Members added;
        for (int rest = i; int(added.size()) < kLength; rest /= kLength)
            added.push_back(1 + rest % kLength);
        compareWithSorted(added, probes);
        if (QTest::currentTestFailed())
            return;
    }
}

void TestZvsdkbase::setMergesRuns()
{
    IndexSet set = ZelUtilSetAlloc(0);
    ZelUtilSetAddMember(set, 1, 0);
    const std::size_t oneRun = unreleasedOf("index set").bytes;
    for (LgIndex member = 3; member < 2000; member += member % 3 + 2)
        ZelUtilSetAddMember(set, member, 0);
    QVERIFY(unreleasedOf("index set").bytes > 100 * oneRun / 2);
    for (LgIndex member = 2; member < 2000; ++member)
        ZelUtilSetAddMember(set, member, 0);
    QCOMPARE(unreleasedOf("index set").bytes, oneRun);
    ZelUtilSetDealloc(&set);
}

void TestZvsdkbase::setTakesAHundredMillionMembers()
{
    const LgIndex count = 100000000;
    IndexSet set = ZelUtilSetAlloc(0);
    for (LgIndex member = 1; member <= count; ++member)
        ZelUtilSetAddMember(set, member, 0);
    QVERIFY(unreleasedOf("index set").bytes < 1000);
    QCOMPARE(ZelUtilSetGetNextMember(set, count - 1), count);
    QCOMPARE(ZelUtilSetGetNextMember(set, count), LgIndex(0));
    ZelUtilSetDealloc(&set);
}

void TestZvsdkbase::setMayBeStrange()
{
    ZelUtilSetDealloc(nullptr);
    char *string = ZelUtilStringAlloc(100, "no set");
    IndexSet released = ZelUtilSetAlloc(0);
    ZelUtilSetAddMember(released, 1, 0);
    IndexSet copy = released;
    ZelUtilSetDealloc(&copy);

    for (IndexSet set : {IndexSet(), reinterpret_cast<IndexSet>(string), released, reinterpret_cast<IndexSet>(1)}) {
        QCOMPARE(ZelUtilSetAddMember(set, 2, 0), ZelBoolean(0));
        QCOMPARE(ZelUtilSetGetNextMember(set, 0), LgIndex(0));
        ZelUtilSetDealloc(&set);
    }
    ZelUtilStringDealloc(&string);
}

void TestZvsdkbase::stringListKeepsCopies()
{
    StringList_s *list = ZelUtilStringListAlloc();
    char text[] = "first";
    QCOMPARE(ZelUtilStringListAppendString(list, text), ZelBoolean(1));
    text[0] = 'X';
    QCOMPARE(ZelUtilStringListAppendString(list, nullptr), ZelBoolean(1));
    QCOMPARE(ZelUtilStringListGetCount(list), LgIndex(2));

    char *first = ZelUtilStringListGetString(list, 1);
    char *second = ZelUtilStringListGetString(list, 2);
    for (const LgIndex position : {LgIndex(0), LgIndex(-1), LgIndex(3), std::numeric_limits<LgIndex>::max()})
        QVERIFY(!ZelUtilStringListGetString(list, position));
    ZelUtilStringListDealloc(&list);
    QVERIFY(!list);
    QCOMPARE(first, "first");
    QCOMPARE(second, "");
    ZelUtilStringDealloc(&first);
    ZelUtilStringDealloc(&second);
}

void TestZvsdkbase::stringListMayBeStrange()
{
    ZelUtilStringListDealloc(nullptr);
    StringList_s *released = ZelUtilStringListAlloc();
    StringList_s *copy = released;
    ZelUtilStringListDealloc(&copy);
    for (StringList_s *list : {static_cast<StringList_s *>(nullptr), released}) {
        QCOMPARE(ZelUtilStringListAppendString(list, "text"), ZelBoolean(0));
        QCOMPARE(ZelUtilStringListGetCount(list), LgIndex(0));
        QVERIFY(!ZelUtilStringListGetString(list, 1));
        ZelUtilStringListDealloc(&list);
    }
}

void TestZvsdkbase::basicColor_data()
{
    const Rows<int, QString> row("color", "name");
    // The names are those of the toolkit's own table, so the components don't come from here.
    const char *const names[] = {"black", "silver", "gray",  "white",  "maroon", "red",  "purple", "fuchsia",
                                 "green", "lime",   "olive", "yellow", "navy",   "blue", "teal",   "aqua"};
    int color = 0;
    for (const char *name : names)
        row(name, color++, name);
    row("below the first", -1, "black");
    row("behind the last", 16, "black");
    row("far below", std::numeric_limits<int>::min(), "black");
}

void TestZvsdkbase::basicColor()
{
    QFETCH(const int, color);
    QFETCH(const QString, name);
    unsigned char red = 1;
    unsigned char green = 1;
    unsigned char blue = 1;
    ZelUtilColorMapGetBasicColorRGB(color, &red, &green, &blue);
    QCOMPARE(QColor(red, green, blue), QColor(name));
    ZelUtilColorMapGetBasicColorRGB(color, nullptr, nullptr, nullptr);
}

void TestZvsdkbase::dotsPerInch()
{
    double screenHorizontal = 0.0;
    double screenVertical = 0.0;
    ZelUtilInterfaceGetDotsPerInch(&screenHorizontal, &screenVertical);
    QVERIFY(screenHorizontal > 0.0);
    QVERIFY(screenVertical > 0.0);

    overrideDotsPerInch(120.5, 144.0);
    double horizontal = 0.0;
    double vertical = 0.0;
    ZelUtilInterfaceGetDotsPerInch(&horizontal, nullptr);
    ZelUtilInterfaceGetDotsPerInch(nullptr, &vertical);
    QCOMPARE(horizontal, 120.5);
    QCOMPARE(vertical, 144.0);

    useScreenDotsPerInch();
    ZelUtilInterfaceGetDotsPerInch(&horizontal, &vertical);
    QCOMPARE(horizontal, screenHorizontal);
    QCOMPARE(vertical, screenVertical);
}

void TestZvsdkbase::addOnsAreRegisteredInOrder()
{
    const auto launch = [] {};
    ZelUtilAddOnRegister("Second by name", "Summary", launch);
    ZelUtilAddOnRegister("First by name", nullptr, launch);
    ZelUtilAddOnRegister(nullptr, "No name", launch);
    ZelUtilAddOnRegister("", "Empty name", launch);
    ZelUtilAddOnRegister("Nothing to launch", "", nullptr);
    const std::vector<AddOn> addOns = registeredAddOns();
    QCOMPARE(addOns.size(), std::size_t(2));
    QCOMPARE(addOns[0].name, std::string("Second by name"));
    QCOMPARE(addOns[0].summary, std::string("Summary"));
    QCOMPARE(addOns[1].name, std::string("First by name"));
}

void TestZvsdkbase::errorMessageIsPlainText()
{
    QMainWindow window;
    window.show();
    const BoxVisitor visitor([&window](QMessageBox *box) {
        QCOMPARE(box->text(), QString::fromUtf8("<b>Grüß</b> & more"));
        QCOMPARE(box->textFormat(), Qt::PlainText);
        QCOMPARE(box->icon(), QMessageBox::Critical);
        QCOMPARE(box->windowTitle(), QGuiApplication::applicationDisplayName());
        QCOMPARE(box->parentWidget(), &window);
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
    ZelUtilDialogErrMsg("<b>Gr\xC3\xBC\xC3\x9F</b> & more");
    QVERIFY(visitor.visited());
    QVERIFY(window.findChildren<QMessageBox *>().isEmpty());
}

void TestZvsdkbase::errorMessageSurvivesItsParent_data()
{
    QTest::addColumn<bool>("onDialog");
    QTest::newRow("main window") << false;
    QTest::newRow("modal dialog") << true;
}

void TestZvsdkbase::errorMessageSurvivesItsParent()
{
    QFETCH(const bool, onDialog);
    auto window = std::make_unique<QMainWindow>();
    window->show();
    auto *dialog = new QDialog(window.get());
    dialog->setModal(true);
    dialog->setVisible(onDialog);
    const BoxVisitor visitor([&](const QMessageBox *box) {
        const QWidget *const parent = onDialog ? static_cast<QWidget *>(dialog) : window.get();
        const bool isOnIt = box->parentWidget() == parent;
        window.reset();
        QVERIFY(isOnIt);
    });
    ZelUtilDialogErrMsg("Its window goes");
    QVERIFY(visitor.visited());
    QVERIFY(!window);
}

void TestZvsdkbase::errorMessageOpensNoDialog_data()
{
    const Rows<QByteArray, bool, bool> row("message", "batch", "withWindow");
    row("null", QByteArray(), false, true);
    row("empty", "", false, true);
    row("batch mode", "Expected line: batch mode", true, true);
    row("no main window", "Expected line: no main window", false, false);
}

void TestZvsdkbase::errorMessageOpensNoDialog()
{
    QFETCH(const QByteArray, message);
    QFETCH(const bool, batch);
    QFETCH(const bool, withWindow);
    std::unique_ptr<QMainWindow> window;
    if (withWindow)
        window = std::make_unique<QMainWindow>();
    setBatchModeActive(batch);
    QCOMPARE(ZelUtilMacroIsBatchModeActive(), ZelBoolean(batch));
    const BoxVisitor visitor([](QMessageBox *) {});
    ZelUtilDialogErrMsg(message.isNull() ? nullptr : message.constData());
    QVERIFY(!visitor.visited());
}

QTEST_MAIN(TestZvsdkbase)
#include "tst_zvsdkbase.moc"
