// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <zvsdkbase/hostcontrol.h>

#include <QDialog>
#include <QListWidget>
#include <QRandomGenerator>
#include <QScrollBar>

#include <algorithm>
#include <limits>

using namespace Callback;

namespace {

using Positions = QVector<int>;

int addList(int dialog, bool isMultiSelection = true, int items = 0, ZelGUIIntCallback callback = reportList<List>)
{
    const int id = ZelGUIListAdd(dialog, 100, 100, 2000, 800, isMultiSelection, callback);
    for (int position = 1; position <= items; ++position)
        ZelGUIListAppendItem(id, QByteArray::number(position).constData());
    return id;
}

void setItems(int id, const QVector<QByteArray> &texts)
{
    StringList_s *items = ZelUtilStringListAlloc();
    for (const QByteArray &text : texts)
        ZelUtilStringListAppendString(items, text.constData());
    ZelGUIListSetItems(id, items);
    ZelUtilStringListDealloc(&items);
}

QString itemOf(int id, int position)
{
    return QString::fromUtf8(ZelTest::taken(ZelGUIListGetString(id, position)));
}

QStringList itemsOf(int id)
{
    QStringList texts;
    for (int position = 1; position <= ZelGUIListGetItemCount(id); ++position)
        texts << itemOf(id, position);
    return texts;
}

void release(int *positions)
{
    auto *memory = reinterpret_cast<char *>(positions);
    ZelUtilStringDealloc(&memory);
}

Positions selectionOf(int id)
{
    int *selected = nullptr;
    int count = 0;
    ZelGUIListGetSelectedItems(id, &selected, &count);
    // A host without memory hands out a number alone.
    const Positions positions(selected, selected ? selected + count : selected);
    release(selected);
    return positions;
}

void select(int id, const Positions &positions)
{
    ZelGUIListSetSelectedItems(id, positions.constData(), int(positions.size()));
}

/// One after the other, each in a range of its own.
void selectEverySecond(int id)
{
    for (int position = 2; position <= ZelGUIListGetItemCount(id); position += 2)
        ZelGUIListSetSelectedItem(id, position);
}

/// First and last position of each range, in the order of the selection.
QVector<QPair<int, int>> rangesOf(const QListWidget &list)
{
    QVector<QPair<int, int>> ranges;
    for (const QItemSelectionRange &range : list.selectionModel()->selection())
        ranges << qMakePair(range.top() + 1, range.bottom() + 1);
    return ranges;
}

/// The toolkit's own answer, from 1.
Positions selectedRowsOf(const QListWidget &list)
{
    Positions positions;
    for (const QModelIndex &index : list.selectionModel()->selectedRows(0))
        positions << index.row() + 1;
    return positions;
}

Positions sorted(Positions positions)
{
    std::sort(positions.begin(), positions.end());
    return positions;
}

void selectRange(QListWidget &list, int first, int last, QItemSelectionModel::SelectionFlags command)
{
    const auto *const model = list.model();
    list.selectionModel()->select(QItemSelection(model->index(first - 1, 0), model->index(last - 1, 0)), command);
}

void click(QListWidget *list, int position, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPoint point = list->visualItemRect(list->item(position - 1)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, point);
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(int, QListWidget &, QListWidget &)>)

/// Lists. What selecting many items at once has to come to is asked of a bare list widget of the toolkit's, where they
/// are selected one by one.
class tst_List : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void items();
    void anyByteAsksForMultiSelection();
    void randomChanges();
    void oneAtATimeAmongMany_data();
    void oneAtATimeAmongMany();
    void oneAtATimeBehindAPage();
    void oneAtATimeBeforeASort();
    void oneAtATimeUntilTheEnd();
    void userSelection();
    void userSelectsAllAfterMany();
    void userSelectsOne();
    void scrolling();
    void capacity();
    void smallSizes();
    void changedItemsBehindTheUser_data();
    void changedItemsBehindTheUser();
    void handedOutSelection();
};

