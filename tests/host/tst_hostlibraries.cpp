// SPDX-License-Identifier: MIT
// What the library expects of the host's five libraries.
#include <common_ui_qt/mainwindow.h>
#include <zvsdkbase/hostcontrol.h>
#include <zvsdkbase/zelutil.h>
#include <zvsdkdialogs_common_qt/qtdialogabstract.h>
#include <zvsdkdialogs_prompt_qt/colorchooserdialog.h>
#include <zvtoolbox/stringlist.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <array>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <set>
#include <thread>

#include <dlfcn.h>

using namespace orvane::host;
using orvane::dialogs::common::QtDialogAbstract;
using orvane::dialogs::prompt::ColorChooserDialog;
using orvane::ui::findMainWindow;

namespace {

using Limits = std::numeric_limits<LgIndex>;

bool outOfMemory = false;

/// "label: count, bytes; " for each label; without the bytes where they are the host's own affair.
QByteArray held()
{
    QByteArray text;
    for (const Unreleased &entry : unreleased()) {
        text += entry.label.c_str() + (": " + QByteArray::number(qulonglong(entry.count)));
        text += entry.label.find(' ') == std::string::npos ? ", " + QByteArray::number(qulonglong(entry.bytes)) + "; "
                                                           : "; ";
    }
    return text;
}

/// Calls `act` with the message box that opens during this object's life, and closes it.
class BoxVisitor
{
public:
    explicit BoxVisitor(std::function<void(QMessageBox *)> act)
    {
        m_timer.setInterval(1);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, act] {
            const QPointer<QMessageBox> box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || m_visited)
                return;
            m_visited = true;
            act(box);
            // A comparison that fails in `act` must not leave the box open.
            if (box)
                box->close();
        });
        m_timer.start();
    }
    bool visited() const { return m_visited; }

private:
    QTimer m_timer;
    bool m_visited = false;
};

} // namespace

/// Takes the place of the host's function, in the host's libraries too.
char *ZelUtilStringAlloc(size_t size, const char *label)
{
    using Function = char *(*)(size_t, const char *);
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "ZelUtilStringAlloc"));
    return outOfMemory ? nullptr : original(size, label);
}

class TestHostLibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void strangePointersAreLeftAlone();
    void memoryIsZeroedAndCounted();
    void ledgerServesManyThreads();

    void setsHoldWhatWasAdded();
    void setsTakeLittle();
    void stringListsKeepCopies();

    void basicColors();
    void dotsPerInch();
    void addOnsAreRegisteredInOrder();
    void mainWindowIsFound();
    void oneDefaultButton();

    void errorMessageIsPlainText();
    void errorMessageSurvivesItsParent();
    void errorMessageOpensNoDialog();
};

