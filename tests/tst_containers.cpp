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
    void tabReports();
    void tabWithOnePage();
    void geometry();
    void framesLieBehind();
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
    QCOMPARE(log(), QStringList({"Init", "Text "}));
}

void tst_Containers::tabReports()
{
    const int tab = launchTabs();
    QCOMPARE(object<QTabWidget>(tab)->tabText(1), QString::fromUtf8("Tw\xC3\xB6"));
    // The add-on's own switches are unheard, so the page that the user leaves is the one that was last reported, or the
    // first one.
    ZelGUITabSetCurrentPage(tab, tab + 3);
    QCOMPARE(object<QTabWidget>(tab)->currentIndex(), 2);
    QCOMPARE(log(), QStringList());
    for (const int page : {1, 2, 2, 3})
        clickTab(tab, page);
    ZelGUITabSetCurrentPage(tab, tab + 2);
    clickTab(tab, 1);
    // What was last reported is not reported again, however the page came to be left.
    ZelGUITabSetCurrentPage(tab, tab + 2);
    clickTab(tab, 1);
    QCOMPARE(log(), switched(tab + 1, tab + 1) + switched(tab + 1, tab + 2) + switched(tab + 2, tab + 3) +
                        switched(tab + 3, tab + 1));
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

void tst_Containers::geometry()
{
    const int dialog = createModal();
    const QRect asked = object<QWidget>(ZelGUIToggleAdd(dialog, 100, 300, 2500, 500, "", nullptr))->geometry();
    const int tab = ZelGUITabAdd(dialog, 100, 300, 2500, 500, nullptr, nullptr);
    const int titled = ZelGUIFrameAdd(dialog, 100, 300, 2500, 500, "Gr\xC3\xB6\xC3\x9F");
    const int vertical = ZelGUIVertSeparatorAdd(dialog, 100, 300, 500);
    const int horizontal = ZelGUIHorzSeparatorAdd(dialog, 100, 300, 2500);
    const QVector<QPair<int, QRect>> expected = {
        {tab, asked.adjusted(0, -25, 0, 0)},
        {titled, asked.adjusted(0, -10, 0, 0)},
        {ZelGUIFrameAdd(dialog, 100, 300, 2500, 500, ""), asked.adjusted(0, -10, 0, 0)},
        {ZelGUIFrameAdd(dialog, 100, 300, 2500, 500, nullptr), asked},
        {vertical, QRect(asked.topLeft(), QSize(1, asked.height()))},
        {horizontal, QRect(asked.topLeft(), QSize(asked.width(), 1))}};
    for (const auto &[id, geometry] : expected)
        QCOMPARE(object<QWidget>(id)->geometry(), geometry);
    QCOMPARE(object<QWidget>(tab)->maximumSize(), object<QWidget>(tab)->size());
    QCOMPARE(object<QGroupBox>(titled)->title(), QString::fromUtf8("Gr\xC3\xB6\xC3\x9F"));
    QCOMPARE(object<QFrame>(vertical)->frameShape(), QFrame::VLine);
    QCOMPARE(object<QFrame>(horizontal)->frameShape(), QFrame::HLine);
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