void tst_List::items()
{
    const int id = addList(createModal());
    QCOMPARE(ZelGUIListGetItemCount(id), 0);
    ZelGUIListAppendItem(id, " 20 \xC2\xB0, x ");
    ZelGUIListAppendItem(id, "");
    QCOMPARE(itemsOf(id), QStringList({QString::fromUtf8(" 20 \xC2\xB0, x "), QString()}));
    setItems(id, {"A", "\xC2\xB0", "", "D"});
    QCOMPARE(itemsOf(id), QStringList({"A", QString(QChar(0xC2)) + QChar(0xB0), "", "D"}));
    ZelGUIListReplaceItem(id, "\xC2\xB0", 2);
    ZelGUIListDeleteItemAtPos(id, 3);
    QCOMPARE(itemsOf(id), QStringList({"A", QString(QChar(0xB0)), "D"}));
    ZelGUIListDeleteAllItems(id);
    QCOMPARE(ZelGUIListGetItemCount(id), 0);
}

void tst_List::anyByteAsksForMultiSelection()
{
    QCOMPARE(object<QListWidget>(ZelGUIListAdd(createModal(), 1, 1, 1, 1, 200, nullptr))->selectionMode(),
             QAbstractItemView::ExtendedSelection);
}

/// All that changes items and selection, by the add-on, the host and the user, often with positions that no item has.
/// The ranges must be the same as in the bare list, not the order of the items alone, since what happens later depends
/// on them. Only what is not the add-on's is reported.
void tst_List::randomChanges()
{
    using Command = QItemSelectionModel;
    const QVector<Command::SelectionFlags> userCommands = {Command::ClearAndSelect, Command::Select, Command::Deselect,
                                                           Command::Toggle};
    using Limits = std::numeric_limits<int>;
    QRandomGenerator random(20240611);
    const int dialog = createModal();
    for (int trial = 0; trial < 2000; ++trial) {
        const bool isMultiSelection = trial % 4 != 0;
        const int id = addList(dialog, isMultiSelection, random.bounded(13));
        const std::unique_ptr<QListWidget> list(object<QListWidget>(id));
        QListWidget bare;
        for (int row = 0; row < list->count(); ++row) {
            list->item(row)->setText(QString::number(random.bounded(20)));
            bare.addItem(list->item(row)->text());
        }
        int changes = 0;
        connect(&bare, &QListWidget::itemSelectionChanged, this, [&changes] { ++changes; });
        QString history;

        const auto isItem = [&](int position) { return position > 0 && position <= bare.count(); };
        const auto anyPosition = [&] {
            const int missing[] = {0, -1, bare.count() + 1, Limits::min(), Limits::max()};
            return random.bounded(8) == 0 ? missing[random.bounded(5)] : random.bounded(bare.count() + 1);
        };
        const auto selectBare = [&](int position, Command::SelectionFlags command) {
            if (isItem(position))
                selectRange(bare, position, position, command);
        };
        const auto selectByUser = [&](Command::SelectionFlags command) {
            const auto ends = std::minmax({random.bounded(bare.count()) + 1, random.bounded(bare.count()) + 1});
            QDebug(&history) << ends.first << "to" << ends.second << int(command);
            selectRange(*list, ends.first, ends.second, command);
            selectRange(bare, ends.first, ends.second, command);
        };
        const auto selectSeveral = [&](int) {
            Positions positions(random.bounded(random.bounded(4) == 0 ? 2 : 15));
            std::generate(positions.begin(), positions.end(), anyPosition);
            QDebug(&history) << positions;
            select(id, positions);
            for (const int each : positions)
                selectBare(each, Command::Select);
        };
        const auto remove = [&](int where) {
            ZelGUIListDeleteItemAtPos(id, where);
            delete bare.takeItem(isItem(where) ? where - 1 : -1);
        };
        const QVector<std::function<void(int where)>> byAddOn = {
            selectSeveral,
            selectSeveral,
            selectSeveral,
            remove,
            remove,
            [&](int where) {
                ZelGUIListSetSelectedItem(id, where);
                selectBare(where, isMultiSelection ? Command::Select : Command::ClearAndSelect);
            },
            [&](int where) {
                ZelGUIListReplaceItem(id, "X", where);
                if (isItem(where))
                    bare.item(where - 1)->setText("X");
            },
            [&](int) {
                ZelGUIListSelectAllItems(id);
                selectRange(bare, 1, bare.count(), Command::Select);
            },
            [&](int) {
                ZelGUIListDeselectAllItems(id);
                bare.clearSelection();
            },
            [&](int where) {
                const QVector<QByteArray> texts(where == 1 ? 4 : 0, "new");
                where == 1 ? setItems(id, texts) : ZelGUIListDeleteAllItems(id);
                bare.clear();
                for (const QByteArray &text : texts)
                    bare.addItem(text);
            }};
        const QVector<std::function<void(int where)>> byOthers = {
            [&](int) {
                if (bare.count() > 0)
                    selectByUser(userCommands[random.bounded(int(userCommands.size()))]);
            },
            [&](int where) {
                list->insertItem(where, "inserted");
                bare.insertItem(where, "inserted");
            },
            [&](int where) {
                list->sortItems(where % 2 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
                bare.sortItems(where % 2 == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            }};

        for (int step = 0; step < 8; ++step) {
            const bool isByAddOn = random.bounded(3) > 0;
            const auto &acts = isByAddOn ? byAddOn : byOthers;
            const int act = random.bounded(int(acts.size()));
            const int where = anyPosition();
            QDebug(&history) << (isByAddOn ? "add-on" : "other") << act << where;
            changes = 0;
            log().clear();
            acts[act](where);
            QStringList texts;
            for (int row = 0; row < bare.count(); ++row)
                texts << bare.item(row)->text();
            const int other = anyPosition();
            QVERIFY2(rangesOf(*list) == rangesOf(bare), qPrintable(history));
            QVERIFY2(selectionOf(id) == selectedRowsOf(bare), qPrintable(history));
            QVERIFY2(ZelGUIListGetSelectedItem(id) == selectedRowsOf(bare).value(0, -1), qPrintable(history));
            QVERIFY2(itemsOf(id) == texts && itemOf(id, other) == (isItem(other) ? texts[other - 1] : QString()),
                     qPrintable(history));
            QVERIFY2(log().size() == (isByAddOn ? 0 : changes) && list->updatesEnabled(), qPrintable(history));
        }
        // With Shift, the user takes back what was selected last.
        if (bare.count() > 0)
            selectByUser(Command::SelectCurrent);
        QVERIFY2(sorted(selectionOf(id)) == sorted(selectedRowsOf(bare)), qPrintable(history));
    }
}

void tst_List::oneAtATimeAmongMany_data()
{
    using Step = std::function<void(int id, QListWidget &list, QListWidget &bare)>;
    QTest::addColumn<Step>("step");
    QTest::addColumn<bool>("isReported");
    const auto row = [](const char *name, const Step &step, bool isReported = true) {
        QTest::newRow(name) << step << isReported;
    };
    row("add-on reads", [](int id, QListWidget &, QListWidget &bare) {
        QCOMPARE(selectionOf(id), selectedRowsOf(bare));
        QCOMPARE(ZelGUIListGetSelectedItem(id), selectedRowsOf(bare).first());
    });
    row("add-on selects several", [](int id, QListWidget &, QListWidget &bare) {
        select(id, {700, 3, 500});
        for (const int position : {700, 3, 500})
            selectRange(bare, position, position, QItemSelectionModel::Select);
    });
    row("add-on appends and selects", [](int id, QListWidget &, QListWidget &bare) {
        ZelGUIListAppendItem(id, "new");
        bare.addItem(QString());
        ZelGUIListSetSelectedItem(id, bare.count());
        selectRange(bare, bare.count(), bare.count(), QItemSelectionModel::Select);
    });
    row("add-on deletes", [](int id, QListWidget &, QListWidget &bare) {
        ZelGUIListDeleteItemAtPos(id, 2);
        bare.model()->removeRow(1);
    });
    const auto insert = [](int, QListWidget &list, QListWidget &bare) {
        list.insertItem(2, QString());
        bare.insertItem(2, QString());
    };
    row("host inserts", insert);
    // A report comes with what was late, too.
    row("host inserts, and nothing is reported", insert, false);
    row("host removes", [](int, QListWidget &list, QListWidget &bare) {
        delete list.takeItem(1);
        delete bare.takeItem(1);
    });
    row("host removes many", [](int, QListWidget &list, QListWidget &bare) {
        list.model()->removeRows(100, 5);
        bare.model()->removeRows(100, 5);
    });
    row("user clicks", [](int, QListWidget &list, QListWidget &bare) {
        list.show();
        list.scrollToTop();
        click(&list, 2, Qt::ControlModifier);
        selectRange(bare, 2, 2, QItemSelectionModel::Toggle);
    });
    row("nobody looks", [](int, QListWidget &, QListWidget &) {});
    row("one more often than there are rows", [](int id, QListWidget &list, QListWidget &bare) {
        for (int i = 0; i <= list.count(); ++i) {
            ZelGUIListSetSelectedItem(id, 2);
            selectRange(bare, 2, 2, QItemSelectionModel::Select);
        }
    });
}

/// Among many ranges, what is selected one by one reaches the toolkit later than the call. Nobody may see that.
void tst_List::oneAtATimeAmongMany()
{
    using Step = std::function<void(int id, QListWidget &list, QListWidget &bare)>;
    QFETCH(Step, step);
    QFETCH(bool, isReported);
    constexpr int kCount = 800;
    const int id = addList(launchModeless(), true, kCount, isReported ? reportList<List> : nullptr);
    // Not visible: a list that scrolls gets events, and with them what is late.
    auto *const list = object<QListWidget>(id);
    QListWidget bare;
    for (int position = 1; position <= kCount; ++position)
        bare.addItem(QString::number(position));
    QRandomGenerator random(77);
    int trialsAmongMany = 0;
    for (int trial = 0; trial < 20; ++trial) {
        for (int i = trial == 0 ? -400 : 0; i < 30; ++i) {
            const int position = random.bounded(1, kCount / 2) * 2;
            ZelGUIListSetSelectedItem(id, position);
            selectRange(bare, position, position, QItemSelectionModel::Select);
        }
        trialsAmongMany += bare.selectionModel()->selection().size() > 256 ? 1 : 0;
        step(id, *list, bare);
        if (QTest::currentTestFailed())
            return;
        QTest::qWait(0);
        QCOMPARE(rangesOf(*list), rangesOf(bare));
    }
    QVERIFY(trialsAmongMany > 1);
}

/// What is late must not end the silence in which the add-on changes something else: here the page that hides the list.
void tst_List::oneAtATimeBehindAPage()
{
    const int dialog = launchModeless();
    const int tab = ZelGUITabAdd(dialog, 100, 100, 3000, 1000, reportInt<PageShown>, reportInt<PageLeft>);
    const int first = ZelGUITabAddPage(tab, "First");
    const int second = ZelGUITabAddPage(tab, "Second");
    shown<QWidget>(tab);
    for (const int page : {first, second}) {
        const int id = addList(page, true, 800);
        ZelGUITabSetCurrentPage(tab, page);
        shown<QListWidget>(id);
        log().clear();
        selectEverySecond(id);
        ZelGUITabSetCurrentPage(tab, page == first ? second : first);
        QCOMPARE(log(), QStringList());
        QCOMPARE(selectionOf(id).size(), 400);
    }
}

/// Where a host sorts the items, the selection goes with them.
void tst_List::oneAtATimeBeforeASort()
{
    const int id = addList(createModal(), true, 800);
    auto *const list = object<QListWidget>(id);
    for (int row = 0; row < 800; ++row)
        list->item(row)->setText(row % 2 == 0 ? QStringLiteral("a") : QStringLiteral("b"));
    selectEverySecond(id);
    list->sortItems();
    Positions upper(400);
    std::iota(upper.begin(), upper.end(), 401);
    QCOMPARE(sorted(selectionOf(id)), upper);
}

/// A host may delete a page while the toolkit is yet to be told of rows.
void tst_List::oneAtATimeUntilTheEnd()
{
    const int dialog = launchModeless();
    const int frame = ZelGUIFrameAdd(dialog, 100, 100, 3000, 1000, "");
    const int id = addList(frame, true, 800);
    shown<QWidget>(frame);
    shown<QListWidget>(id);
    selectEverySecond(id);
    delete object<QWidget>(frame);
    QVERIFY(!object<QDialog>(dialog)->grab().isNull());
}

void tst_List::userSelection()
{
    const int id = addList(launchModeless(), true, 6);
    auto *const list = shown<QListWidget>(id);
    click(list, 2);
    click(list, 5, Qt::ControlModifier);
    click(list, 1, Qt::ControlModifier);
    QCOMPARE(selectionOf(id), Positions({2, 5, 1}));
    click(list, 5, Qt::ControlModifier);
    click(list, 2, Qt::ControlModifier);
    click(list, 1, Qt::ControlModifier);
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(log(),
             QStringList({"List 2", "List 2 5", "List 1 2 5", "List 1 2", "List 1", "List none", "List 1 2 3 4 5 6"}));
    // The add-on's selection is where the user goes on, and moves no start of a range.
    click(list, 3);
    log().clear();
    select(id, {1, 6});
    click(list, 4, Qt::ShiftModifier);
    QCOMPARE(log(), QStringList({"List 1 3 4"}));
}

/// One report, as after any change, and none where all were selected already, however that had come about.
void tst_List::userSelectsAllAfterMany()
{
    const int id = addList(launchModeless(), true, 800);
    auto *const list = shown<QListWidget>(id);
    for (const bool isAll : {false, true}) {
        ZelGUIListDeselectAllItems(id);
        selectEverySecond(id);
        for (int position = 1; isAll && position <= 800; position += 2)
            ZelGUIListSetSelectedItem(id, position);
        QCOMPARE(selectionOf(id).size(), isAll ? 800 : 400);
        log().clear();
        QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(log().size(), isAll ? 0 : 1);
        QCOMPARE(rangesOf(*list), (QVector<QPair<int, int>>{{1, 800}}));
    }
}

void tst_List::userSelectsOne()
{
    const int dialog = launchModeless();
    const int id = addList(dialog, false, 3);
    auto *const list = shown<QListWidget>(id);
    click(list, 2);
    click(list, 2);
    click(list, 3, Qt::ControlModifier);
    ZelGUIListSetSelectedItem(id, 1);
    QTest::keyClick(list, Qt::Key_Up);
    QCOMPARE(log(), QStringList({"List 2", "List 3", "List 2"}));

    const int unheard = ZelGUIListAdd(dialog, 100, 1000, 1000, 300, 0, nullptr);
    ZelGUIListAppendItem(unheard, "A");
    click(shown<QListWidget>(unheard), 1);
    QCOMPARE(ZelGUIListGetSelectedItem(unheard), 1);
}

void tst_List::scrolling()
{
    const int dialog = createModeless();
    const int id = addList(dialog, true, 50);
    QCOMPARE(ZelGUIListGetTopItemNum(addList(dialog)), 0);
    ZelGUIListSetTopItemNum(id, 7);
    QCOMPARE(ZelGUIListGetTopItemNum(id), 7);
    ZelGUIDialogLaunch(dialog);
    QCOMPARE(ZelGUIListGetTopItemNum(id), 7);
    select(id, {1});
    QCOMPARE(ZelGUIListGetTopItemNum(id), 7);
    ZelGUIListSetSelectedItem(id, 8);
    QCOMPARE(ZelGUIListGetTopItemNum(id), 7);
    ZelGUIListSetSelectedItem(id, 2);
    QCOMPARE(ZelGUIListGetTopItemNum(id), 2);
    ZelGUIListSetSelectedItem(id, 50);
    const auto *const list = object<QListWidget>(id);
    QVERIFY(list->viewport()->rect().contains(list->visualItemRect(list->item(49))));
}

void tst_List::capacity()
{
    const int id = addList(createModal(), true, 3);
    const auto *const list = object<QListWidget>(id);
    const int rows = list->height() / list->visualItemRect(list->item(0)).height();
    QVERIFY(rows > 1);
    QCOMPARE(ZelGUIListGetCapacity(id), rows);
    ZelGUIListDeleteAllItems(id);
    QCOMPARE(ZelGUIListGetCapacity(id), rows);
    QCOMPARE(ZelGUIListGetItemCount(id), 0);

    const int flat = addList(createModal(), true, 1);
    object<QListWidget>(flat)->item(0)->setSizeHint(QSize(10, 0));
    QCOMPARE(ZelGUIListGetCapacity(flat), object<QListWidget>(flat)->height());
}

/// The bars come and go with the room for them, but not for ever.
void tst_List::smallSizes()
{
    const int dialog = launchModeless();
    for (const int size : {10, 30, 100, 200, 400}) {
        const int id = ZelGUIListAdd(dialog, 100, 100, 5 * size, size, 1, nullptr);
        for (int i = 0; i < 20; ++i)
            ZelGUIListAppendItem(id, "An item");
        const auto *const list = shown<QListWidget>(id);
        int changes = 0;
        for (QScrollBar *const bar : {list->verticalScrollBar(), list->horizontalScrollBar()})
            connect(bar, &QScrollBar::rangeChanged, this, [&changes] { ++changes; });
        for (int pass = 0; pass < 50; ++pass)
            QCoreApplication::processEvents();
        QVERIFY2(changes < 30, qPrintable(QString::number(changes)));
        QVERIFY(list->verticalScrollBar()->isVisible());
    }
}

void tst_List::changedItemsBehindTheUser_data()
{
    const Rows<QByteArray, int> row("by", "itemsAfter");
    for (const char *const by : {"key", "letter", "drag"}) {
        row(QByteArray(by) + ", deleted", by, 0);
        row(QByteArray(by) + ", replaced by fewer", by, 2);
        row(QByteArray(by) + ", replaced by more", by, 9);
    }
}

/// The toolkit goes on with the item that the user has moved to, also when the callback has deleted it.
void tst_List::changedItemsBehindTheUser()
{
    QFETCH(QByteArray, by);
    QFETCH(int, itemsAfter);
    const int id = addList(launchModeless(), true, 6);
    auto *const list = shown<QListWidget>(id);
    list->setFocus();
    list->setCurrentRow(3);
    log().clear();
    action(List) = [&] {
        action(List) = nullptr;
        setItems(id, QVector<QByteArray>(itemsAfter, "new"));
    };
    const auto centre = [list](int row) { return list->visualItemRect(list->item(row)).center(); };
    if (by == "key") {
        QTest::keyClick(list, Qt::Key_Down);
    } else if (by == "letter") {
        QTest::keyClick(list, Qt::Key_5);
    } else {
        const QPoint to = centre(4);
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, centre(3));
        QMouseEvent move(QEvent::MouseMove, to, list->viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(list->viewport(), &move);
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, to);
    }
    QCOMPARE(log(), QStringList(by == "drag" ? "List 4 5" : "List 5"));
    // If not, it would find out now, and say so.
    ZelGUIListAppendItem(id, "one more");
    ZelGUIListDeleteItemAtPos(id, 1);
    QCOMPARE(ZelGUIListGetItemCount(id), itemsAfter);
}

void tst_List::handedOutSelection()
{
    const int id = addList(createModal(), true, 3);
    const int positions[] = {2, 3};
    int dummy = 0;
    int *selected = &dummy;
    int count = 77;
    for (const int nothing : {0, -1, std::numeric_limits<int>::min()})
        ZelGUIListSetSelectedItems(id, positions, nothing);
    ZelGUIListGetSelectedItems(id, &selected, &count);
    QVERIFY(!selected);
    QCOMPARE(count, 0);
    ZelGUIListSetSelectedItems(id, positions, 2);
    ZelGUIListGetSelectedItems(id, nullptr, &count);
    QCOMPARE(count, 2);
    ZelGUIListGetSelectedItems(id, &selected, nullptr);
    QVERIFY(selected);
    QCOMPARE(Positions(selected, selected + 2), Positions({2, 3}));
    // Memory of the host's, which it can account for.
    const auto unreleased = orvane::host::unreleased();
    QVERIFY(std::any_of(unreleased.begin(), unreleased.end(), [](const orvane::host::Unreleased &entry) {
        return entry.label == "ZelGUIListGetSelectedItems" && entry.bytes == 2 * sizeof(int);
    }));
    release(selected);
    QVERIFY(orvane::host::unreleased().empty());
}

ZELTEST_MAIN(tst_List)
#include "tst_list.moc"