void TestHostLibraries::cleanup()
{
    setBatchModeActive(false);
    QCOMPARE(held(), QByteArray());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

/// Each pointer with the functions of each kind that it isn't of.
void TestHostLibraries::strangePointersAreLeftAlone()
{
    char own[] = "mine";
    char *string = ZelUtilStringAlloc(100, nullptr);
    StringList_s *list = ZelUtilStringListAlloc();
    IndexSet set = ZelUtilSetAlloc(0);
    char *releasedString = ZelUtilStringAlloc(100, "released");
    StringList_s *releasedList = ZelUtilStringListAlloc();
    IndexSet releasedSet = ZelUtilSetAlloc(0);
    ZelUtilSetAddMember(releasedSet, 1, 0);
    const QList<void *> strange = {nullptr,        own,
                                   string + 1,     string,
                                   list,           set,
                                   releasedString, releasedList,
                                   releasedSet,    reinterpret_cast<void *>(1)};
    ZelUtilStringDealloc(&releasedString);
    ZelUtilStringListDealloc(&releasedList);
    ZelUtilSetDealloc(&releasedSet);
    QVERIFY(!releasedString && !releasedList && !releasedSet);

    for (void *const pointer : strange) {
        auto *text = static_cast<char *>(pointer);
        auto *strings = static_cast<StringList_s *>(pointer);
        auto *members = static_cast<IndexSet>(pointer);
        if (pointer != string)
            ZelUtilStringDealloc(&text);
        if (pointer != list) {
            QCOMPARE(ZelUtilStringListAppendString(strings, "text"), ZelBoolean(0));
            QCOMPARE(ZelUtilStringListGetCount(strings), LgIndex(0));
            QVERIFY(!ZelUtilStringListGetString(strings, 1));
            ZelUtilStringListDealloc(&strings);
        }
        if (pointer != set) {
            QCOMPARE(ZelUtilSetAddMember(members, 2, 0), ZelBoolean(0));
            QCOMPARE(ZelUtilSetGetNextMember(members, 0), LgIndex(0));
            ZelUtilSetDealloc(&members);
        }
        QVERIFY(text == pointer && strings == pointer && members == pointer);
    }
    ZelUtilStringDealloc(nullptr);
    ZelUtilStringListDealloc(nullptr);
    ZelUtilSetDealloc(nullptr);
    QCOMPARE(held(), QByteArray("index set: 1; no label: 1; string list: 1; "));
    ZelUtilStringDealloc(&string);
    ZelUtilStringListDealloc(&list);
    ZelUtilSetDealloc(&set);
}

void TestHostLibraries::memoryIsZeroedAndCounted()
{
    QVERIFY(!ZelUtilStringAlloc(std::numeric_limits<std::size_t>::max(), "too much"));
    char *nothing = ZelUtilStringAlloc(0, "nothing");
    QVERIFY(nothing);
    char *b1 = ZelUtilStringAlloc(1000, "b");
    QVERIFY(std::all_of(b1, b1 + 1000, [](char c) { return c == 0; }));
    char *a = ZelUtilStringAlloc(7, "a");
    char *b2 = ZelUtilStringAlloc(5, "b");
    QCOMPARE(held(), QByteArray("a: 1, 7; b: 2, 1005; nothing: 1, 0; "));
    ZelUtilStringDealloc(&b1);
    ZelUtilStringDealloc(&nothing);
    QCOMPARE(held(), QByteArray("a: 1, 7; b: 1, 5; "));
    ZelUtilStringDealloc(&a);
    ZelUtilStringDealloc(&b2);
}

void TestHostLibraries::ledgerServesManyThreads()
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
}

/// Compared with the standard library's set: few members within a small space, so that runs begin, grow and join.
void TestHostLibraries::setsHoldWhatWasAdded()
{
    std::mt19937 random(20);
    const auto upTo = [&random](LgIndex largest) { return LgIndex(random()) % (largest + 1); };
    for (int round = 0; round < 20000; ++round) {
        const LgIndex start = round % 2 ? 0 : Limits::max() - 49;
        IndexSet set = ZelUtilSetAlloc(1);
        std::set<LgIndex> members;
        for (LgIndex count = upTo(10); count > 0; --count) {
            const LgIndex first = start + upTo(20) - (start ? 0 : 2);
            const LgIndex last = upTo(2) ? first : first - 1 + upTo(30);
            const LgIndex step = last == first ? 1 : upTo(4);
            const bool isValid = first >= 1 && last >= first && step >= 1;
            const ZelBoolean isAdded =
                last == first ? ZelUtilSetAddMember(set, first, 1) : ZelUtilSetAddRange(set, first, last, step, 1);
            QCOMPARE(isAdded, ZelBoolean(isValid));
            for (LgIndex distance = 0; isValid && distance <= last - first; distance += step)
                members.insert(first + distance);
        }
        QCOMPARE(ZelUtilSetGetNextMember(set, Limits::min()), members.empty() ? LgIndex(0) : *members.begin());
        for (LgIndex distance = 0; distance <= 49; ++distance) {
            const LgIndex probe = start + distance;
            const auto next = members.upper_bound(probe);
            QCOMPARE(ZelUtilSetGetNextMember(set, probe), next == members.end() ? LgIndex(0) : *next);
            LgIndex runEnd = members.count(probe) ? probe : 0;
            while (runEnd && runEnd < Limits::max() && members.count(runEnd + 1))
                ++runEnd;
            QCOMPARE(ZelUtilSetGetRunEnd(set, probe), runEnd);
        }
        ZelUtilSetDealloc(&set);
        QVERIFY(!set);
    }
}

