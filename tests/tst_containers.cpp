// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QDialog>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

using namespace Callback;

/// What holds or divides other widgets: forms, tabs, frames, separators.
class tst_Containers : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void formShowsOnePage();
    void tabGeometry();
    void tabReports();
    void tabReportsAfterSwitchByTheAddOn();
    void tabWithOnePage();
    void frames_data();
    void frames();
    void framesLieBehind();
    void separators();
    void widgetsArePlacedInTheirContainer();

private:
    void clickTab(int tab, int position) const
    {
        auto *const bar = object<QTabWidget>(tab)->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, bar->tabRect(position - 1).center());
    }
    /// A visible row of three tabs; the pages' identifiers follow its own.
    int launchTabs()
    {
        const int dialog = createModeless();
        const int tab = ZelGUITabAdd(dialog, 100, 300, 2500, 500, reportInt<PageShown>, reportInt<PageLeft>);
        for (const char *const label : {"One", "Tw\xC3\xB6", "Three"})
            ZelGUITabAddPage(tab, label);
        ZelGUIDialogLaunch(dialog);
        waitUntilActive(object<QDialog>(dialog));
        log().clear();
        return tab;
    }
    static QStringList switched(int left, int shown)
    {
        return {QStringLiteral("PageLeft %1").arg(left), QStringLiteral("PageShown %1").arg(shown)};
    }
};

void tst_Containers::formShowsOnePage()
{
    const int dialog = createModeless();
    const int form = ZelGUIFormAdd(dialog, 100, 100, 2000, 500);
    QVector<int> pages;
    for (int i = 0; i < 3; ++i) {
        pages << ZelGUIFormAddPage(form);
        QCOMPARE(pages.last(), form + i + 1);
    }
    const int label = ZelGUILabelAdd(pages[0], 0, 0, "on the first page");
    ZelGUIDialogLaunch(dialog);
    QVERIFY(object<QLabel>(label)->isVisible());
    QCOMPARE(object<QLabel>(label)->mapTo(object<QWidget>(dialog), QPoint()), object<QWidget>(form)->pos());
    ZelGUIFormSetCurrentPage(pages[2]);
    ZelGUIFormSetCurrentPage(pages[2]);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(object<QWidget>(pages[i])->isVisible(), i == 2);

    // A field loses the focus with its page, by the add-on's doing.
    QVERIFY(waitUntilActive(object<QWidget>(dialog)));
    auto *const field = shown<QWidget>(ZelGUITextFieldAdd(pages[2], 1, 1, 1000, 100, reportText<Text>));
    field->setFocus();
    QVERIFY(field->hasFocus());
    ZelGUIFormSetCurrentPage(pages[0]);
    QVERIFY(!field->hasFocus());
    QCOMPARE(log(), QStringList({"Init"}));
}

void tst_Containers::tabGeometry()
{
    const int dialog = createModal();
    const int tab = ZelGUITabAdd(dialog, 100, 300, 2500, 500, nullptr, nullptr);
    const QRect asked = object<QWidget>(ZelGUIToggleAdd(dialog, 100, 300, 2500, 500, "", nullptr))->geometry();
    QCOMPARE(object<QWidget>(tab)->geometry(), asked.adjusted(0, -25, 0, 0));
    QCOMPARE(object<QWidget>(tab)->maximumSize(), asked.size() + QSize(0, 25));
}

void tst_Containers::tabReports()
{
    const int tab = launchTabs();
    QCOMPARE(object<QTabWidget>(tab)->tabText(1), QString::fromUtf8("Tw\xC3\xB6"));
    clickTab(tab, 2);
    clickTab(tab, 2);
    clickTab(tab, 3);
    clickTab(tab, 1);
    QCOMPARE(log(), switched(tab + 1, tab + 2) + switched(tab + 2, tab + 3) + switched(tab + 3, tab + 1));
}

void tst_Containers::tabReportsAfterSwitchByTheAddOn()
{
    const int first = launchTabs();
    ZelGUITabSetCurrentPage(first, first + 3);
    QCOMPARE(object<QTabWidget>(first)->currentIndex(), 2);
    QCOMPARE(log(), QStringList());
    clickTab(first, 2);
    QCOMPARE(log(), switched(first + 1, first + 2));

    const int second = launchTabs();
    ZelGUITabSetCurrentPage(second, second + 3);
    clickTab(second, 1);
    QCOMPARE(log(), switched(second + 1, second + 1));
    // What was last reported is not reported again, however the page came to be left.
    ZelGUITabSetCurrentPage(second, second + 2);
    clickTab(second, 1);
    QCOMPARE(log().size(), 2);
}

void tst_Containers::tabWithOnePage()
{
    const int dialog = createModeless();
    const int tab = ZelGUITabAdd(dialog, 100, 300, 2500, 500, reportInt<PageShown>, reportInt<PageLeft>);
    ZelGUIDialogLaunch(dialog);
    log().clear();
    ZelGUITabAddPage(tab, nullptr);
    clickTab(tab, 1);
    QCOMPARE(log(), QStringList());
}

void tst_Containers::frames_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<int>("room");
    QTest::newRow("title") << QByteArray("Gr\xC3\xB6\xC3\x9F"
                                         "e")
                           << 10;
    QTest::newRow("empty title") << QByteArray("") << 10;
    QTest::newRow("no title") << QByteArray() << 0;
}

void tst_Containers::frames()
{
    QFETCH(QByteArray, title);
    QFETCH(int, room);
    const int dialog = createModal();
    const int frame = ZelGUIFrameAdd(dialog, 100, 200, 2000, 500, title.isNull() ? nullptr : title.constData());
    const QRect asked = object<QWidget>(ZelGUIToggleAdd(dialog, 100, 200, 2000, 500, "", nullptr))->geometry();
    QCOMPARE(object<QWidget>(frame)->geometry(), asked.adjusted(0, -room, 0, 0));
    QCOMPARE(object<QGroupBox>(frame)->title(), QString::fromUtf8(title));
}

void tst_Containers::framesLieBehind()
{
    const int dialog = createModeless();
    const int button = ZelGUIButtonAdd(dialog, 300, 300, 1000, 150, "Button", report<Push>);
    ZelGUIFrameAdd(dialog, 100, 200, 2500, 500, "Frame");
    ZelGUIDialogLaunch(dialog);
    QWidget *const window = object<QWidget>(dialog);
    const QPoint center = object<QWidget>(button)->geometry().center();
    QCOMPARE(window->childAt(center), object<QWidget>(button));
}

void tst_Containers::separators()
{
    const int dialog = createModal();
    const auto *const vertical = object<QFrame>(ZelGUIVertSeparatorAdd(dialog, 100, 100, 500));
    const auto *const horizontal = object<QFrame>(ZelGUIHorzSeparatorAdd(dialog, 100, 100, 1000));
    const QWidget *const same = object<QWidget>(ZelGUIToggleAdd(dialog, 100, 100, 1000, 500, "", nullptr));
    QCOMPARE(vertical->frameShape(), QFrame::VLine);
    QCOMPARE(vertical->geometry(), QRect(same->pos(), QSize(1, same->height())));
    QCOMPARE(horizontal->frameShape(), QFrame::HLine);
    QCOMPARE(horizontal->geometry(), QRect(same->pos(), QSize(same->width(), 1)));
}

void tst_Containers::widgetsArePlacedInTheirContainer()
{
    const int dialog = createModal();
    const int frame = ZelGUIFrameAdd(dialog, 500, 200, 2000, 500, "Frame");
    const int inFrame = ZelGUIToggleAdd(frame, 100, 300, 500, 100, "", nullptr);
    const int onDialog = ZelGUIToggleAdd(dialog, 100, 300, 500, 100, "", nullptr);
    QCOMPARE(object<QWidget>(inFrame)->parentWidget(), object<QWidget>(frame));
    QCOMPARE(object<QWidget>(inFrame)->pos(), object<QWidget>(onDialog)->pos());
}

ZELTEST_MAIN(tst_Containers)
#include "tst_containers.moc"