/// Members next to each other take no room of their own, in whatever order they came, and are found quickly.
void TestHostLibraries::setsTakeLittle()
{
    const auto bytes = [] { return unreleased().at(0).bytes; };
    IndexSet set = ZelUtilSetAlloc(0);
    ZelUtilSetAddMember(set, 1, 0);
    const std::size_t oneRun = bytes();
    for (LgIndex member = 3; member < 2000; member += member % 3 + 2)
        ZelUtilSetAddMember(set, member, 0);
    QVERIFY(bytes() > 100 * oneRun / 2);
    for (LgIndex member = 1999; member > 1; --member)
        ZelUtilSetAddMember(set, member, 0);
    QCOMPARE(bytes(), oneRun);
    const LgIndex count = 100000000;
    for (LgIndex member = 2000; member <= count; ++member)
        ZelUtilSetAddMember(set, member, 0);
    QCOMPARE(bytes(), oneRun);
    QCOMPARE(ZelUtilSetGetNextMember(set, count - 1), count);
    QCOMPARE(ZelUtilSetGetNextMember(set, count), LgIndex(0));
    ZelUtilSetDealloc(&set);
}

void TestHostLibraries::stringListsKeepCopies()
{
    StringList_s *handle = ZelUtilStringListAlloc();
    const std::size_t empty = unreleased().at(0).bytes;
    std::string text(1000, 'a');
    const std::string first = text;
    QCOMPARE(ZelUtilStringListAppendString(handle, text.c_str()), ZelBoolean(1));
    QVERIFY(unreleased().at(0).bytes > empty + text.size());
    text[0] = 'X';
    QCOMPARE(ZelUtilStringListAppendString(handle, nullptr), ZelBoolean(1));
    ZelUtilStringListAppendString(handle, "third");
    const orvane::toolbox::StringList list(handle);
    QCOMPARE(ZelUtilStringListGetCount(handle), LgIndex(3));
    QCOMPARE(list.size(), 3);
    QCOMPARE(list.get(1), first);
    QCOMPARE(list.get(2), std::string());
    QCOMPARE(list.get(3), std::string("third"));
    for (const int position : {0, 4, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        QCOMPARE(list.get(position), std::string());
        QVERIFY(!ZelUtilStringListGetString(handle, position));
    }
    QVERIFY(!ZelUtilStringListGetString(handle, Limits::max()));
    outOfMemory = true;
    QCOMPARE(list.get(1), std::string());
    outOfMemory = false;

    char *third = ZelUtilStringListGetString(handle, 3);
    ZelUtilStringListDealloc(&handle);
    QCOMPARE(third, "third");
    ZelUtilStringDealloc(&third);
    const orvane::toolbox::StringList none(nullptr);
    QCOMPARE(none.size(), 0);
    QCOMPARE(none.get(1), std::string());
}

void TestHostLibraries::basicColors()
{
    // The toolkit knows these names, so the components don't come from here.
    const std::vector<std::string> names = {"Black", "Silver", "Gray",  "White",  "Maroon", "Red",  "Purple", "Fuchsia",
                                            "Green", "Lime",   "Olive", "Yellow", "Navy",   "Blue", "Teal",   "Aqua"};
    for (int color = -1; color <= 16; ++color) {
        const bool isKnown = color >= 0 && color < 16;
        const std::string name = isKnown ? names[std::size_t(color)] : color < 0 ? "None" : "Unknown";
        const QColor expected(isKnown ? QString::fromStdString(name) : QStringLiteral("black"));
        unsigned char red = 1;
        unsigned char green = 1;
        unsigned char blue = 1;
        ZelUtilColorMapGetBasicColorRGB(color, &red, &green, &blue);
        QCOMPARE(QColor(red, green, blue), expected);
        QCOMPARE(ColorChooserDialog::colorToString(color, true), name);
        QCOMPARE(ColorChooserDialog::colorToString(color, false), isKnown ? expected.name().toStdString() : name);
        ZelUtilColorMapGetBasicColorRGB(color, nullptr, nullptr, nullptr);
    }
}

void TestHostLibraries::dotsPerInch()
{
    const auto ask = [] {
        std::array<double, 2> both{};
        ZelUtilInterfaceGetDotsPerInch(&both[0], nullptr);
        ZelUtilInterfaceGetDotsPerInch(nullptr, &both[1]);
        return both;
    };
    const QScreen *const screen = QGuiApplication::primaryScreen();
    const std::array<double, 2> ofScreen = {screen->logicalDotsPerInchX(), screen->logicalDotsPerInchY()};
    QVERIFY(ask() == ofScreen);
    overrideDotsPerInch(120.5, 144.0);
    QVERIFY(ask() == (std::array<double, 2>{120.5, 144.0}));
    useScreenDotsPerInch();
    QVERIFY(ask() == ofScreen);
}

void TestHostLibraries::addOnsAreRegisteredInOrder()
{
    const auto launch = [] {};
    ZelUtilAddOnRegister("Second by name", "Summary", launch);
    ZelUtilAddOnRegister("First by name", nullptr, launch);
    ZelUtilAddOnRegister(nullptr, "No name", launch);
    ZelUtilAddOnRegister("", "Empty name", launch);
    ZelUtilAddOnRegister("Nothing to launch", "", nullptr);
    std::string all;
    for (const AddOn &addOn : registeredAddOns())
        all += addOn.name + ": " + addOn.summary + "; ";
    QCOMPARE(all, std::string("Second by name: Summary; First by name: ; "));
}

void TestHostLibraries::mainWindowIsFound()
{
    QVERIFY(!findMainWindow(true));
    const QWidget other;
    QVERIFY(!findMainWindow(false));
    auto hidden = std::make_unique<QMainWindow>();
    QCOMPARE(findMainWindow(false), hidden.get());
    QMainWindow shown;
    shown.show();
    QCOMPARE(findMainWindow(false), hidden.get());
    QCOMPARE(findMainWindow(true), &shown);
    shown.hide();
    hidden->show();
    QCOMPARE(findMainWindow(true), hidden.get());
    hidden.reset();
    QCOMPARE(findMainWindow(false), &shown);
}

void TestHostLibraries::oneDefaultButton()
{
    QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    QPushButton *ok = box.button(QDialogButtonBox::Ok);
    QPushButton *cancel = box.button(QDialogButtonBox::Cancel);
    ok->setDefault(true);
    cancel->setAutoDefault(true);
    for (QPushButton *const button : {cancel, ok, static_cast<QPushButton *>(nullptr)}) {
        QtDialogAbstract::setDefaultButton(&box, button);
        for (const auto *const each : box.findChildren<QPushButton *>())
            QVERIFY(each->isDefault() == (each == button) && each->autoDefault() == (each == button));
    }
    QtDialogAbstract::setDefaultButton(nullptr, ok);
    QVERIFY(ok->isDefault());
    QtDialogAbstract::setDefaultButton(nullptr, nullptr);
}

void TestHostLibraries::errorMessageIsPlainText()
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

void TestHostLibraries::errorMessageSurvivesItsParent()
{
    for (const bool onDialog : {false, true}) {
        auto window = std::make_unique<QMainWindow>();
        window->show();
        auto *dialog = new QDialog(window.get());
        dialog->setModal(true);
        dialog->setVisible(onDialog);
        const QWidget *parent = nullptr;
        const BoxVisitor visitor([&](const QMessageBox *box) {
            parent = box->parentWidget();
            window.reset();
        });
        const QWidget *const expected = onDialog ? static_cast<QWidget *>(dialog) : window.get();
        ZelUtilDialogErrMsg("Its window goes");
        QCOMPARE(parent, expected);
        QVERIFY(!window);
    }
}

void TestHostLibraries::errorMessageOpensNoDialog()
{
    const BoxVisitor visitor([](QMessageBox *) {});
    ZelUtilDialogErrMsg("Expected line: there is no main window");
    const QMainWindow window;
    ZelUtilDialogErrMsg(nullptr);
    ZelUtilDialogErrMsg("");
    setBatchModeActive(true);
    ZelUtilDialogErrMsg("Expected line: batch mode");
    QVERIFY(!visitor.visited());
}

QTEST_MAIN(TestHostLibraries)
#include "tst_hostlibraries.moc"
